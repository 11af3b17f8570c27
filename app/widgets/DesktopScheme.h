// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusVariant>
#include <QObject>

/// Whether the user has asked the desktop for dark windows, which the desktop's settings portal says on the
/// session bus. Without a bus or a portal nobody has.
class DesktopScheme : public QObject
{
    Q_OBJECT

public:
    /// Asks when it is first called for; the answer comes later, as a change.
    static DesktopScheme &instance();

    bool prefersDark() const { return m_prefersDark; }

signals:
    void changed();

private slots:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    explicit DesktopScheme(QObject *parent);
    void set(const QVariant &value);

    bool m_prefersDark = false;
};
