// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "UnsavedWork.h"

class DocumentFiles;

/// One of the three documents.
class DocumentWork : public UnsavedWork
{
    Q_OBJECT

public:
    DocumentWork(DocumentFiles &files, DocumentType type, QObject *parent);

    QString extension() const override { return m_document.kind().extension; }
    QString label() const override { return m_document.kind().label; }
    QString path() const override { return m_document.path(); }
    QString fileName() const override { return m_document.fileName(); }
    FileStamp stamp() const override { return m_document.fileStamp(); }
    bool differsFromFile() const override { return m_document.differsFromFile(); }
    bool canBeKept() const override;
    std::function<std::vector<uchar>()> drafter() override { return m_document.drafter(); }
    bool mayBeReplaced() override;
    bool restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                 const FileStamp &stamp) override;

private:
    DocumentFiles &m_files;
    Document &m_document;
};
