// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FilterEdit.h"

class KVTreeView;
class QAction;

/// The line above a structure tree that says which of its records are shown.
class FilterLine : public FilterEdit
{
    Q_OBJECT

public:
    explicit FilterLine(KVTreeView &tree, QWidget *parent = nullptr);

    /// The action that goes here from anywhere, as long as the line is in sight.
    void setAction(const QAction *action);

private slots:
    void on_actionFilter_triggered();
};
