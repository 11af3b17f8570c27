// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileRows.h"

#include <QListView>

class FileDelegate;
class Thumbnails;

/// The list of the files of game and mod. What was current or in sight stays so as far as it is still listed.
class FileList : public QListView
{
    Q_OBJECT

public:
    /// How large pictures can be.
    static constexpr int LargePicture = 112;

    /// The pictures outlive the list, and may be another one's, too, that is behind a dialog meanwhile.
    FileList(Thumbnails &thumbnails, QWidget *parent);

    FileRows &rows() { return *m_rows; }
    const FileRows &rows() const { return *m_rows; }
    /// Null when no row is current.
    const CatalogFile *current() const;
    /// How large the pictures of files are.
    void setPictureSide(int pixels);

    void setFiles(const CatalogFilesPtr &files);
    void setUnused(const UnusedFlagsPtr &unused);
    void setFilter(const FileFilter &filter);
    /// Files may be others than their pictures show.
    void lookAtPictures();

signals:
    /// Somebody types while the list has the keys.
    void typed(const QString &text);
    /// Escape was pressed.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyboardSearch(const QString &text) override;

private:
    template <typename Change>
    void keepPlace(Change change);

    void wantPictures();

    FileRows *m_rows;
    Thumbnails &m_thumbnails;
    FileDelegate *m_delegate;
    QTimer m_rest; ///< who scrolls past files does not want their pictures
};
