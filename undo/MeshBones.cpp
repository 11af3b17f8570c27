// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MeshBones.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace {
/// The byte of a parent cannot tell bones from here on from none.
constexpr size_t MostParents = 255;

struct SkeletonTexts
{
    Q_DECLARE_TR_FUNCTIONS(MeshBones)
};

QString rootStays()
{
    return SkeletonTexts::tr("Bone 0 stays where it is: every pose begins with it.");
}

QString tooManyToCount()
{
    return SkeletonTexts::tr(
        "The mesh has more than 255 bones, more than the file can name as parents: which numbers "
        "would have to follow cannot be told.");
}

/// What needs one of the bones that are to go; empty when nothing does.
QString needOf(const SkinnedMesh &mesh, const std::vector<bool> &goes)
{
    const auto isGoing = [&goes](int bone) { return size_t(bone) < goes.size() && goes[size_t(bone)]; };
    for (size_t b = 0; b < mesh.nodes.size(); ++b) {
        if (goes[b]) {
            for (const quint16 child : mesh.nodes[b].childNodes) {
                if (child < goes.size() && !goes[child])
                    return SkeletonTexts::tr(
                               "Bone %1 hangs on bone %2. Select it, too, or give it to another bone.")
                        .arg(child)
                        .arg(b);
            }
        } else if (isGoing(mesh.nodes[b].parentNode)) {
            return SkeletonTexts::tr(
                       "Bone %1 names bone %2 as its parent. Select it, too, or enter another one.")
                .arg(b)
                .arg(mesh.nodes[b].parentNode);
        }
    }
    std::vector<int> moved(goes.size());
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        if (isGoing(vertex.nodeIndex))
            ++moved[vertex.nodeIndex];
    }
    const auto bone = std::find_if(moved.begin(), moved.end(), [](int count) { return count > 0; });
    if (bone != moved.end())
        return SkeletonTexts::tr("Bone %1 moves vertices (%2). Give them to another bone first.")
            .arg(QString::number(bone - moved.begin()), QString::number(*bone));
    for (size_t h = 0; h < mesh.hotPoints.size(); ++h) {
        if (isGoing(mesh.hotPoints[h].nodeId))
            return SkeletonTexts::tr(
                       "Hot point %1 is on bone %2. Put it on another bone first, or remove it.")
                .arg(h)
                .arg(mesh.hotPoints[h].nodeId);
    }
    for (const int tracked : {mesh.headTrackStart, mesh.headTrackEnd}) {
        if (isGoing(tracked))
            return SkeletonTexts::tr(
                       "The head turns with bone %1. Enter other bones for that on the mesh's page first.")
                .arg(tracked);
    }
    return {};
}
} // namespace

MeshBones::MeshBones(const SkinnedMesh &mesh)
    : m_bones(mesh.nodes)
    , m_headTrackStart(mesh.headTrackStart)
    , m_headTrackEnd(mesh.headTrackEnd)
{
    for (const SkinnedMeshHotPoint &point : mesh.hotPoints)
        m_hotPointBones.push_back(point.nodeId);
    m_vertexBones.reserve(mesh.vertices.size());
    for (const SkinnedMeshVertex &vertex : mesh.vertices)
        m_vertexBones.push_back(vertex.nodeIndex);
}

bool MeshBones::fits(const SkinnedMesh &mesh, const RecordIndex &) const
{
    return mesh.hotPoints.size() == m_hotPointBones.size() && mesh.vertices.size() == m_vertexBones.size();
}

void MeshBones::exchange(SkinnedMesh &mesh, const RecordIndex &)
{
    std::swap(m_bones, mesh.nodes);
    std::swap(m_headTrackStart, mesh.headTrackStart);
    std::swap(m_headTrackEnd, mesh.headTrackEnd);
    for (size_t h = 0; h < m_hotPointBones.size(); ++h)
        std::swap(m_hotPointBones[h], mesh.hotPoints[h].nodeId);
    for (size_t v = 0; v < m_vertexBones.size(); ++v)
        std::swap(m_vertexBones[v], mesh.vertices[v].nodeIndex);
}

/// Gives all that name a bone the number that it has in `numbers`, by its old one; m_bones is the new list
/// already. A number that named no bone keeps doing so, else there is a reason why it cannot be.
QString MeshBones::renumber(const std::vector<int> &numbers)
{
    int woken = -1;
    const auto follow = [&](auto &number) {
        if (number < numbers.size())
            number = std::decay_t<decltype(number)>(numbers[number]);
        else if (number < m_bones.size())
            woken = number;
    };
    for (SkinnedMeshNode &bone : m_bones) {
        follow(bone.parentNode);
        std::for_each(bone.childNodes.begin(), bone.childNodes.end(), follow);
    }
    follow(m_headTrackStart);
    follow(m_headTrackEnd);
    std::for_each(m_hotPointBones.begin(), m_hotPointBones.end(), follow);
    std::for_each(m_vertexBones.begin(), m_vertexBones.end(), follow);
    if (woken < 0)
        return {};
    return SkeletonTexts::tr(
               "Something in the mesh names bone %1, which does not exist, but would then. Correct that "
               "first; it is among the problems.")
        .arg(woken);
}

