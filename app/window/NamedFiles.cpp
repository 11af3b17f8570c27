// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NamedFiles.h"

#include "DocumentFiles.h"
#include "DocumentPanes.h"
#include "FileDrop.h"
#include "Files.h"
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
    m_waiting = paths;
    m_first = nullptr;
    openNext();
}

/// One after another: each may have a question, or a failure to tell of.
void NamedFiles::openNext()
{
    while (!m_waiting.isEmpty()) {
        const QString path = m_waiting.takeFirst();
        const DocumentKind *kind = documentKindOfFile(path);
        if (kind && m_files.promptUnsaved(kind->type))
            return openModel(*kind, QFileInfo(path).absoluteFilePath());
        if (!kind && isMaterialFile(path)) {
            emit materialsNamed(QFileInfo(path).absoluteFilePath());
        } else if (!kind && Files::isArchiveName(path) && QFileInfo(path).isFile()) {
            m_preferences.offerArchive(QFileInfo(path).absoluteFilePath());
        } else if (!kind && isImportable(path)) {
            // A model on the command line comes before the question that its output folder depends on.
            m_preferences.OnStartSetupPaths();
            m_importExport.importToCurrent(path);
        } else if (!kind) {
            QMessageBox::warning(m_window, tr("File error"),
                                 tr("Failed to open\n%1").arg(QDir::toNativeSeparators(path)));
        }
    }
    if (m_first)
        m_panes.showOpened(m_first->type);
}

void NamedFiles::openModel(const DocumentKind &kind, const QString &path)
{
    m_files.open(kind.type, path, [this, &kind](DocumentFiles::Outcome outcome) {
        if (outcome == DocumentFiles::Outcome::Opened && !m_first)
            m_first = &kind;
        openNext();
    });
}
