// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexTargets.h"

#include "AnimFile.h"
#include "ModelNames.h"
#include "NameTables.h"
#include "Records.h"

#include <QCoreApplication>

namespace {
constexpr int NoParent = 0xFF;
constexpr int None = 0xFFFF;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IndexTargets)
};

/// "0 to 16", for lists of any length.
QString range(size_t count)
{
    return count == 0 ? Texts::tr("there are none") : Texts::tr("there are 0 to %1").arg(count - 1);
}

template <typename Vertex>
IndexTarget vertexOf(const std::vector<Vertex> &vertices, int index)
{
    const Vertex *vertex = Records::element(vertices, index);
    if (!vertex)
        return {
            Texts::tr("no such vertex"), true,
            Texts::tr("The mesh has no vertex %1 (%2).").arg(QString::number(index), range(vertices.size()))};
    const QVector3D &at = vertex->position;
    const auto coordinate = [](float value) { return QString::number(double(value), 'g', 4); };
    const QString position =
        QStringLiteral("%1, %2, %3").arg(coordinate(at.x()), coordinate(at.y()), coordinate(at.z()));
    return {Texts::tr("at %1").arg(position), false,
            Texts::tr("Position of vertex %1: %2").arg(QString::number(index), position)};
}

IndexTarget track(int count, int index, const QString &withoutTrack)
{
    if (index < count)
        return {Texts::tr("%1 of %2 tracks").arg(index).arg(count), false, {}};
    if (index == None)
        return {withoutTrack, false, {}};
    return {Texts::tr("no such track"), true,
            Texts::tr("The table has no track %1 (%2): %3.")
                .arg(QString::number(index), range(size_t(count)), withoutTrack)};
}
} // namespace

IndexTarget IndexTargets::bone(const SkinnedMesh &mesh, int index)
{
    const QString title = boneTitle(mesh, index);
    if (title.isEmpty())
        return {
            Texts::tr("no such bone"), true,
            Texts::tr("The mesh has no bone %1 (%2).").arg(QString::number(index), range(mesh.nodes.size()))};
    const QString symbol = boneSymbolName(mesh, index);
    return {title, false, title.endsWith(symbol) ? QString() : title + QLatin1String(", ") + symbol};
}

IndexTarget IndexTargets::parentBone(const SkinnedMesh &mesh, int index)
{
    if (index == NoParent && !Records::element(mesh.nodes, index))
        return {Texts::tr("no parent"), false, {}};
    return bone(mesh, index);
}

IndexTarget IndexTargets::vertex(const SkinnedMesh &mesh, int index)
{
    return vertexOf(mesh.vertices, index);
}

IndexTarget IndexTargets::vertex(const StaticMesh &mesh, int index)
{
    return vertexOf(mesh.vertices, index);
}

IndexTarget IndexTargets::blockBone(const AnimBlock &block, const SkinnedMesh &mesh, int index)
{
    if (!Records::element(block.nodes, index))
        return {Texts::tr("no such bone"), true,
                Texts::tr("The animation has no bone %1 (%2).")
                    .arg(QString::number(index), range(block.nodes.size()))};
    if (mesh.nodes.size() == block.nodes.size())
        return bone(mesh, index);
    return {Texts::tr("%1 of %2 bones").arg(QString::number(index), QString::number(block.nodes.size())),
            false,
            Texts::tr("Open the mesh that the animation belongs to and the bone's name appears here.")};
}

IndexTarget IndexTargets::actionBone(const AnimBlock &block, const SkinnedMesh &mesh, int index)
{
    return index == None ? IndexTarget{Texts::tr("no bone"), false, {}} : blockBone(block, mesh, index);
}

IndexTarget IndexTargets::actionFrame(const AnimBlock &block, int index)
{
    if (index >= block.frameCount())
        return {Texts::tr("never happens"), true,
                Texts::tr("The animation has no frame %1 (%2).")
                    .arg(QString::number(index), range(block.frames.size()))};
    return {Texts::tr("%1 of %2 frames").arg(index).arg(block.frameCount()), false, {}};
}

IndexTarget IndexTargets::loopFrame(const AnimBlock &block, int index)
{
    if (index >= block.frameCount())
        return {Texts::tr("loops from frame 0"), false, {}};
    return {Texts::tr("%1 of %2 frames").arg(index).arg(block.frameCount()), false, {}};
}

IndexTarget IndexTargets::animation(const SkinnedMesh &mesh, int id)
{
    const QString name = animationName(mesh, id);
    return {name.isEmpty() ? Texts::tr("not in the table") : name, false, {}};
}

IndexTarget IndexTargets::translationTrack(const AnimBlock &block, int index)
{
    return track(block.translations.trackCount(), index, Texts::tr("keeps initial position"));
}

IndexTarget IndexTargets::rotationTrack(const AnimBlock &block, int index)
{
    return track(block.rotations.trackCount(), index, Texts::tr("keeps initial rotation"));
}

QString IndexTargets::triangleCorner(int entry)
{
    return Texts::tr("Triangle %1, corner %2 of 3").arg(entry / 3).arg(entry % 3 + 1);
}
