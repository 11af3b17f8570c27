// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class KVTreeView;
class QAction;

/// The line above a structure tree that says which of its records are shown. Escape shows all of them again
/// and goes back to the tree, Return and the arrow keys go to the tree.
class FilterLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterLine(KVTreeView &tree, QWidget *parent = nullptr);

    /// The action that goes here from anywhere, as long as the line is in sight.
    void setAction(const QAction *action);

private slots:
    void on_actionFilter_triggered();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    KVTreeView &m_tree;
};
