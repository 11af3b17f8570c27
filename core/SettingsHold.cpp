// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SettingsHold.h"

#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryFile>

#include <utility>

namespace {
constexpr int MostAtOnce = 64 * 1024; // bytes that one value takes

thread_local const QSettings *s_open = nullptr;

/// What could not be stored, by its name.
QMap<QString, QVariant> &unstored()
{
    static QMap<QString, QVariant> values;
    return values;
}

/// Whether the store can be written anew. The toolkit does not notice when a full disk cuts it, and all other
/// settings with it. A folder in which nothing can be made is for the toolkit to complain of. Looked at for
/// each value: that takes a hundredth of the time of writing it, and the disk may fill up in between.
bool hasRoom(const QString &path)
{
    QTemporaryFile probe(path + QStringLiteral(".room.XXXXXX"));
    const QByteArray bytes(int(QFileInfo(path).size()) + MostAtOnce, ' ');
    return !probe.open() || (probe.write(bytes) == bytes.size() && probe.flush());
}

/// Returns true on failure.
bool store(const QString &name, const QVariant &value)
{
    QSettings settings;
    if (!hasRoom(settings.fileName()))
        return true;
    if (value.isValid())
        settings.setValue(name, value);
    else
        settings.remove(name);
    settings.sync();
    return settings.status() == QSettings::AccessError;
}
} // namespace

SettingsHold::SettingsHold()
    : m_outer(std::exchange(s_open, &m_store))
{}

SettingsHold::~SettingsHold()
{
    s_open = m_outer;
}

QVariant SettingsHold::value(const QString &name)
{
    const auto kept = unstored().constFind(name);
    if (kept != unstored().constEnd())
        return *kept;
    return s_open ? s_open->value(name) : QSettings().value(name);
}

void SettingsHold::setValue(const QString &name, const QVariant &value)
{
    if (!store(name, value)) {
        unstored().remove(name);
        return;
    }
    static bool s_said = false;
    unstored()[name] = value;
    if (!std::exchange(s_said, true)) {
        Log::error(QCoreApplication::translate(
                       "SettingsHold",
                       "[Settings] '%1' cannot be written: what is set from now on is forgotten at the end.")
                       .arg(QDir::toNativeSeparators(QSettings().fileName())));
    }
}
