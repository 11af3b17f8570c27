// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WorkerJob.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>

namespace {
// Changes with the fields: an editor and a worker of different builds must not misunderstand each other.
constexpr quint32 JobMark = 0x4B564A34;
constexpr quint32 AnswerMark = 0x4B564133;

QDataStream &operator<<(QDataStream &out, const ReadyClip &clip)
{
    return out << clip.clip << qint32(clip.loop);
}

QDataStream &operator>>(QDataStream &in, ReadyClip &clip)
{
    qint32 loop = 0;
    in >> clip.clip >> loop;
    clip.loop = ReadyClip::Loop(loop);
    return in;
}

QDataStream &operator<<(QDataStream &out, const SceneSummary::Clip &clip)
{
    return out << clip.name << clip.seconds << clip.rate;
}

QDataStream &operator>>(QDataStream &in, SceneSummary::Clip &clip)
{
    return in >> clip.name >> clip.seconds >> clip.rate;
}

QDataStream &operator<<(QDataStream &out, const SceneSummary::Texture &texture)
{
    return out << texture.name << texture.file << texture.isEmbedded;
}

QDataStream &operator>>(QDataStream &in, SceneSummary::Texture &texture)
{
    return in >> texture.name >> texture.file >> texture.isEmbedded;
}

template <typename Item>
void writeList(QDataStream &out, const std::vector<Item> &items)
{
    out << qint32(items.size());
    for (const Item &item : items)
        out << item;
}

/// Whatever the count says, a list holds no more than the stream.
template <typename Item>
void readList(QDataStream &in, std::vector<Item> &items)
{
    qint32 count = 0;
    in >> count;
    items.clear();
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i)
        in >> items.emplace_back();
}

void writeReady(QDataStream &out, const ReadyChoices &ready)
{
    out << ready.scale << ready.isZUp << ready.rate << ready.extraBones << ready.allClips;
    writeList(out, ready.clips);
}

void readReady(QDataStream &in, ReadyChoices &ready)
{
    in >> ready.scale >> ready.isZUp >> ready.rate >> ready.extraBones >> ready.allClips;
    readList(in, ready.clips);
}

void writeSummary(QDataStream &out, const SceneSummary &summary)
{
    out << summary.objects << summary.vertices << summary.triangles << summary.bones << summary.size
        << summary.proposedScale << summary.otherScale << summary.proposesZUp << summary.losses;
    writeList(out, summary.clips);
    writeList(out, summary.textures);
}

void readSummary(QDataStream &in, SceneSummary &summary)
{
    in >> summary.objects >> summary.vertices >> summary.triangles >> summary.bones >> summary.size >>
        summary.proposedScale >> summary.otherScale >> summary.proposesZUp >> summary.losses;
    readList(in, summary.clips);
    readList(in, summary.textures);
}

void writeUpdate(QDataStream &out, const UpdateAccount &update)
{
    out << update.model << update.missingBlocks << update.changesMesh << update.changesAnim
        << qint32(update.lines.size());
    for (const UpdateLine &line : update.lines)
        out << qint32(line.kind) << line.text;
}

void readUpdate(QDataStream &in, UpdateAccount &update)
{
    qint32 count = 0;
    in >> update.model >> update.missingBlocks >> update.changesMesh >> update.changesAnim >> count;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 kind = 0;
        QString text;
        in >> kind >> text;
        if (kind < int(UpdateLine::Changed) || kind > int(UpdateLine::Note))
            in.setStatus(QDataStream::ReadCorruptData);
        update.add(UpdateLine::Kind(kind), text);
    }
}

template <typename Write>
bool writeStream(const QString &path, quint32 mark, Write write)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return true;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << mark;
    write(stream);
    return stream.status() != QDataStream::Ok || !file.flush();
}

template <typename Read>
bool readStream(const QString &path, quint32 mark, Read read)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_5_15);
    quint32 found = 0;
    stream >> found;
    if (found != mark)
        return true;
    read(stream);
    return stream.status() != QDataStream::Ok || !stream.atEnd();
}
} // namespace

bool WorkerFolder::write(const WorkerJob &job) const
{
    return writeStream(path(QStringLiteral("job")), JobMark, [&job](QDataStream &out) {
        out << qint32(job.task) << qint32(job.memoryLimitMiB) << qint32(job.secondsLimit)
            << job.texturesElsewhere << job.modelPath << job.kmatPath << job.flags << job.meshVersion
            << job.animVersion << job.objName << job.textures
            << QVector<qint32>(job.textureOfSurface.begin(), job.textureOfSurface.end());
        writeReady(out, job.ready);
    });
}

bool WorkerFolder::read(WorkerJob &job) const
{
    return readStream(path(QStringLiteral("job")), JobMark, [&job](QDataStream &in) {
        qint32 task = 0;
        qint32 limit = 0;
        qint32 seconds = 0;
        QVector<qint32> textureOfSurface;
        in >> task >> limit >> seconds >> job.texturesElsewhere >> job.modelPath >> job.kmatPath >>
            job.flags >> job.meshVersion >> job.animVersion >> job.objName >> job.textures >>
            textureOfSurface;
        readReady(in, job.ready);
        job.task = WorkerJob::Task(task);
        job.memoryLimitMiB = limit;
        job.secondsLimit = seconds;
        job.textureOfSurface.assign(textureOfSurface.begin(), textureOfSurface.end());
    });
}

bool WorkerFolder::write(const WorkerAnswer &answer) const
{
    return writeStream(path(QStringLiteral("answer")), AnswerMark, [&answer](QDataStream &out) {
        out << answer.textures << answer.wantedTextures << answer.lacking << answer.names.toJson();
        writeSummary(out, answer.summary);
        writeUpdate(out, answer.update);
        out << qint32(answer.messages.size());
        for (const ImportMessage &message : answer.messages)
            out << qint32(message.severity) << message.text;
    });
}

bool WorkerFolder::read(WorkerAnswer &answer) const
{
    return readStream(path(QStringLiteral("answer")), AnswerMark, [&answer](QDataStream &in) {
        QByteArray names;
        in >> answer.textures >> answer.wantedTextures >> answer.lacking >> names;
        // A worker that a file has got the better of may write anything, and what it names is copied.
        const bool isTexture =
            std::all_of(answer.textures.begin(), answer.textures.end(),
                        [](const QString &file) { return file.endsWith(QLatin1String(".png")); });
        if (!isTexture || answer.names.fromJson(names))
            in.setStatus(QDataStream::ReadCorruptData);
        readSummary(in, answer.summary);
        readUpdate(in, answer.update);
        qint32 count = 0;
        in >> count;
        for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
            qint32 severity = 0;
            QString text;
            in >> severity >> text;
            if (severity < int(LogSeverity::Error) || severity > int(LogSeverity::Info))
                in.setStatus(QDataStream::ReadCorruptData);
            answer.messages.append({LogSeverity(severity), text});
        }
    });
}
