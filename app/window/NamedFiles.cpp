// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NamedFiles.h"

#include "DocumentFiles.h"
#include "DocumentPanes.h"
#include "FileDrop.h"
#include "ImportExport.h"
#include "ImportFilter.h"
#include "Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

NamedFiles::NamedFiles(DocumentFiles &files, ImportExport &importExport, Preferences &preferences,
                       DocumentPanes &panes, QWidget *window)
    : QObject(window)
    , m_files(files)
    , m_importExport(importExport)
    , m_preferences(preferences)
    , m_panes(panes)
    , m_window(window)
{
    connect(new FileDrop(window), &FileDrop::dropped, this, &NamedFiles::open);
}

void NamedFiles::open(const QStringList &paths)
{
    const DocumentKind *first = nullptr;
    for (const QString &path : paths) {
        const DocumentKind *kind = documentKindOfFile(path);
        if (!kind && isImportable(path)) {
            // A model on the command line comes before the question that its output folder depends on.
            m_preferences.OnStartSetupPaths();
            m_importExport.importToCurrent(path);
        } else if (!kind) {
            QMessageBox::warning(m_window, tr("File error"),
                                 tr("Failed to open\n%1").arg(QDir::toNativeSeparators(path)));
        } else if (m_files.promptUnsaved(kind->type) &&
                   !m_files.open(kind->type, QFileInfo(path).absoluteFilePath()) && !first) {
            first = kind;
        }
    }
    if (first)
        m_panes.showOpened(first->type);
}
