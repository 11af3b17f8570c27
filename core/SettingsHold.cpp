// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SettingsHold.h"

#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QMutex>
#include <QPointer>
#include <QSet>
#include <QTemporaryFile>
#include <QTimer>

#include <utility>

namespace {
constexpr int MostAtOnce = 64 * 1024; // bytes that one value takes

constexpr int WriteInterval = 200; // milliseconds

thread_local const QSettings *s_open = nullptr;

/// What counts although it is not stored, by its name: it could not be, or waits for its time.
class Unstored
{
public:
    QVariant value(const QString &name)
    {
        const QMutexLocker lock(&m_mutex);
        return m_values.value(name);
    }
    bool contains(const QString &name)
    {
        const QMutexLocker lock(&m_mutex);
        return m_values.contains(name);
    }
    void keep(const QString &name, const QVariant &value)
    {
        const QMutexLocker lock(&m_mutex);
        m_values[name] = value;
    }
    void forget(const QString &name)
    {
        const QMutexLocker lock(&m_mutex);
        m_values.remove(name);
    }

private:
    QMutex m_mutex;
    QMap<QString, QVariant> m_values;
};

Unstored &unstored()
{
    static Unstored values;
    return values;
}

/// Writes the values that wait, some time after those before. Goes with the application.
class WaitingValues : public QObject
{
public:
    static WaitingValues *instance()
    {
        static QPointer<WaitingValues> s_instance;
        if (!s_instance && QCoreApplication::instance())
            s_instance = new WaitingValues(QCoreApplication::instance());
        return s_instance;
    }

    void add(const QString &name)
    {
        m_names.insert(name);
        if (!m_pause.isActive())
            write();
    }

    void write()
    {
        m_pause.stop();
        if (m_names.isEmpty())
            return;
        const QSet<QString> names = std::exchange(m_names, {});
        for (const QString &name : names) {
            // Unless it was set and stored by then.
            if (unstored().contains(name))
                SettingsHold::setValue(name, unstored().value(name));
        }
        m_pause.start();
    }

private:
    explicit WaitingValues(QCoreApplication *application)
        : QObject(application)
    {
        m_pause.setSingleShot(true);
        m_pause.setInterval(WriteInterval);
        connect(&m_pause, &QTimer::timeout, this, &WaitingValues::write);
        connect(application, &QCoreApplication::aboutToQuit, this, &WaitingValues::write);
    }

    QTimer m_pause;
    QSet<QString> m_names;
};

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
    if (unstored().contains(name))
        return unstored().value(name);
    return s_open ? s_open->value(name) : QSettings().value(name);
}

void SettingsHold::setValue(const QString &name, const QVariant &value)
{
    if (!store(name, value)) {
        unstored().forget(name);
        return;
    }
    static bool s_said = false;
    unstored().keep(name, value);
    if (!std::exchange(s_said, true)) {
        Log::error(QCoreApplication::translate(
                       "SettingsHold",
                       "[Settings] '%1' cannot be written: what is set from now on is forgotten at the end.")
                       .arg(QDir::toNativeSeparators(QSettings().fileName())));
    }
}

void SettingsHold::setValueSoon(const QString &name, const QVariant &value)
{
    WaitingValues *waiting = WaitingValues::instance();
    if (!waiting)
        return setValue(name, value);
    unstored().keep(name, value);
    waiting->add(name);
}

void SettingsHold::writeWaiting()
{
    if (WaitingValues *waiting = WaitingValues::instance())
        waiting->write();
}
