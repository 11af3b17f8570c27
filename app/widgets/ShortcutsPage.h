// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Shortcuts.h"

#include <QWidget>

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class ShortcutsPage;
}

/// The page of the options that lists every command with its keys and lets them be changed. It works on a
/// copy; only store() gives the commands their keys.
class ShortcutsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ShortcutsPage(Shortcuts &shortcuts, QWidget *parent = nullptr);
    ~ShortcutsPage() override;

    /// Asks about keys that several commands share, when some were changed here. Returns false when the user
    /// wants to go on with them.
    [[nodiscard]] bool confirm();
    void store();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void refresh();
    void showCurrent();
    void filter(const QString &text);
    void takeTyped();
    void change(const Keys &keys);
    void takeOver();
    int currentCommand() const;
    bool hasKeypadKeys() const; ///< the current command, usually
    QString title(int command) const;
    QString titles(const QVector<int> &commands) const;

    std::unique_ptr<Ui::ShortcutsPage> m_ui;
    Shortcuts &m_shortcuts;
    QVector<Keys> m_keys;               ///< by command, as the page has them
    QVector<QTreeWidgetItem *> m_items; ///< by command
};
