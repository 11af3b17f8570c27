// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DraggedFile.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

QString DraggedFile::mimeType()
{
    return QStringLiteral("application/x-korvane-file");
}

QMimeData *DraggedFile::mime() const
{
    auto *mime = new QMimeData;
    // An entry of an archive is nothing that another program could open.
    if (QFileInfo(path).isFile())
        mime->setUrls({QUrl::fromLocalFile(path)});
    const QStringList parts = QStringList{QString::number(int(kind)), path} + names;
    mime->setData(mimeType(), parts.join(QChar(0)).toUtf8());
    return mime;
}

std::optional<DraggedFile> DraggedFile::of(const QMimeData &mime)
{
    const QList<QByteArray> parts = mime.data(mimeType()).split('\0');
    bool isNumber = false;
    const int kind = parts.first().toInt(&isNumber);
    if (!isNumber || parts.size() < 2 || kind < 0 || kind > int(Kind::Texture))
        return {};
    DraggedFile file{Kind(kind), QString::fromUtf8(parts[1]), {}};
    for (const QByteArray &name : parts.mid(2))
        file.names += QString::fromUtf8(name);
    return file;
}
