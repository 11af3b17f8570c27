// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SnapshotFile.h"

#include "DocumentKind.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>

// The file: Magic, the header's length in 4 bytes and the header, the model's length in 8 bytes and the
// model, the SHA-1 of all that. Numbers are big-endian.
namespace {
const QByteArray Magic = QByteArrayLiteral("KVSNAP\x1a\x01");
constexpr qint64 HashBytes = 20;
constexpr quint32 MostHeaderBytes = 1 << 20;

QByteArray headerOf(const Snapshot &snapshot)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << snapshot.extension << snapshot.sourcePath << snapshot.name << snapshot.time << snapshot.sequence
           << snapshot.stamp.size << snapshot.stamp.modified;
    return bytes;
}

bool readHeaderBytes(const QByteArray &bytes, Snapshot *snapshot)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    stream >> snapshot->extension >> snapshot->sourcePath >> snapshot->name >> snapshot->time;
    // Files of older programs end before these.
    snapshot->sequence = snapshot->time.toMSecsSinceEpoch();
    if (!stream.atEnd())
        stream >> snapshot->sequence;
    if (!stream.atEnd())
        stream >> snapshot->stamp.size >> snapshot->stamp.modified;
    return stream.status() != QDataStream::Ok || snapshot->extension.isEmpty() || !snapshot->time.isValid();
}

/// Leaves `file` at the model's first byte and gives its length. Returns true when this is no snapshot.
bool readUpToModel(QFile &file, Snapshot *snapshot, qint64 *modelBytes)
{
    if (!file.open(QIODevice::ReadOnly) || file.read(Magic.size()) != Magic)
        return true;
    QDataStream stream(&file);
    quint32 headerBytes = 0;
    stream >> headerBytes;
    if (stream.status() != QDataStream::Ok || headerBytes > MostHeaderBytes)
        return true;
    const QByteArray header = file.read(headerBytes);
    stream >> *modelBytes;
    return stream.status() != QDataStream::Ok || header.size() != int(headerBytes) || *modelBytes < 0 ||
           *modelBytes != file.size() - file.pos() - HashBytes || readHeaderBytes(header, snapshot);
}
} // namespace

QString SnapshotFile::write(const QString &path, const Snapshot &snapshot, const std::vector<uchar> &model)
{
    const QByteArray header = headerOf(snapshot);
    QByteArray start = Magic;
    QDataStream stream(&start, QIODevice::Append);
    stream << quint32(header.size());
    stream.writeRawData(header.constData(), header.size());
    stream << qint64(model.size());

    const auto *modelBytes = reinterpret_cast<const char *>(model.data());
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(start);
    hash.addData(modelBytes, int(model.size()));

    WholeFile file(path);
    const bool failed = file.write(start.constData(), start.size()) ||
                        file.write(modelBytes, qint64(model.size())) ||
                        file.write(hash.result().constData(), HashBytes) || file.commit();
    return failed ? file.reason() : QString();
}

bool SnapshotFile::readHeader(const QString &path, Snapshot *snapshot)
{
    QFile file(path);
    qint64 modelBytes = 0;
    if (readUpToModel(file, snapshot, &modelBytes))
        return true;
    // A newer program may have kept what this one does not know; damage may look the same.
    const QString name = QLatin1Char('.') + snapshot->extension;
    QByteArray model;
    return !documentKindOfFile(name) && !isMaterialFile(name) && readModel(path, &model);
}

bool SnapshotFile::readModel(const QString &path, QByteArray *model)
{
    QFile file(path);
    Snapshot snapshot;
    qint64 modelBytes = 0;
    if (readUpToModel(file, &snapshot, &modelBytes))
        return true;
    const qint64 start = file.pos();
    *model = file.read(modelBytes);
    const QByteArray kept = file.read(HashBytes);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    file.seek(0);
    hash.addData(file.read(start));
    hash.addData(*model);
    return hash.result() != kept;
}
