// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Description.h"

#include "FrameChoice.h"
#include "ReferenceTables.h"
#include "Transform.h"

#include <QJsonArray>
#include <QLocale>

#include <cmath>

namespace {
/// The fewest digits that say this float: those of the double would go on after them.
QJsonValue jsonNumber(float value)
{
    if (!std::isfinite(value))
        return {};
    QString digits;
    for (int count = 6; count <= 9; ++count) {
        digits = QString::number(double(value), 'g', count);
        if (digits.toFloat() == value)
            break;
    }
    return digits.toDouble();
}

QJsonArray jsonVector(const QVector3D &vector)
{
    return {jsonNumber(vector.x()), jsonNumber(vector.y()), jsonNumber(vector.z())};
}

template <typename Boxed>
QJsonObject jsonBox(const Boxed &boxed)
{
    return {{QStringLiteral("min"), jsonVector(boxed.bbMin)},
            {QStringLiteral("max"), jsonVector(boxed.bbMax)}};
}

int jsonSize(size_t size)
{
    return int(size);
}

template <typename Surfaces>
QJsonArray jsonSurfaces(const Surfaces &surfaces)
{
    QJsonArray array;
    for (const auto &surface : surfaces) {
        array.append(
            QJsonObject{{QStringLiteral("material"), surface.materialPath},
                        {QStringLiteral("triangles"), jsonSize(surface.triangleIndexes.size() / 3)},
                        {QStringLiteral("triangleIndexes"), jsonSize(surface.triangleIndexes.size())}});
    }
    return array;
}

template <typename Surfaces>
int triangleIndexCount(const Surfaces &surfaces)
{
    size_t count = 0;
    for (const auto &surface : surfaces)
        count += surface.triangleIndexes.size();
    return jsonSize(count);
}

QJsonObject describeBlock(const AnimBlock &block)
{
    return {
        {QStringLiteral("id"), block.animId},
        {QStringLiteral("name"), ReferenceTables::shared().name(ReferenceKind::Animations, block.animId)},
        {QStringLiteral("frames"), block.frameCount()},
        {QStringLiteral("speed"), jsonNumber(block.speed)},
        {QStringLiteral("duration"), jsonNumber(block.frameCount() > 0 ? playDuration(block) : 0.0f)},
        {QStringLiteral("loopFrame"), block.loopFrame == 0xFFFF ? QJsonValue() : QJsonValue(block.loopFrame)},
        {QStringLiteral("bones"), jsonSize(block.nodes.size())},
        {QStringLiteral("translationTracks"), block.translations.trackCount()},
        {QStringLiteral("rotationTracks"), block.rotations.trackCount()},
        {QStringLiteral("actions"), jsonSize(block.actions.size())}};
}

struct Describer
{
    QJsonObject operator()(std::monostate) const { return {}; }

    QJsonObject operator()(const SkinnedMesh &mesh) const
    {
        size_t childBones = 0;
        for (const SkinnedMeshNode &node : mesh.nodes)
            childBones += node.childNodes.size();
        return {{QStringLiteral("kind"), QStringLiteral("skinnedmesh")},
                {QStringLiteral("version"), mesh.version},
                {QStringLiteral("bounds"), jsonBox(mesh)},
                {QStringLiteral("headTrack"), QJsonObject{{QStringLiteral("start"), mesh.headTrackStart},
                                                          {QStringLiteral("end"), mesh.headTrackEnd},
                                                          {QStringLiteral("factor"), mesh.headTrackFactor}}},
                {QStringLiteral("counts"),
                 QJsonObject{{QStringLiteral("bones"), jsonSize(mesh.nodes.size())},
                             {QStringLiteral("childBones"), jsonSize(childBones)},
                             {QStringLiteral("hotPoints"), jsonSize(mesh.hotPoints.size())},
                             {QStringLiteral("surfaces"), jsonSize(mesh.surfaces.size())},
                             {QStringLiteral("triangleIndexes"), triangleIndexCount(mesh.surfaces)},
                             {QStringLiteral("vertices"), jsonSize(mesh.vertices.size())}}},
                {QStringLiteral("surfaces"), jsonSurfaces(mesh.surfaces)}};
    }

