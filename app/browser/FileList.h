// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileRows.h"

#include <QListView>

class FileDelegate;

/// The list of the files of game and mod. What was current or in sight stays so as far as it is still listed.
class FileList : public QListView
{
    Q_OBJECT

public:
    explicit FileList(QWidget *parent = nullptr);

    FileRows &rows() { return *m_rows; }
    const FileRows &rows() const { return *m_rows; }
    /// Null when no row is current.
    const CatalogFile *current() const;

    void setFiles(const CatalogFilesPtr &files);
    void setUnused(const UnusedFlagsPtr &unused);
    void setFilter(const FileFilter &filter);

signals:
    /// Somebody types while the list has the keys.
    void typed(const QString &text);
    /// Escape was pressed.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyboardSearch(const QString &text) override;

private:
    template <typename Change>
    void keepPlace(Change change);

    FileRows *m_rows;
    FileDelegate *m_delegate;
};
