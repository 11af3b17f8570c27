// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialWork.h"

#include "KMat.h"
#include "MaterialDocument.h"

#include <QFileInfo>

#include <utility>

MaterialWork::MaterialWork(MaterialDocument &document, std::function<bool()> mayBeReplaced, QObject *parent)
    : UnsavedWork(parent)
    , m_document(document)
    , m_mayBeReplaced(std::move(mayBeReplaced))
{
    connect(&document, &MaterialDocument::aboutToBeReplaced, this, &UnsavedWork::aboutToBeReplaced);
    connect(&document, &MaterialDocument::changed, this, &UnsavedWork::changed);
    connect(&document, &MaterialDocument::saved, this, &UnsavedWork::changed);
    connect(document.undoStack(), &QUndoStack::cleanChanged, this, &UnsavedWork::changed);
}

QString MaterialWork::path() const
{
    return m_document.path();
}

QString MaterialWork::fileName() const
{
    return QFileInfo(m_document.path()).fileName();
}

FileStamp MaterialWork::stamp() const
{
    return m_document.stamp();
}

bool MaterialWork::differsFromFile() const
{
    return m_document.isModified();
}

std::function<std::vector<uchar>()> MaterialWork::drafter()
{
    return [encoding = m_document.text().encoding(), text = m_document.text().text()] {
        const QByteArray bytes = encoding.encode(text);
        return std::vector<uchar>(bytes.begin(), bytes.end());
    };
}

bool MaterialWork::restore(const QByteArray &bytes, const QString &path, const QString &,
                           const FileStamp &stamp)
{
    if (bytes.size() > MostMaterialBytes || path.isEmpty())
        return true;
    m_document.restore(path, bytes, stamp);
    emit restored();
    return false;
}
