// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileOpener.h"

#include "DocumentFiles.h"
#include "FileSystem.h"
#include "Files.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QTimer>
#include <QUrl>

namespace {
RecordRef rootOf(DocumentType type)
{
    switch (type) {
    case DocumentType::SkinnedMesh:
        return {RecordKind::SkinnedMesh, {}};
    case DocumentType::Anim:
        return {RecordKind::AnimFile, {}};
    case DocumentType::StaticMesh:
        break;
    }
    return {RecordKind::StaticMesh, {}};
}
} // namespace

FileOpener::FileOpener(DocumentFiles &files, QObject *parent)
    : QObject(parent)
    , m_files(files)
{}

void FileOpener::open(const QString &path, const RecordRef &record)
{
    const DocumentKind *kind = documentKindOfFile(path);
    if (!kind && isMaterialFile(path)) {
        emit materialsWanted(path);
        return;
    }
    if (!kind)
        return openOnDesktop(path);
    const RecordRef place = record.kind == RecordKind::None ? rootOf(kind->type) : record;
    // Later: a question that is asked from within a click would swallow the release of the mouse.
    QTimer::singleShot(0, this, [this, type = kind->type, path, place] { openModel(type, path, place); });
}

void FileOpener::openModel(DocumentType type, const QString &path, const RecordRef &record)
{
    if (QApplication::activeModalWidget())
        return;
    const Document *document = m_files.document(type);
    if (document->isOpen() && FileSystem::isSamePath(document->path(), path)) {
        emit opened(type, record);
        return;
    }
    if (!m_files.promptUnsaved(type))
        return;
    m_files.open(type, path, [this, type, record](DocumentFiles::Outcome outcome) {
        if (outcome == DocumentFiles::Outcome::Opened)
            emit opened(type, record);
    });
}

/// What an archive holds is nothing that the desktop could open, and not every desktop has a program for all
/// files, but one for folders.
void FileOpener::openOnDesktop(const QString &path)
{
    const QString folder = QFileInfo(Files::heldBy(path)).path();
    if (Files::archiveOf(path).isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        emit told(tr("Failed to open %1").arg(QDir::toNativeSeparators(path)));
}
