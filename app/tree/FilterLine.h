// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class KVTreeView;

/// The line above a structure tree that says which of its records are shown. Escape shows all of them again
/// and goes back to the tree, Return and the arrow keys go to the tree.
class FilterLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterLine(KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    KVTreeView &m_tree;
};
