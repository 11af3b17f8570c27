// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "Records.h"

#include <QObject>

class DocumentFiles;

/// Opens files that a list names, at the record that the list is about. Files that are open already are not
/// opened again; what no document is made of is handed to the desktop.
class FileOpener : public QObject
{
    Q_OBJECT

public:
    FileOpener(DocumentFiles &files, QObject *parent);

    /// Asks for unsaved work of the document first. Without a kind the record is the file's root.
    void open(const QString &path, const RecordRef &record);

signals:
    /// The document holds the file, and the record is to be shown.
    void opened(DocumentType type, const RecordRef &record);
    /// A material file is to be opened.
    void materialsWanted(const QString &path);
    /// Something for the status bar.
    void told(const QString &text);

private:
    void openModel(DocumentType type, const QString &path, const RecordRef &record);
    void openOnDesktop(const QString &path);

    DocumentFiles &m_files;
};
