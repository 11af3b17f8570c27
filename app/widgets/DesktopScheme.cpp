// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DesktopScheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QPointer>

namespace {
const auto Service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto Path = QStringLiteral("/org/freedesktop/portal/desktop");
const auto Interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto Group = QStringLiteral("org.freedesktop.appearance");
const auto Key = QStringLiteral("color-scheme");
constexpr uint PrefersDark = 1;

/// Without an address the library would start a bus of its own.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") &&
            QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus")));
}
} // namespace

DesktopScheme &DesktopScheme::instance()
{
    static QPointer<DesktopScheme> made;
    if (!made)
        made = new DesktopScheme(QCoreApplication::instance());
    return *made;
}

DesktopScheme::DesktopScheme(QObject *parent)
    : QObject(parent)
{
    if (!hasSessionBus())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(Service, Path, Interface, QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
    question << Group << Key;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            set(reply.value().variant());
        answer->deleteLater();
    });
}

void DesktopScheme::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == Group && key == Key)
        set(value.variant());
}

void DesktopScheme::set(const QVariant &value)
{
    // Read() wraps the value once more.
    const QVariant plain = value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    const bool dark = plain.toUInt() == PrefersDark;
    if (dark == m_prefersDark)
        return;
    m_prefersDark = dark;
    emit changed();
}
