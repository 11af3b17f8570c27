// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfFacts.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

#include <algorithm>

namespace {
constexpr qint64 LargestText = 64 * 1024 * 1024;
constexpr quint32 BinaryMark = 0x46546C67; // "glTF"
constexpr int HeaderSize = 20;             // of the file and of its first chunk, which is the text

QByteArray textOf(QFile &file)
{
    const QByteArray header = file.peek(HeaderSize);
    if (header.size() < HeaderSize || qFromLittleEndian<quint32>(header.constData()) != BinaryMark)
        return file.read(LargestText);
    file.seek(HeaderSize);
    return file.read(std::min<qint64>(LargestText, qFromLittleEndian<quint32>(header.constData() + 12)));
}

bool hasSteps(const QJsonValue &animation)
{
    const QJsonArray samplers = animation.toObject().value(QLatin1String("samplers")).toArray();
    return std::any_of(samplers.begin(), samplers.end(), [](const QJsonValue &sampler) {
        return sampler.toObject().value(QLatin1String("interpolation")).toString() == QLatin1String("STEP");
    });
}

bool hasOurExtra(const QJsonValue &node)
{
    return node.toObject().value(QLatin1String("extras")).toObject().contains(QLatin1String("korvane"));
}
} // namespace

GltfFacts gltfFacts(const QString &path)
{
    GltfFacts facts;
    QFile file(path);
    const bool isGltf = path.endsWith(QLatin1String(".gltf"), Qt::CaseInsensitive) ||
                        path.endsWith(QLatin1String(".glb"), Qt::CaseInsensitive);
    if (!isGltf || !file.open(QIODevice::ReadOnly))
        return facts;
    const QJsonObject root = QJsonDocument::fromJson(textOf(file)).object();
    const QJsonArray animations = root.value(QLatin1String("animations")).toArray();
    facts.stepClips = int(std::count_if(animations.begin(), animations.end(), hasSteps));
    const QJsonArray nodes = root.value(QLatin1String("nodes")).toArray();
    facts.isOurs = std::any_of(nodes.begin(), nodes.end(), hasOurExtra);
    return facts;
}
