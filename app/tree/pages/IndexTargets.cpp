// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexTargets.h"

#include "EventArguments.h"
#include "ModelNames.h"
#include "NameTables.h"
#include "Records.h"

#include <QCoreApplication>

namespace {
constexpr double StoredDamage = 256.0; ///< of one damage
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

IndexTarget boneTarget(const SkinnedMesh &mesh, int index)
{
    const QString title = boneTitle(mesh, index);
    if (title.isEmpty())
        return {
            Texts::tr("no such bone"), true,
            Texts::tr("The mesh has no bone %1 (%2).").arg(QString::number(index), range(mesh.nodes.size()))};
    const QString symbol = boneSymbolName(mesh, index);
    return {title, false, title.endsWith(symbol) ? QString() : title + QLatin1String(", ") + symbol};
}
} // namespace

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
        return boneTarget(mesh, index);
    return {Texts::tr("%1 of %2 bones").arg(QString::number(index), QString::number(block.nodes.size())),
            false,
            Texts::tr("Open the mesh that the animation belongs to and the bone's name appears here.")};
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

IndexTarget IndexTargets::named(QLatin1String question, const QString &name, double number)
{
    if (question.isNull())
        return {};
    if (question == Question::Damage)
        return {Texts::tr("%1 damage").arg(number / StoredDamage), false, {}};
    if (name.isEmpty())
        return {Texts::tr("not in the table"), false, {}, true};
    return {name, false, {}};
}

IndexTarget IndexTargets::boneOf(Naming naming, const SkinnedMesh &model, const RecordIndex &,
                                 const SkinnedMesh *, int number)
{
    if (naming == Naming::ParentBone && number == NoParentBone && !Records::element(model.nodes, number))
        return {Texts::tr("no parent"), false, {}};
    return boneTarget(model, number);
}

IndexTarget IndexTargets::boneOf(Naming, const AnimFile &model, const RecordIndex &index,
                                 const SkinnedMesh *mesh, int number)
{
    if (number == NoActionBone)
        return {Texts::tr("no bone"), false, {}};
    static const SkinnedMesh none;
    const AnimBlock *block = Records::Block::find(model, index);
    return block ? blockBone(*block, mesh ? *mesh : none, number) : IndexTarget();
}

IndexTarget IndexTargets::differing(const IndexTarget &shown)
{
    return {Texts::tr("values differ"), false,
            Texts::tr("%1; not so in all selected records").arg(shown.text), true};
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
