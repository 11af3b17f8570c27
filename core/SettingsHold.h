// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QVariant>

/// While one lives, its thread reads settings from one open store. To open it looks at several files, which
/// adds up where every key is read, as at the start. What this process writes is seen all the same; what
/// another one writes is not.
class SettingsHold
{
public:
    SettingsHold();
    ~SettingsHold();
    SettingsHold(const SettingsHold &) = delete;
    SettingsHold &operator=(const SettingsHold &) = delete;

    /// The stored value, invalid when there is none: from the open store, or else from one of its own.
    static QVariant value(const QString &name);
    /// Stores a value; an invalid one removes it. Where the store cannot be written, the value counts until
    /// the program ends, and the log says so once.
    static void setValue(const QString &name, const QVariant &value);
    /// The same for a value that changes many times a second: it counts at once and is written five times a
    /// second at most, the last one in any case. GUI thread only.
    static void setValueSoon(const QString &name, const QVariant &value);
    /// Writes what waits to be written.
    static void writeWaiting();

private:
    QSettings m_store;
    const QSettings *m_outer;
};
