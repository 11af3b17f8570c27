// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ThumbnailCache.h"

#include "Files.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

#include <utility>

namespace {
const auto UriKey = QStringLiteral("Thumb::URI");
const auto TimeKey = QStringLiteral("Thumb::MTime");
const auto SizeKey = QStringLiteral("Thumb::Size");
const auto ErrorKey = QStringLiteral("Description"); // a key that every PNG may have
/// More is no small picture.
constexpr int MostSide = 1024;
constexpr qint64 MostFileBytes = 8 * 1024 * 1024;

constexpr auto OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QByteArray hexOf(const QByteArray &bytes, QCryptographicHash::Algorithm algorithm)
{
    return QCryptographicHash::hash(bytes, algorithm).toHex();
}

/// Desktops count in seconds; an entry of an archive has a checksum instead of a time.
QString timeOf(const ThumbnailSubject &subject, bool isShared)
{
    return QString::number(isShared ? subject.stamp.modified / 1000 : subject.stamp.modified);
}

/// Folders that nobody else looks into, as far as they are not there yet.
bool makeFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir())
        return true;
    return makeFolder(QFileInfo(folder).path()) && QDir().mkdir(folder) &&
           QFile::setPermissions(folder, OwnerOnly | QFileDevice::ExeOwner);
}
} // namespace

QByteArray fileUri(const QString &path)
{
    // What the desktop's own libraries leave as it is.
    return "file://" + QFileInfo(path).absoluteFilePath().toUtf8().toPercentEncoding("/!$&'()*+,:=@");
}

ThumbnailCache::ThumbnailCache(QString shared, QString own, qint64 mostOwnBytes)
    : m_shared(std::move(shared))
    , m_own(std::move(own))
    , m_mostOwnBytes(mostOwnBytes)
{}

bool ThumbnailCache::isShared(const ThumbnailSubject &subject) const
{
    return !m_shared.isEmpty() && Files::archiveOf(subject.path).isEmpty();
}

QString ThumbnailCache::pathFor(const ThumbnailSubject &subject, bool isFailure) const
{
    const QByteArray uri = fileUri(subject.path);
    if (!isShared(subject))
        return QStringLiteral("%1/%2-%3.png")
            .arg(m_own, QString::fromLatin1(hexOf(uri, QCryptographicHash::Sha1)),
                 isFailure ? QStringLiteral("fail") : QString::number(subject.side));
    const QString folder = isFailure
                               ? QStringLiteral("fail/korvane-") + QCoreApplication::applicationVersion()
                           : subject.side > 128 ? QStringLiteral("large")
                                                : QStringLiteral("normal");
    return QStringLiteral("%1/%2/%3.png")
        .arg(m_shared, folder, QString::fromLatin1(hexOf(uri, QCryptographicHash::Md5)));
}

KeptThumbnail ThumbnailCache::find(const ThumbnailSubject &subject) const
{
    const bool shared = isShared(subject);
    for (const bool isFailure : {false, true}) {
        QFile file(pathFor(subject, isFailure));
        if (!file.open(QIODevice::ReadOnly) || file.size() > MostFileBytes)
            continue;
        QImageReader reader(&file, "png");
        const QSize size = reader.size();
        const bool isSmall = size.isValid() && size.width() <= MostSide && size.height() <= MostSide;
        const QImage image = isSmall ? reader.read() : QImage();
        if (image.isNull() || image.text(UriKey) != QString::fromLatin1(fileUri(subject.path)) ||
            image.text(TimeKey) != timeOf(subject, shared))
            continue;
        // Others may not say the size; who does, has to have the file's.
        const QString bytes = image.text(SizeKey);
        if (!bytes.isEmpty() && bytes != QString::number(subject.stamp.size))
            continue;
        if (!isFailure)
            return {image, {}};
        if (!image.text(ErrorKey).isEmpty())
            return {{}, image.text(ErrorKey)};
    }
    return {};
}

void ThumbnailCache::keep(const ThumbnailSubject &subject, const KeptThumbnail &thumbnail) const
{
    const bool isFailure = thumbnail.image.isNull();
    const QString path = pathFor(subject, isFailure);
    QImage image = thumbnail.image;
    if (isFailure) {
        image = QImage(1, 1, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
    }
    if (!makeFolder(QFileInfo(path).path()))
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(OwnerOnly))
        return;
    // The toolkit's writer would take the first colon of a key for its end, the picture does not.
    image.setText(UriKey, QString::fromLatin1(fileUri(subject.path)));
    image.setText(TimeKey, timeOf(subject, isShared(subject)));
    image.setText(SizeKey, QString::number(subject.stamp.size));
    image.setText(QStringLiteral("Software"), QStringLiteral("Korvane"));
    if (isFailure)
        image.setText(ErrorKey, thumbnail.error);
    if (QImageWriter(&file, "png").write(image))
        file.commit();
}

void ThumbnailCache::tidy() const
{
    const QDir folder(m_own);
    // The newest first.
    const QFileInfoList kept = folder.entryInfoList({QStringLiteral("*.png")}, QDir::Files, QDir::Time);
    qint64 bytes = 0;
    for (const QFileInfo &each : kept) {
        bytes += each.size();
        if (bytes > m_mostOwnBytes)
            QFile::remove(each.filePath());
    }
}
