// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentSaver.h"

#include "DocumentLoader.h"

DocumentSaver::DocumentSaver(Document &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_patience(DocumentLoader::usualPatience())
{
    // What was saved is the model that goes.
    connect(&document, &Document::aboutToBeReplaced, this, &DocumentSaver::finish);
}

void DocumentSaver::save(const QString &path, Then then)
{
    finish();
    const auto write = [writer = m_document.writer(path)](const Background::Cancelled &) { return writer(); };
    m_writing.start(write, [this, then = std::move(then)](const std::shared_ptr<SavedFile> &file) {
        if (!file->isFailed)
            m_document.noteSaved(*file);
        then(file->isFailed, file->reason);
    });
    if (m_patience != 0)
        m_writing.wait(m_patience);
}

void DocumentSaver::finish()
{
    constexpr int Endless = -1;
    m_writing.wait(Endless);
}
