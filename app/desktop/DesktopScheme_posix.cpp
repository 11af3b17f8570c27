// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DesktopScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

#include <functional>

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

/// The settings portal, which says whether dark is preferred and when that changes.
class SettingsPortal : public QObject
{
    Q_OBJECT

public:
    SettingsPortal(QDBusConnection bus, std::function<void(bool)> listener, QObject *parent)
        : QObject(parent)
        , m_tell(std::move(listener))
    {
        bus.connect(Service, Path, Interface, QStringLiteral("SettingChanged"), this,
                    SLOT(onSettingChanged(QString, QString, QDBusVariant)));
        QDBusMessage question =
            QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
        question << Group << Key;
        auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (reply.isValid())
                tell(reply.value().variant());
            answer->deleteLater();
        });
    }

private slots:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
    {
        if (group == Group && key == Key)
            tell(value.variant());
    }

private:
    void tell(const QVariant &value)
    {
        // Read() wraps the value once more.
        const QVariant plain =
            value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
        m_tell(plain.toUInt() == PrefersDark);
    }

    std::function<void(bool)> m_tell;
};

void DesktopScheme::follow()
{
    if (!hasSessionBus())
        return;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        new SettingsPortal(
            bus, [this](bool prefersDark) { set(prefersDark); }, this);
}

#include "DesktopScheme_posix.moc"