    QJsonObject operator()(const StaticMesh &mesh) const
    {
        // The box in the file is often an empty one.
        StaticMesh vertices;
        vertices.vertices = mesh.vertices;
        boundVertices(vertices);
        return {{QStringLiteral("kind"), QStringLiteral("staticmesh")},
                {QStringLiteral("version"), mesh.version},
                {QStringLiteral("bounds"), jsonBox(mesh)},
                {QStringLiteral("vertexBounds"), jsonBox(vertices)},
                {QStringLiteral("counts"),
                 QJsonObject{{QStringLiteral("surfaces"), jsonSize(mesh.surfaces.size())},
                             {QStringLiteral("triangleIndexes"), triangleIndexCount(mesh.surfaces)},
                             {QStringLiteral("vertices"), jsonSize(mesh.vertices.size())}}},
                {QStringLiteral("surfaces"), jsonSurfaces(mesh.surfaces)}};
    }

    QJsonObject operator()(const AnimFile &file) const
    {
        QJsonArray blocks;
        size_t bones = 0;
        int frames = 0;
        int translationTracks = 0;
        int rotationTracks = 0;
        size_t translations = 0;
        size_t rotations = 0;
        size_t actions = 0;
        for (const AnimBlock &block : file.blocks) {
            blocks.append(describeBlock(block));
            bones += block.nodes.size();
            frames += block.frameCount();
            translationTracks += block.translations.trackCount();
            rotationTracks += block.rotations.trackCount();
            translations += block.translations.keys().size();
            rotations += block.rotations.keys().size();
            actions += block.actions.size();
        }
        return {
            {QStringLiteral("kind"), QStringLiteral("anim")},
            {QStringLiteral("version"), file.version},
            {QStringLiteral("counts"), QJsonObject{{QStringLiteral("blocks"), jsonSize(file.blocks.size())},
                                                   {QStringLiteral("bones"), jsonSize(bones)},
                                                   {QStringLiteral("frames"), frames},
                                                   {QStringLiteral("translationTracks"), translationTracks},
                                                   {QStringLiteral("translations"), jsonSize(translations)},
                                                   {QStringLiteral("rotationTracks"), rotationTracks},
                                                   {QStringLiteral("rotations"), jsonSize(rotations)},
                                                   {QStringLiteral("actions"), jsonSize(actions)}}},
            {QStringLiteral("blocks"), blocks}};
    }

    QJsonObject operator()(const MaterialTable &table) const
    {
        QJsonArray materials;
        for (const auto &[name, texture] : table) {
            materials.append(
                QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("texture"), texture}});
        }
        return {{QStringLiteral("kind"), QStringLiteral("kmat")},
                {QStringLiteral("counts"), QJsonObject{{QStringLiteral("materials"), materials.size()}}},
                {QStringLiteral("materials"), materials}};
    }
};

// --- For people --------------------------------------------------------------------------------------------

QString numberText(const QJsonValue &value)
{
    return value.isNull() ? QStringLiteral("not a number") : QString::number(value.toDouble(), 'g', 6);
}

QString row(const QString &title, const QString &text)
{
    return QStringLiteral("  %1  %2\n").arg(title, -13).arg(text);
}

QString boxText(const QJsonObject &box)
{
    const auto corner = [&box](const char *name) {
        QStringList numbers;
        for (const QJsonValue value : box.value(QLatin1String(name)).toArray())
            numbers += numberText(value);
        return numbers.join(QStringLiteral(", "));
    };
    return QStringLiteral("%1 to %2").arg(corner("min"), corner("max"));
}

/// A number of things, by its key: "1 bone", "2,048 vertices".
QString countText(const QJsonObject &counts, const char *key)
{
    static const struct
    {
        QLatin1String key;
        const char *one;
        const char *many;
    } texts[] = {{QLatin1String("blocks"), "animation", "animations"},
                 {QLatin1String("bones"), "bone", "bones"},
                 {QLatin1String("childBones"), "child bone", "child bones"},
                 {QLatin1String("hotPoints"), "hot point", "hot points"},
                 {QLatin1String("frames"), "frame", "frames"},
                 {QLatin1String("translationTracks"), "translation track", "translation tracks"},
                 {QLatin1String("translations"), "translation", "translations"},
                 {QLatin1String("rotationTracks"), "rotation track", "rotation tracks"},
                 {QLatin1String("rotations"), "rotation", "rotations"},
                 {QLatin1String("actions"), "action", "actions"},
                 {QLatin1String("surfaces"), "surface", "surfaces"},
                 {QLatin1String("triangles"), "triangle", "triangles"},
                 {QLatin1String("triangleIndexes"), "triangle index", "triangle indexes"},
                 {QLatin1String("vertices"), "vertex", "vertices"},
                 {QLatin1String("materials"), "material", "materials"}};
    const int count = counts.value(QLatin1String(key)).toInt();
    for (const auto &text : texts) {
        if (text.key == QLatin1String(key))
            return QStringLiteral("%1 %2").arg(QLocale(QLocale::English).toString(count),
                                               QLatin1String(count == 1 ? text.one : text.many));
    }
    return {};
}

