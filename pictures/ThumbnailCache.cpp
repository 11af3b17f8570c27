// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ThumbnailCache.h"

#include "Files.h"
#include "Language.h"

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
// Of this program's own.
const auto ExactTimeKey = QStringLiteral("Korvane::MTime");   // in milliseconds
const auto LanguageKey = QStringLiteral("Korvane::Language"); // of why there is none
const auto DrawnFromKey = QStringLiteral("Korvane::DrawnFrom");
const auto StateKey = QStringLiteral("Korvane::State");
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

bool isPlainFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && !file.isSymLink();
}

/// Folders that nobody else looks into, as far as they are not there yet.
bool makeFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (info.isDir())
        return true;
    // A drive that is not there stands in itself.
    return info.path() != folder && makeFolder(info.path()) && QDir().mkdir(folder) &&
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
        const QString path = pathFor(subject, isFailure);
        QFile file(path);
        // A pipe would never open, and a link may lead anywhere.
        if (!isPlainFile(path) || !file.open(QIODevice::ReadOnly) || file.size() > MostFileBytes)
            continue;
        QImageReader reader(&file, "png");
        const QSize size = reader.size();
        const bool isSmall = size.isValid() && size.width() <= MostSide && size.height() <= MostSide;
        const QImage image = isSmall ? reader.read() : QImage();
        if (image.isNull() || image.text(UriKey) != QString::fromLatin1(fileUri(subject.path)) ||
            image.text(TimeKey) != timeOf(subject, shared))
            continue;
        // Others may not say these; who does, has to have the file's.
        const auto isOther = [&image](const QString &key, qint64 number) {
            const QString said = image.text(key);
            return !said.isEmpty() && said != QString::number(number);
        };
        if (isOther(SizeKey, subject.stamp.size) || isOther(ExactTimeKey, subject.stamp.modified))
            continue;
        const QString names = image.text(DrawnFromKey);
        const QStringList drawnFrom = names.isEmpty() ? QStringList() : names.split(QLatin1Char('\n'));
        if (!isFailure)
            return {image, {}, drawnFrom, image.text(StateKey)};
        if (!image.text(ErrorKey).isEmpty() && image.text(LanguageKey) == Language::installed())
            return {{}, image.text(ErrorKey), drawnFrom, image.text(StateKey)};
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
    // It would be written to where a link leads.
    if (!isPlainFile(path))
        QFile::remove(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(OwnerOnly))
        return;
    // The toolkit's writer would take the first colon of a key for its end, the picture does not.
    image.setText(UriKey, QString::fromLatin1(fileUri(subject.path)));
    image.setText(TimeKey, timeOf(subject, isShared(subject)));
    image.setText(SizeKey, QString::number(subject.stamp.size));
    image.setText(ExactTimeKey, QString::number(subject.stamp.modified));
    if (!thumbnail.drawnFrom.isEmpty())
        image.setText(DrawnFromKey, thumbnail.drawnFrom.join(QLatin1Char('\n')));
    if (!thumbnail.state.isEmpty())
        image.setText(StateKey, thumbnail.state);
    image.setText(QStringLiteral("Software"), QStringLiteral("Korvane"));
    if (isFailure) {
        image.setText(ErrorKey, thumbnail.error);
        image.setText(LanguageKey, Language::installed());
    }
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
