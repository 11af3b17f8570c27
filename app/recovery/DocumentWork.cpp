// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentWork.h"

#include "DocumentFiles.h"

DocumentWork::DocumentWork(DocumentFiles &files, DocumentType type, QObject *parent)
    : UnsavedWork(parent)
    , m_files(files)
    , m_document(*files.document(type))
{
    connect(&m_document, &Document::aboutToBeReplaced, this, &UnsavedWork::aboutToBeReplaced);
    connect(&m_document, &Document::replaced, this, &UnsavedWork::changed);
    connect(&m_document, &Document::recordsChanged, this, &UnsavedWork::changed);
    connect(&m_document, &Document::structuresChanged, this, &UnsavedWork::changed);
    // Unless it was changed while it was written.
    connect(&m_document, &Document::saved, this, &UnsavedWork::changed);
    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this, &UnsavedWork::changed);
}

/// An animation file without animations, which many imports leave, holds nothing worth keeping.
bool DocumentWork::canBeKept() const
{
    return m_document.kind().type != DocumentType::Anim || m_document.refusal().isEmpty();
}

bool DocumentWork::mayBeReplaced()
{
    return m_files.promptUnsaved(m_document.kind().type);
}

bool DocumentWork::restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                           const FileStamp &stamp)
{
    return m_document.restore(bytes, path, unsavedName, stamp);
}
