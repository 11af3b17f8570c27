// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QObject>
#include <QStringList>

class DocumentFiles;
class DocumentPanes;
class ImportExport;
class Preferences;
class QWidget;

/// Opens files that were named from outside: on the command line, or by dropping them on the window.
class NamedFiles : public QObject
{
    Q_OBJECT

public:
    /// The window owns this; the others outlive it.
    NamedFiles(DocumentFiles &files, ImportExport &importExport, Preferences &preferences,
               DocumentPanes &panes, QWidget *window);

    /// Opens files by their extension, each in its tab; the first one's tab becomes current. A model of a
    /// foreign format goes to the import dialog, and an archive is offered as the game's folder.
    void open(const QStringList &paths);

signals:
    /// A material file is one of them.
    void materialsNamed(const QString &path);

private:
    void openNext();
    void openModel(const DocumentKind &kind, const QString &path);

    DocumentFiles &m_files;
    ImportExport &m_importExport;
    Preferences &m_preferences;
    DocumentPanes &m_panes;
    QWidget *m_window;
    QStringList m_waiting;                 ///< what is opened after what is being read
    const DocumentKind *m_first = nullptr; ///< of what was opened
};
