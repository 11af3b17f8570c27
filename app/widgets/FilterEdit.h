// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

/// A line above a list that says which of its entries are shown: when somebody pauses in typing, and before
/// the keys go to the list. Escape shows all of them again and goes to the list, Return and Down go to what
/// is left.
class FilterEdit : public QLineEdit
{
    Q_OBJECT

public:
    FilterEdit(const QString &placeholder, const QString &toolTip, QWidget *parent = nullptr);

signals:
    /// Show what matches this.
    void filtered(const QString &text);
    /// Escape was pressed, after which everything is shown.
    void left();
    /// Down was pressed, or Return, after the text was used.
    void entered(bool byReturn);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
