// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// A bar that tells something and offers what can be done about it, without standing in the way. Hidden until
/// it has something to tell.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    NoticeBar(const QIcon &icon, const QString &objectName, QWidget *parent = nullptr);

    QPushButton *addButton(const QString &text, const QString &objectName, const QString &toolTip);
    /// Adds the cross that hides the bar, behind the buttons.
    void addCross(const QString &toolTip);
    /// Shows the bar with this plain text.
    void tell(const QString &text);
    QString text() const;

private:
    void takeColors();

    QHBoxLayout *m_row;
    QLabel *m_text;
};
