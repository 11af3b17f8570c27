// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PosesFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <numeric>

namespace {
template <typename T>
void put(QFile &file, const std::vector<T> &block)
{
    file.write(reinterpret_cast<const char *>(block.data()), qint64(block.size() * sizeof(T)));
}
} // namespace

QString PosesFile::write(const QString &path, const std::function<Places(int, int)> &pose) const
{
    QJsonArray partObjects;
    for (const PosesPart &part : parts) {
        partObjects.append(QJsonObject{{"name", part.name}, {"first", part.first}, {"count", part.count}});
    }
    QJsonArray clipObjects;
    for (const PosesClip &clip : clips)
        clipObjects.append(QJsonObject{{"name", clip.name}, {"rate", clip.rate}, {"frames", clip.frames}});
    const QJsonObject head{{"vertices", int(rest.size())},
                           {"corners", int(rest.size())},
                           {"triangles", int(triangles.size())},
                           {"parts", partObjects},
                           {"clips", clipObjects}};
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(QJsonDocument(head).toJson(QJsonDocument::Compact) + '\n');
    put(file, rest);
    std::vector<qint32> vertices(rest.size());
    std::iota(vertices.begin(), vertices.end(), 0);
    put(file, vertices);
    put(file, uvs);
    put(file, normals);
    put(file, solid);
    put(file, triangles);
    for (int clip = 0; clip < int(clips.size()); ++clip) {
        for (int frame = 0; frame < clips[size_t(clip)].frames; ++frame)
            put(file, pose(clip, frame));
    }
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString PosesFile::readClips(const QString &path, std::vector<PosesClip> &clips)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    for (const auto &each : head["clips"].toArray()) {
        const QJsonObject clip = each.toObject();
        clips.push_back({clip["name"].toString(), clip["rate"].toDouble(), clip["frames"].toInt()});
    }
    return {};
}
