// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"

/// Saves one document in another thread, from a copy of the model, one save after another. The document may
/// be worked with meanwhile; it counts as saved when its file is there.
class DocumentSaver : public QObject
{
    Q_OBJECT

public:
    /// Follows each save; `reason` says why it failed.
    using Then = std::function<void(bool isFailed, const QString &reason)>;

    DocumentSaver(Document &document, QObject *parent);

    void save(const QString &path, Then then);
    bool isSaving() const { return m_writing.isRunning(); }
    /// Waits until the file is there, or has failed, and that was told.
    void finish();
    void setPatience(int milliseconds) { m_patience = milliseconds; }

private:
    Document &m_document;
    int m_patience;
    Background m_writing;
};