QString countsText(const QJsonObject &counts)
{
    QStringList parts;
    for (const char *key :
         {"blocks", "bones", "childBones", "hotPoints", "frames", "translationTracks", "translations",
          "rotationTracks", "rotations", "actions", "surfaces", "triangleIndexes", "vertices", "materials"}) {
        if (counts.contains(QLatin1String(key)))
            parts += countText(counts, key);
    }
    return parts.join(QStringLiteral(", "));
}

QString blockText(const QJsonObject &block)
{
    const QString name = block.value(QStringLiteral("name")).toString();
    const QJsonValue loop = block.value(QStringLiteral("loopFrame"));
    return QStringLiteral("id %1%2, %3 in %4 s, %5, %6, %7, %8, %9")
        .arg(QString::number(block.value(QStringLiteral("id")).toInt()),
             name.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(name), countText(block, "frames"),
             numberText(block.value(QStringLiteral("duration"))),
             loop.isNull() ? QStringLiteral("loops from frame 0")
                           : QStringLiteral("loops from frame %1").arg(loop.toInt()),
             countText(block, "bones"), countText(block, "translationTracks"),
             countText(block, "rotationTracks"), countText(block, "actions"));
}

QString kindText(const QJsonObject &description)
{
    const QString kind = description.value(QStringLiteral("kind")).toString();
    const QString name = kind == QLatin1String("skinnedmesh")  ? QStringLiteral("skinned mesh")
                         : kind == QLatin1String("staticmesh") ? QStringLiteral("static mesh")
                         : kind == QLatin1String("anim")       ? QStringLiteral("animations")
                                                               : QStringLiteral("materials");
    const auto version = description.find(QStringLiteral("version"));
    return version == description.end() ? name : name + QStringLiteral(", version %1").arg(version->toInt());
}

/// A line for each object of the array named.
template <typename Text>
QString rows(const QJsonObject &description, const char *array, const QString &title, Text text)
{
    QString lines;
    int number = 0;
    for (const QJsonValue value : description.value(QLatin1String(array)).toArray())
        lines += row(QStringLiteral("%1 %2").arg(title, QString::number(number++)), text(value.toObject()));
    return lines;
}
} // namespace

QJsonObject describe(const FileContent &content)
{
    return std::visit(Describer(), content);
}

QString descriptionText(const QJsonObject &description)
{
    QString text =
        row(QStringLiteral("kind"), kindText(description)) +
        row(QStringLiteral("size"),
            QLocale(QLocale::English).toString(qint64(description.value(QStringLiteral("size")).toDouble())) +
                QStringLiteral(" bytes"));
    const auto box = [&](const char *key, const QString &title) {
        const auto found = description.find(QLatin1String(key));
        if (found != description.end())
            text += row(title, boxText(found->toObject()));
    };
    box("bounds", QStringLiteral("box"));
    box("vertexBounds", QStringLiteral("vertices in"));
    const auto head = description.find(QStringLiteral("headTrack"));
    if (head != description.end()) {
        const QJsonObject track = head->toObject();
        text += row(QStringLiteral("head track"),
                    QStringLiteral("bone %1 to %2, factor %3")
                        .arg(QString::number(track.value(QStringLiteral("start")).toInt()),
                             QString::number(track.value(QStringLiteral("end")).toInt()),
                             QString::number(track.value(QStringLiteral("factor")).toInt())));
    }
    text += row(QStringLiteral("holds"), countsText(description.value(QStringLiteral("counts")).toObject()));
    text += rows(description, "surfaces", QStringLiteral("surface"), [](const QJsonObject &surface) {
        return QStringLiteral("%1, %2").arg(surface.value(QStringLiteral("material")).toString(),
                                            countText(surface, "triangles"));
    });
    text += rows(description, "blocks", QStringLiteral("animation"), blockText);
    text += rows(description, "materials", QStringLiteral("material"), [](const QJsonObject &material) {
        return QStringLiteral("%1, texture %2")
            .arg(material.value(QStringLiteral("name")).toString(),
                 material.value(QStringLiteral("texture")).toString());
    });
    text.chop(1);
    return text;
}
