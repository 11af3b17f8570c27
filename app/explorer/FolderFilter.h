// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class FolderTree;

/// The line above an explorer's tree that says which of its files are shown. Escape shows all of them again,
/// Down goes to the first that is left, Return opens it.
class FolderFilter : public QLineEdit
{
    Q_OBJECT

public:
    explicit FolderFilter(FolderTree &tree);

signals:
    void fileChosen(const QString &path);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    FolderTree &m_tree;
};