MeshBonesEdit MeshBones::with(const SkinnedMesh &mesh, int at, const std::vector<NewBone> &added)
{
    const int count = int(mesh.nodes.size());
    const int more = int(added.size());
    if (size_t(count + more) > MostBones)
        return {{},
                SkeletonTexts::tr("The game poses %1 bones at most; the mesh would have %2.")
                    .arg(MostBones)
                    .arg(count + more),
                {}};
    if (at == 0 && count > 0)
        return {{}, rootStays(), {}};
    std::vector<int> numbers(static_cast<size_t>(count));
    for (int b = 0; b < count; ++b)
        numbers[size_t(b)] = b < at ? b : b + more;
    MeshBones made(mesh);
    MeshBonesEdit edit;
    // First what is there, then what comes in with the numbers of then.
    made.m_bones.insert(made.m_bones.begin() + at, added.size(), SkinnedMeshNode());
    edit.refusal = made.renumber(numbers);
    if (!edit.refusal.isEmpty())
        return edit;
    for (int i = 0; i < more; ++i) {
        const NewBone &fresh = added[size_t(i)];
        const int parent = fresh.parent >= 0 ? numbers[size_t(fresh.parent)] : at - 1 - fresh.parent;
        SkinnedMeshNode &bone = made.m_bones[size_t(at + i)];
        const std::vector<quint16> children = std::move(bone.childNodes); // some may have come in before
        bone = fresh.bone;
        bone.childNodes = children;
        bone.parentNode = quint8(parent);
        made.m_bones[size_t(parent)].childNodes.push_back(quint16(at + i));
        edit.bones.append(at + i);
    }
    edit.skeleton = std::move(made);
    return edit;
}

MeshBonesEdit MeshBones::without(const SkinnedMesh &mesh, const QVector<int> &bones)
{
    if (mesh.nodes.size() > MostParents)
        return {{}, tooManyToCount(), {}};
    if (bones.contains(0))
        return {{}, rootStays(), {}};
    std::vector<bool> goes(mesh.nodes.size());
    for (const int bone : bones)
        goes[size_t(bone)] = true;
    const QString need = needOf(mesh, goes);
    if (!need.isEmpty())
        return {{}, need, {}};
    MeshBones made(mesh);
    made.m_bones.clear();
    std::vector<int> numbers(mesh.nodes.size());
    for (size_t b = 0; b < goes.size(); ++b) {
        numbers[b] = int(made.m_bones.size());
        if (goes[b])
            continue;
        made.m_bones.push_back(mesh.nodes[b]);
        std::vector<quint16> &children = made.m_bones.back().childNodes;
        children.erase(std::remove_if(children.begin(), children.end(),
                                      [&goes](quint16 child) { return child < goes.size() && goes[child]; }),
                       children.end());
    }
    // Only numbers beyond the list are refused, and it has become shorter.
    Q_UNUSED(made.renumber(numbers));
    return {std::move(made), {}, {}};
}

MeshBonesEdit MeshBones::moved(const SkinnedMesh &mesh, const QVector<int> &bones, int by)
{
    if (bones.isEmpty() || bones.first() + by < 0 || bones.last() + by >= int(mesh.nodes.size()))
        return {};
    if (mesh.nodes.size() > MostParents)
        return {{}, tooManyToCount(), {}};
    if (bones.first() == 0 || bones.first() + by == 0)
        return {{}, rootStays(), {}};
    // By place the number that the bone there had; those in front go first, so that none has to pass another.
    std::vector<int> places(mesh.nodes.size());
    std::iota(places.begin(), places.end(), 0);
    MeshBonesEdit edit;
    for (int i = 0; i < bones.size(); ++i) {
        const int bone = bones.at(by > 0 ? bones.size() - 1 - i : i);
        std::swap(places[size_t(bone)], places[size_t(bone + by)]);
        edit.bones.append(bones.at(i) + by);
    }
    MeshBones made(mesh);
    std::vector<int> numbers(places.size());
    for (size_t place = 0; place < places.size(); ++place) {
        made.m_bones[place] = mesh.nodes[size_t(places[place])];
        numbers[size_t(places[place])] = int(place);
    }
    Q_UNUSED(made.renumber(numbers)); // as many as before
    edit.skeleton = std::move(made);
    return edit;
}
