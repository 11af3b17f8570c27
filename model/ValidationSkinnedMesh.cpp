// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialFaults.h"
#include "ReferenceIds.h"
#include "Transform.h"
#include "ValidationParts.h"

using namespace Validation;

namespace {
/// What the byte that names a parent holds for "none".
constexpr quint8 NoParent = 255;
/// The bones that the skin shader holds.
constexpr size_t BoneLimit = 128;

/// The hierarchy as a pose follows it: from bone 0 through the child lists, each bone once. Every list is
/// walked backwards, which poses a bone that is listed twice by its last entry; see PoseEvaluator.
class Hierarchy
{
public:
    Hierarchy(FindingCollector &found, const SkinnedMesh &mesh)
        : m_found(found)
        , m_mesh(mesh)
        , m_bones(mesh.nodes.size())
    {}

    void check()
    {
        checkEntries();
        walk(0);
        for (Bone &bone : m_bones)
            bone.reached = bone.visited;
        // What cannot be reached is told of once, by its topmost bone; a circle has none.
        for (const bool inCircles : {false, true}) {
            for (size_t b = 1; b < m_bones.size(); ++b) {
                if (m_bones[b].visited || (!inCircles && m_bones[b].entries > 0))
                    continue;
                addUnreachable(b, !inCircles);
                walk(b);
            }
        }
        for (size_t b = 0; b < m_bones.size(); ++b)
            checkParent(b);
    }

private:
    static constexpr size_t None = ~size_t(0);

    struct Bone
    {
        size_t entries = 0;         ///< of child lists that name it
        size_t entriesOfParent = 0; ///< those of the bone that it names as its parent
        size_t above = None;        ///< the bone whose list it was reached through
        size_t aboveEntry = 0;      ///< and the entry
        size_t left = 0;            ///< entries of its own list that are still to be walked
        bool visited = false;
        bool onPath = false;
        bool reached = false; ///< from bone 0
    };

    void checkEntries()
    {
        for (size_t b = 0; b < m_bones.size(); ++b) {
            const std::vector<quint16> &children = m_mesh.nodes[b].childNodes;
            for (size_t i = 0; i < children.size(); ++i) {
                const quint16 child = children[i];
                if (child < m_bones.size()) {
                    ++m_bones[child].entries;
                    m_bones[child].entriesOfParent += m_mesh.nodes[child].parentNode == b;
                    continue;
                }
                m_found.add(Rule::ChildBoneOutOfRange, entry(b, i), true, [&] {
                    return Texts::tr("Child %1 of bone %2 is bone %3, which does not exist (%4). The view "
                                     "leaves it out; the game may crash. Fixing it removes the entry.")
                        .arg(number(i), number(b), number(child), range(m_bones.size()));
                });
            }
        }
    }

    void enter(size_t b, size_t above, size_t aboveEntry)
    {
        Bone &bone = m_bones[b];
        bone.visited = bone.onPath = true;
        bone.above = above;
        bone.aboveEntry = aboveEntry;
        bone.left = m_mesh.nodes[b].childNodes.size();
        m_path.push_back(b);
    }

    void walk(size_t top)
    {
        enter(top, None, 0);
        while (!m_path.empty()) {
            const size_t b = m_path.back();
            if (m_bones[b].left == 0) {
                m_bones[b].onPath = false;
                m_path.pop_back();
                continue;
            }
            const size_t i = --m_bones[b].left;
            const size_t child = m_mesh.nodes[b].childNodes[i];
            if (child >= m_bones.size())
                continue;
            if (!m_bones[child].visited) {
                enter(child, b, i);
            } else if (m_bones[child].onPath) {
                m_found.add(Rule::BoneCycle, entry(b, i), true, [&] {
                    const QString text =
                        child == b ? Texts::tr("Bone %1 lists itself as a child.").arg(b)
                                   : Texts::tr("Bone %1 lists bone %2 as a child, but hangs on it itself.")
                                         .arg(b)
                                         .arg(child);
                    return text + QLatin1Char(' ') +
                           Texts::tr("The hierarchy goes in a circle: the view ignores the entry; the game "
                                     "may hang. Fixing it removes the entry.");
                });
            } else {
                addListedTwice(b, i, child);
            }
        }
    }

