// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Whether the user has asked the desktop for dark windows. On Linux the desktop's settings portal says it on
/// the session bus, without either nobody has; on Windows the registry does.
class DesktopScheme : public QObject
{
    Q_OBJECT

public:
    /// Asks when it is first called for; the answer may come later, as a change.
    static DesktopScheme &instance();

    bool prefersDark() const { return m_prefersDark; }

signals:
    void changed();

private:
    explicit DesktopScheme(QObject *parent);
    /// Asks, and listens for changes.
    void follow();
    void set(bool prefersDark);

    bool m_prefersDark = false;
};
