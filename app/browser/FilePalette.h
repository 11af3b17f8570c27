// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class FileCatalog;
class FileList;
class QLabel;
class QLineEdit;
class Thumbnails;

/// The files of game and mod, of which one is found by parts of its name and opened with Return.
class FilePalette : public QDialog
{
    Q_OBJECT

public:
    /// Reads the catalog anew, and goes on with what it has until that is done. Both outlive this.
    FilePalette(FileCatalog &catalog, Thumbnails &thumbnails, QWidget *parent);

    /// The chosen file; empty when the dialog was given up.
    const QString &path() const { return m_path; }

private:
    void takeFiles();
    void fill();
    void accept() override;

    FileCatalog &m_catalog;
    QLineEdit *m_line;
    FileList *m_list;
    QLabel *m_state;
    QString m_path;
};