    /// A bone that was reached already is listed once more. The entry too many is this one, unless just this
    /// one is in the list of the bone that the child itself names.
    void addListedTwice(size_t b, size_t i, size_t child)
    {
        const Bone &bone = m_bones[child];
        const bool isParents = bone.entriesOfParent == 1 && m_mesh.nodes[child].parentNode == b;
        const size_t surplus = isParents ? bone.above : b;
        m_found.add(Rule::BoneListedTwice, entry(surplus, isParents ? bone.aboveEntry : i), true, [&] {
            return Texts::tr(
                       "Bone %1 lists bone %2 as a child, which another entry lists too, but a bone can "
                       "move with one parent only. Fixing it removes this entry.")
                .arg(surplus)
                .arg(child);
        });
    }

    void addUnreachable(size_t b, bool isTop)
    {
        const size_t parent = m_mesh.nodes[b].parentNode;
        const bool repairable = isTop && parent < m_bones.size() && m_bones[parent].reached;
        m_found.add(Rule::BoneUnreachable, {RecordKind::Bone, {int(b), 0, 0}}, repairable, [&] {
            const QString text = Texts::tr("No chain of child lists leads from bone 0 to bone %1, so neither "
                                           "it nor what hangs on it follows any animation.")
                                     .arg(b);
            const QString mend =
                repairable
                    ? Texts::tr("Its parent is bone %1: fixing it adds it to that bone's list.").arg(parent)
                    : Texts::tr("Name it in the child list of the bone that it belongs to.");
            return text + QLatin1Char(' ') + mend;
        });
    }

    void checkParent(size_t b)
    {
        const Bone &bone = m_bones[b];
        const size_t named = m_mesh.nodes[b].parentNode;
        const size_t above = bone.above;
        // Which of several bones is the parent is another rule's matter.
        const bool repairable = b == 0 || (bone.reached && bone.entries == 1);
        const RecordRef place{RecordKind::Bone, {int(b), 0, 0}};
        if (named >= m_bones.size() && named != NoParent) {
            m_found.add(Rule::ParentBoneOutOfRange, place, repairable, [&] {
                return Texts::tr("The parent of bone %1 is bone %2, which does not exist (%3). The view goes "
                                 "by the child lists; the game may not. %4")
                    .arg(number(b), number(named), range(m_bones.size()), mend(above, repairable));
            });
            return;
        }
        if (!repairable || isNamed(b, named, above))
            return;
        m_found.add(Rule::ParentBoneMismatch, place, true, [&] {
            const QString says =
                named == NoParent ? Texts::tr("no parent") : Texts::tr("bone %1 as its parent").arg(named);
            const QString lists = b == 0 ? Texts::tr("every model begins with bone 0")
                                         : Texts::tr("bone %1 lists it as a child").arg(above);
            return Texts::tr(
                       "Bone %1 names %2, but %3. The view goes by the child lists; the game may not. %4")
                .arg(number(b), says, lists, mend(above, true));
        });
    }

    /// Whether a bone's parent byte says what the child lists say. It cannot name bones beyond 255, and
    /// wraps.
    static bool isNamed(size_t b, size_t named, size_t above)
    {
        if (b == 0)
            return named == NoParent || named == 0;
        return named == quint8(above) || (above >= NoParent && named == NoParent);
    }

    static QString mend(size_t above, bool repairable)
    {
        if (!repairable)
            return Texts::tr("Enter its parent, or 255 for none.");
        return above == None ? Texts::tr("Fixing it sets the parent to 255: none.")
                             : Texts::tr("Fixing it sets the parent to %1.").arg(quint8(above));
    }

