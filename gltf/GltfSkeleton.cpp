// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfSkeleton.h"

#include "AnimFile.h"
#include "ExportNames.h"
#include "GltfExtras.h"
#include "GltfNumbers.h"
#include "GltfWriter.h"
#include "ModelNames.h"
#include "Pose.h"
#include "SkinnedMesh.h"

#include <algorithm>

namespace {
// As near to 1 as the square of a unit quaternion's length comes in single precision.
constexpr double UnitQuaternionTolerance = 4e-7;

QJsonObject jointNode(const QString &name, const GltfLocal &local, const std::vector<int> &children,
                      const QJsonObject &extras)
{
    QJsonObject node{{QStringLiteral("name"), name}, {QStringLiteral("extras"), extras}};
    const GltfLocal none;
    if (local.translation != none.translation)
        node.insert(QStringLiteral("translation"), gltfNumbers(local.translation));
    if (local.rotation != none.rotation)
        node.insert(QStringLiteral("rotation"), gltfNumbers(local.rotation));
    if (!children.empty())
        node.insert(QStringLiteral("children"), gltfIndexes(children));
    return node;
}

QString numbered(const char *kind, int number)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(kind)).arg(number, 3, 10, QLatin1Char('0'));
}

/// "bone_012 head".
QString jointName(int bone, const ModelNames &names)
{
    const QString name = bareBoneName(names.bones.value(bone));
    const QString number = numbered("bone", bone);
    return name.isEmpty() || name == number ? number : number + QLatin1Char(' ') + name;
}
} // namespace

Rigid GltfLocal::rigid() const
{
    return Rigid::from({translation[0], translation[1], translation[2]},
                       {rotation[3], rotation[0], rotation[1], rotation[2]});
}

std::array<float, 4> unitQuaternion(const QVector4D &xyzw)
{
    const std::array<double, 4> parts{double(xyzw.x()), double(xyzw.y()), double(xyzw.z()), double(xyzw.w())};
    double squared = 0.0;
    for (const double part : parts)
        squared += part * part;
    if (!(squared > 0.0) || !std::isfinite(squared))
        return GltfLocal().rotation;
    if (std::fabs(squared - 1.0) <= UnitQuaternionTolerance)
        return {xyzw.x(), xyzw.y(), xyzw.z(), xyzw.w()};
    std::array<float, 4> unit{};
    for (size_t i = 0; i < 4; ++i)
        unit[i] = float(parts[i] / std::sqrt(squared));
    return unit;
}

std::array<float, 3> finiteVector(const QVector3D &vector)
{
    std::array<float, 3> parts{vector.x(), vector.y(), vector.z()};
    for (float &part : parts)
        part = std::isfinite(part) ? part : 0.0f;
    return parts;
}

GltfSkeleton::GltfSkeleton(const SkinnedMesh &mesh, const AnimBlock *rest)
    : bones(mesh.nodes.size())
{
    const std::vector<int> parents = PoseEvaluator().parents(mesh);
    std::vector<bool> isPlaced(bones.size(), false);
    for (size_t i = 0; i < bones.size(); ++i) {
        Bone &bone = bones[i];
        bone.isReached = parents[i] != PoseEvaluator::NotReached;
        bone.parent = parents[i] >= 0 ? parents[i] : -1;
        if (bone.isReached && rest && i < rest->nodes.size()) {
            bone.local = {finiteVector(rest->nodes[i].initialPosition),
                          unitQuaternion(rest->nodes[i].initialRotation)};
        }
    }
    // Parents may come after their children.
    std::vector<size_t> chain;
    for (size_t i = 0; i < bones.size(); ++i) {
        for (int at = int(i); at >= 0 && !isPlaced[size_t(at)]; at = bones[size_t(at)].parent)
            chain.push_back(size_t(at));
        for (; !chain.empty(); chain.pop_back()) {
            Bone &bone = bones[chain.back()];
            bone.rest =
                bone.parent < 0 ? bone.local.rigid() : bones[size_t(bone.parent)].rest * bone.local.rigid();
            isPlaced[chain.back()] = true;
        }
    }
}

std::vector<int> GltfSkeleton::addNodes(GltfWriter &writer, const SkinnedMesh &mesh, const ModelNames &names,
                                        bool turns)
{
    const int first = writer.count("nodes");
    std::vector<std::vector<int>> children(bones.size());
    std::vector<int> unowned;
    for (size_t i = 0; i < bones.size(); ++i) {
        bones[i].node = first + int(i);
        (bones[i].parent < 0 ? unowned : children[size_t(bones[i].parent)]).push_back(bones[i].node);
    }
    const int firstPoint = first + int(bones.size());
    for (size_t i = 0; i < mesh.hotPoints.size(); ++i) {
        const size_t bone = mesh.hotPoints[i].nodeId;
        (bone < bones.size() ? children[bone] : unowned).push_back(firstPoint + int(i));
    }

    for (size_t i = 0; i < bones.size(); ++i) {
        const Bone &bone = bones[i];
        const GltfExtras::Bone record{int(i), mesh.nodes[i], bone.parent, bone.rest.position(),
                                      bone.rest.turn()};
        writer.append("nodes", jointNode(jointName(int(i), names), bone.local, children[i],
                                         GltfExtras::extras(record)));
    }
    for (size_t i = 0; i < mesh.hotPoints.size(); ++i) {
        const GltfExtras::HotPoint record{int(i), mesh.hotPoints[i]};
        const GltfLocal place{finiteVector(record.record.origin), GltfLocal().rotation};
        writer.append("nodes",
                      jointNode(numbered("hotpoint", int(i)), place, {}, GltfExtras::extras(record)));
    }
    if (!turns)
        return unowned;
    yawNode = writer.append(
        "nodes", jointNode(QStringLiteral("yaw"), {}, unowned, GltfExtras::extras(GltfExtras::Yaw())));
    return {yawNode};
}

std::vector<Rigid> GltfSkeleton::hotPointRests(const SkinnedMesh &mesh) const
{
    std::vector<Rigid> rests;
    for (const SkinnedMeshHotPoint &point : mesh.hotPoints) {
        const Rigid place = GltfLocal{finiteVector(point.origin), GltfLocal().rotation}.rigid();
        rests.push_back(point.nodeId < bones.size() ? bones[point.nodeId].rest * place : place);
    }
    return rests;
}

std::vector<float> GltfSkeleton::inverseBinds(const SkinnedMesh &mesh) const
{
    std::vector<Rigid> rests;
    for (const Bone &bone : bones)
        rests.push_back(bone.rest);
    for (const Rigid &rest : hotPointRests(mesh))
        rests.push_back(rest);
    if (yawNode >= 0)
        rests.emplace_back();
    std::vector<float> numbers;
    for (const Rigid &rest : rests) {
        const Rigid back = rest.inverse();
        for (const Rigid::Vector &axis :
             {Rigid::Vector{1.0, 0.0, 0.0}, Rigid::Vector{0.0, 1.0, 0.0}, Rigid::Vector{0.0, 0.0, 1.0}}) {
            for (const double part : back.rotated(axis))
                numbers.push_back(float(part));
            numbers.push_back(0.0f);
        }
        for (const double part : back.translation)
            numbers.push_back(float(part));
        numbers.push_back(1.0f);
    }
    return numbers;
}
