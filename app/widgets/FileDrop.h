// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

/// Takes the files that are dropped on a widget.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    explicit FileDrop(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Comes after the drop is over, so that a dialog does not keep the program that the files come from
    /// waiting.
    void dropped(const QStringList &paths);
};