    static RecordRef entry(size_t bone, size_t i) { return {RecordKind::ChildBone, {int(bone), int(i), 0}}; }

    FindingCollector &m_found;
    const SkinnedMesh &m_mesh;
    std::vector<Bone> m_bones;
    std::vector<size_t> m_path;
};

void checkHeadTrack(FindingCollector &found, const SkinnedMesh &mesh)
{
    const size_t bones = mesh.nodes.size();
    if (mesh.headTrackStart < bones && mesh.headTrackEnd < bones)
        return;
    found.add(Rule::HeadTrackOutOfRange, {RecordKind::SkinnedMesh, {}}, [&] {
        return Texts::tr(
                   "The head track goes from bone %1 to bone %2, which do not both exist (%3): the head "
                   "cannot be turned. Enter the bones that it turns with.")
            .arg(number(mesh.headTrackStart), number(mesh.headTrackEnd), range(bones));
    });
}

void checkBones(FindingCollector &found, const SkinnedMesh &mesh)
{
    const size_t bones = mesh.nodes.size();
    if (bones > BoneLimit) {
        found.add(Rule::TooManyBones, {RecordKind::SkinnedMesh, {}}, [&] {
            return Texts::tr("The mesh has %1 bones, but at most %2 can be posed: what belongs to the others "
                             "is drawn with the wrong one. Leave bones out when you import the model again.")
                .arg(number(bones), number(BoneLimit));
        });
    }
    Hierarchy(found, mesh).check();
    checkHeadTrack(found, mesh);
    for (size_t h = 0; h < mesh.hotPoints.size(); ++h) {
        const SkinnedMeshHotPoint &point = mesh.hotPoints[h];
        if (point.nodeId < bones)
            continue;
        found.add(Rule::HotPointBoneOutOfRange, {RecordKind::HotPoint, {int(h), 0, 0}}, [&] {
            return Texts::tr("Hot point %1 is on bone %2, which does not exist (%3): it has no place in the "
                             "game. Enter the bone that it belongs to, or remove it.")
                .arg(number(h), number(point.nodeId), range(bones));
        });
    }
    for (size_t v = 0; v < mesh.vertices.size(); ++v) {
        const SkinnedMeshVertex &vertex = mesh.vertices[v];
        if (vertex.nodeIndex < bones)
            continue;
        found.add(Rule::VertexBoneOutOfRange, {RecordKind::SkinnedVertex, {int(v), 0, 0}}, [&] {
            return Texts::tr("Vertex %1 belongs to bone %2, which does not exist (%3): it stays behind when "
                             "the model moves, and the game may crash. Enter the bone that moves it.")
                .arg(number(v), number(vertex.nodeIndex), range(bones));
        });
    }
}

void checkIds(FindingCollector &found, const SkinnedMesh &mesh, const ReferenceIds &ids)
{
    for (size_t b = 0; b < mesh.nodes.size(); ++b) {
        const int type = mesh.nodes[b].impactType;
        if (ids.knows(ReferenceKind::Impacts, type))
            continue;
        found.add(Rule::ImpactTypeUnknown, {RecordKind::Bone, {int(b), 0, 0}}, [&] {
            return Texts::tr(
                       "Bone %1 has impact type %2, which the table of impact types does not have: hits "
                       "there look and sound like nothing. Enter one of the table.")
                .arg(number(b), number(type));
        });
    }
    constexpr int DealsDamage = 0xFFFF;
    const auto knows = [&ids](int particle) {
        // 65535 is -1 in 16 bits, which the table has.
        return ids.knows(ReferenceKind::Particles, particle) ||
               (particle == 0xFFFF && ids.knows(ReferenceKind::Particles, -1));
    };
    for (size_t h = 0; h < mesh.hotPoints.size(); ++h) {
        const SkinnedMeshHotPoint &point = mesh.hotPoints[h];
        // The second number of a hot point that deals damage is the damage.
        if (point.particleEffect1 == DealsDamage)
            continue;
        for (const int particle : {point.particleEffect1, point.particleEffect2}) {
            if (knows(particle))
                continue;
            found.add(Rule::ParticleUnknown, {RecordKind::HotPoint, {int(h), 0, 0}}, [&] {
                return Texts::tr(
                           "Hot point %1 spawns particle %2, which the table of particles does not have: "
                           "nothing is seen of it. Enter one of the table.")
                    .arg(number(h), number(particle));
            });
        }
    }
}

void checkBoxes(FindingCollector &found, const SkinnedMesh &mesh)
{
    if (isInverted(mesh.bbMin, mesh.bbMax))
        addInvertedBox(found, {RecordKind::SkinnedMesh, {}}, BoxRepair::InOrder);
    std::vector<std::optional<Box>> boxes;
    for (size_t b = 0; b < mesh.nodes.size(); ++b) {
        if (!isInverted(mesh.nodes[b].bbMin, mesh.nodes[b].bbMax))
            continue;
        if (boxes.empty())
            boxes = boneBoxes(mesh);
        addInvertedBox(found, {RecordKind::Bone, {int(b), 0, 0}}, aroundVertices(boxes[b].has_value()));
    }
}

void checkNumbers(FindingCollector &found, const SkinnedMesh &mesh)
{
    checkFinite(found, {RecordKind::SkinnedMesh, {}}, std::pair(Field::boundingBox, mesh.bbMin),
                std::pair(Field::boundingBox, mesh.bbMax));
    for (size_t b = 0; b < mesh.nodes.size(); ++b) {
        const SkinnedMeshNode &bone = mesh.nodes[b];
        checkFinite(found, {RecordKind::Bone, {int(b), 0, 0}}, std::pair(Field::boundingBox, bone.bbMin),
                    std::pair(Field::boundingBox, bone.bbMax),
                    std::pair(Field::damageScale, bone.damageScale));
    }
    for (size_t h = 0; h < mesh.hotPoints.size(); ++h)
        checkFinite(found, {RecordKind::HotPoint, {int(h), 0, 0}},
                    std::pair(Field::origin, mesh.hotPoints[h].origin));
}

void check(FindingCollector &found, const SkinnedMesh &mesh)
{
    if (mesh.nodes.empty()) {
        found.add(Rule::NoBones, {RecordKind::SkinnedMesh, {}}, [] {
            return Texts::tr(
                "The mesh has no bones: nothing can be posed, and it cannot be saved. Import the "
                "model again; one without a skeleton then gets one bone.");
        });
    } else {
        checkBones(found, mesh);
    }
    checkNumbers(found, mesh);
    checkBoxes(found, mesh);
    checkTriangles(found, mesh, RecordKind::SkinnedSurface, RecordKind::SkinnedTriangleIndex,
                   SkinnedMesh::IndexTerminator);
    checkVertices(found, mesh, RecordKind::SkinnedVertex);
    checkTexts(found, materialPaths(mesh), RecordKind::SkinnedSurface);
}
} // namespace

std::vector<Finding> validate(const SkinnedMesh &mesh, const MaterialFolders &folders,
                              const ReferenceIds &ids, int listed)
{
    MaterialFaults materials(folders);
    return validate(mesh, materials, ids, listed);
}

std::vector<Finding> validate(const SkinnedMesh &mesh, MaterialFaults &materials, const ReferenceIds &ids,
                              int listed)
{
    FindingCollector found(listed);
    check(found, mesh);
    checkIds(found, mesh, ids);
    checkEnd(found, {RecordKind::SkinnedMesh, {}}, mesh.bytesBehind);
    checkMaterials(found, materialPaths(mesh), RecordKind::SkinnedSurface, materials);
    return found.take();
}

std::vector<RecordRef> repairablePlaces(Rule rule, const SkinnedMesh &mesh, int most)
{
    FindingCollector found(rule, most);
    check(found, mesh);
    return found.takePlaces();
}
