// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SettingsHold.h"

#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
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
/// settings with it. A folder in which nothing can be made is for the toolkit to complain of.
bool hasRoom(const QString &path)
{
    // Many values are stored at once, as when the window closes.
    static QElapsedTimer s_sinceLook;
    static QString s_path;
    static qint64 s_most = 0; // bytes of the store up to which the look counts
    const qint64 size = QFileInfo(path).size();
    if (s_path == path && size <= s_most && !s_sinceLook.hasExpired(SettingsHold::RoomMs))
        return true;
    QTemporaryFile probe(path + QStringLiteral(".room.XXXXXX"));
    const QByteArray bytes(int(size) + 2 * MostAtOnce, ' ');
    const bool has = !probe.open() || (probe.write(bytes) == bytes.size() && probe.flush());
    s_path = has ? path : QString();
    s_most = size + MostAtOnce;
    s_sinceLook.start();
    return has;
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
