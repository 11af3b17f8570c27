// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAbstractItemView;
class QLineEdit;

/// Lets the keys that lead through a list work in the line above it, in which is typed what it shows.
class ListKeys : public QObject
{
    Q_OBJECT

public:
    ListKeys(QLineEdit *line, QAbstractItemView *list);

signals:
    /// Return was pressed.
    void accepted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemView *m_list;
};
