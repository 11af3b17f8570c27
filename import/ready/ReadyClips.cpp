// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyClips.h"

#include "ExportNames.h"
#include "Transform.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {
constexpr double LeastRate = 1.0; // the game plays nothing slower
constexpr double GreatestRate = 240.0;
/// Actions name their frame with 16 bits, of which the last value is no frame.
constexpr int FrameLimit = 65535;
/// Bones times frames of all clips together: some 500 MB at most while they are made.
constexpr qint64 PoseLimit = 16'000'000;
/// The same where movements are only looked at; of longer clips only every n-th frame is.
constexpr qint64 SeenPoseLimit = 2'000'000;
constexpr quint16 BlendLength = 5;
constexpr quint16 NoTrack = 0xFFFF;
constexpr quint16 NoLoop = 0xFFFF;
/// Of the model's size: what closer ends of a clip differ by, nobody sees.
constexpr double LoopTolerance = 0.01;
/// Of the model's size, and of a quaternion's elements: what is within stands still. Single precision in a
/// file leaves some 1e-7, and a chain of bones some times that.
constexpr double PlaceTolerance = 2e-6;
constexpr double TurnTolerance = 2e-6;
constexpr double StretchTolerance = 0.005; // of a bone's size: what nobody sees

double greatestSide(const Box &box)
{
    const QVector3D size = box.max - box.min;
    return double(std::max({size.x(), size.y(), size.z()}));
}

/// The turn that leads from one to the other.
Turn difference(Turn from, const Turn &to)
{
    return from.Conjugate() * to;
}

/// The tracks of a table, each once.
template <typename Key>
class TrackCollector
{
public:
    /// The number of a track with these keys.
    quint16 add(const std::vector<Key> &keys)
    {
        const QByteArray bytes(reinterpret_cast<const char *>(keys.data()), int(keys.size() * sizeof(Key)));
        const auto known = m_numbers.constFind(bytes);
        if (known != m_numbers.constEnd())
            return *known;
        const auto number = quint16(m_tracks.size());
        m_numbers.insert(bytes, number);
        m_tracks.push_back(keys);
        return number;
    }

    TrackTable<Key> table(int frames) const
    {
        TrackTable<Key> table(int(m_tracks.size()), frames);
        for (size_t t = 0; t < m_tracks.size(); ++t)
            std::copy(m_tracks[t].begin(), m_tracks[t].end(), &table.at(int(t), 0));
        return table;
    }

private:
    std::vector<std::vector<Key>> m_tracks;
    QHash<QByteArray, quint16> m_numbers;
};

/// A block in which nothing moves.
AnimBlock restBlock(const SkeletonPose &rest, int frames)
{
    AnimBlock block;
    for (const RigidFrame &frame : rest.local) {
        AnimNode &node = block.nodes.emplace_back();
        node.initialPosition = single(frame.origin);
        node.initialRotation = single(frame.turn);
    }
    block.blendLength = BlendLength;
    block.blendEnd = quint16(frames - 1);
    block.setFrameCount(frames);
    return block;
}

/// How far apart both poses have any vertex.
double greatestDistance(const SkinnedMesh &mesh, const SkeletonPose &a, const SkeletonPose &b)
{
    double greatest = 0.0;
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        const Vector3 point(double(vertex.position.x()), double(vertex.position.y()),
                            double(vertex.position.z()));
        const Vector3 apart = a.world[vertex.nodeIndex].map(point) - b.world[vertex.nodeIndex].map(point);
        greatest = std::max(greatest, apart.Length());
    }
    return greatest;
}
} // namespace

ReadyClips::ReadyClips(const SceneSource &source, const SceneNodes &nodes, const ReadyChoices &choices)
    : m_source(source)
    , m_nodes(nodes)
    , m_choices(choices)
{
    const auto count = qint32(source.scene->mNumAnimations);
    for (qint32 i = 0; i < count; ++i)
        m_clips.emplace_back(nodes, *source.scene->mAnimations[i]);
    std::vector<ReadyClip> chosen = choices.clips;
    if (choices.allClips) {
        chosen.clear();
        for (qint32 i = 0; i < count; ++i)
            chosen.push_back({i, ReadyClip::Loop::WhereItCloses});
    }
    for (const ReadyClip &clip : chosen) {
        if (clip.clip < 0 || clip.clip >= count) {
            source.messages.addWarning(QCoreApplication::translate("Import", "%1 has no animation %2")
                                           .arg(source.modelPath, QString::number(clip.clip)));
            continue;
        }
        const double rate = rateOf(m_clips[size_t(clip.clip)]);
        m_taken.push_back(
            {clip, text(source.scene->mAnimations[clip.clip]->mName), 0, rate, frameCount(clip.clip, rate)});
    }
    number();
}

/// An id stands in brackets, or is the next that no other clip has.
void ReadyClips::number()
{
    QSet<qint32> used;
    std::vector<bool> hasId;
    for (Taken &clip : m_taken) {
        const std::optional<qint32> id = bracketedId(clip.name);
        hasId.push_back(id && !used.contains(*id));
        if (hasId.back()) {
            clip.id = *id;
            used.insert(*id);
        }
    }
    qint32 next = 0;
    for (size_t i = 0; i < m_taken.size(); ++i) {
        while (!hasId[i] && used.contains(next))
            ++next;
        if (!hasId[i])
            m_taken[i].id = next++;
    }
}

double ReadyClips::rateOf(const ClipSampler &clip) const
{
    double rate = m_choices.rate;
    if (rate == 0.0)
        rate = clip.ownRate();
    if (!(rate > 0.0))
        rate = ReadyChoices::UsualRate;
    return qBound(LeastRate, rate, GreatestRate);
}

int ReadyClips::frameCount(int clip, double rate) const
{
    const double frames = std::round(m_clips[size_t(clip)].length() * rate) + 1.0;
    if (frames <= double(FrameLimit))
        return int(frames);
    warnOfCut(clip, FrameLimit);
    return FrameLimit;
}

void ReadyClips::warnOfCut(int clip, int frames) const
{
    m_source.messages.addWarning(
        QCoreApplication::translate("Import", "%1 Animation %2 was cut to %3 frames")
            .arg(m_source.modelPath, QString::number(clip), QString::number(frames)));
}

std::vector<bool> ReadyClips::moved() const
{
    std::vector<bool> marks(size_t(m_nodes.count()));
    for (const ClipSampler &clip : m_clips)
        clip.markMoved(m_nodes, marks);
    return marks;
}

std::vector<Matrix4> ReadyClips::restWorld() const
{
    return m_nodes.worldPlaces(m_nodes.restPlaces(), std::vector<bool>(size_t(m_nodes.count()), true),
                               SceneNodes::toGame(m_choices));
}

qint64 ReadyClips::frames() const
{
    qint64 sum = 0;
    for (const Taken &taken : m_taken)
        sum += taken.frames;
    return sum;
}

void ReadyClips::eachPose(const ReadySkeleton &skeleton, const std::vector<bool> &wanted, int step,
                          const Look &look) const
{
    for (const Taken &taken : m_taken)
        eachPose(taken, skeleton, wanted, step, look);
}

void ReadyClips::eachPose(const Taken &taken, const ReadySkeleton &skeleton, const std::vector<bool> &wanted,
                          int step, const Look &look) const
{
    std::vector<Matrix4> places = m_nodes.restPlaces();
    SkeletonPose pose;
    // From the rest pose on, so that quaternions keep their signs and what is flattened its last rotation.
    const Matrix4 toGame = SceneNodes::toGame(m_choices);
    skeleton.pose(m_nodes.worldPlaces(places, wanted, toGame), pose);
    for (int frame = 0; frame < taken.frames; frame += step) {
        m_clips[size_t(taken.choice.clip)].place(frame / taken.rate, places);
        const std::vector<Matrix4> world = m_nodes.worldPlaces(places, wanted, toGame);
        skeleton.pose(world, pose);
        look(world, pose);
    }
}

std::vector<double> ReadyClips::movements(const ReadySkeleton &skeleton, const SceneParts &parts) const
{
    const size_t bones = size_t(skeleton.count());
    SkeletonPose rest;
    skeleton.pose(m_nodes.worldPlaces(m_nodes.restPlaces(), skeleton.wanted(), SceneNodes::toGame(m_choices)),
                  rest);
    // How far from a bone's origin vertices are that go with it or with one below it.
    std::vector<double> reach(bones);
    std::optional<Box> box;
    parts.eachRestPlace([&](int node, const Vector3 &place) {
        widen(box, single(place));
        for (int bone = skeleton.boneOf(node); bone != SceneNodes::None; bone = skeleton.parent(bone)) {
            double &most = reach[size_t(bone)];
            most = std::max(most, (place - rest.world[size_t(bone)].origin).Length());
        }
    });
    const double size = box && greatestSide(*box) > 0.0 ? greatestSide(*box) : 1.0;
    std::vector<double> movements(bones);
    const int step = int(frames() * qint64(bones) / SeenPoseLimit) + 1;
    eachPose(skeleton, skeleton.wanted(), step, [&](const std::vector<Matrix4> &, const SkeletonPose &pose) {
        for (size_t b = 0; b < bones; ++b) {
            const Turn apart = difference(pose.local[b].turn, rest.local[b].turn);
            // The chord of twice the angle whose half's sine stands in a quaternion.
            const double turned = 2.0 * Vector3(apart.x, apart.y, apart.z).Length() * reach[b];
            const double shifted = (pose.local[b].origin - rest.local[b].origin).Length();
            movements[b] = std::max(movements[b], (turned + shifted) / size);
        }
    });
    return movements;
}

qint64 ReadyClips::addBlocks(const ReadySkeleton &skeleton, const SkeletonPose &rest, const SkinnedMesh &mesh,
                             AnimFile &file, ModelNames &names) const
{
    if (m_taken.empty() && mesh.nodes.size() > 1) {
        file.blocks.push_back(restBlock(rest, 1));
        file.blocks.back().speed = float(ReadyChoices::UsualRate);
        return 0;
    }
    qint64 framesLeft = PoseLimit / qint64(mesh.nodes.size());
    std::vector<bool> isStretched(mesh.nodes.size());
    for (Taken taken : m_taken) {
        if (taken.frames > framesLeft) {
            taken.frames = int(framesLeft);
            warnOfCut(taken.choice.clip, taken.frames);
        }
        framesLeft -= taken.frames;
        if (taken.frames == 0)
            continue;
        file.blocks.push_back(makeBlock(taken, skeleton, rest, mesh, isStretched));
        const QString name = bareClipName(taken.name);
        if (!name.isEmpty())
            names.animations.insert(taken.id, name);
    }
    return std::count(isStretched.begin(), isStretched.end(), true);
}

AnimBlock ReadyClips::makeBlock(const Taken &taken, const ReadySkeleton &skeleton, const SkeletonPose &rest,
                                const SkinnedMesh &mesh, std::vector<bool> &isStretched) const
{
    const size_t bones = mesh.nodes.size();
    const double size = greatestSide({mesh.bbMin, mesh.bbMax});
    std::vector<std::vector<QVector3D>> places(bones);
    std::vector<std::vector<QVector4D>> turns(bones);
    std::vector<bool> isShifted(bones);
    std::vector<bool> isTurned(bones);
    SkeletonPose first;
    SkeletonPose last;
    eachPose(taken, skeleton, skeleton.wanted(), 1,
             [&](const std::vector<Matrix4> &, const SkeletonPose &pose) {
                 for (size_t b = 0; b < bones; ++b) {
                     const RigidFrame &local = pose.local[b];
                     places[b].push_back(single(local.origin));
                     turns[b].push_back(single(local.turn));
                     if ((local.origin - rest.local[b].origin).Length() > size * PlaceTolerance)
                         isShifted[b] = true;
                     if (!local.turn.Equal(rest.local[b].turn, TurnTolerance))
                         isTurned[b] = true;
                     if ((pose.sizes[b] - rest.sizes[b]).Length() > rest.sizes[b].Length() * StretchTolerance)
                         isStretched[b] = true;
                 }
                 if (first.world.empty())
                     first = pose;
                 last = pose;
             });
    // A block of one frame shows its initial pose, which is at rest. A clip that is one other pose is held
    // over two frames.
    const auto any = [](const std::vector<bool> &marks) {
        return std::find(marks.begin(), marks.end(), true) != marks.end();
    };
    const int frames = taken.frames == 1 && (any(isShifted) || any(isTurned)) ? 2 : taken.frames;
    AnimBlock block = restBlock(rest, frames);
    block.animId = taken.id;
    block.speed = float(taken.rate);
    const bool loops = taken.choice.loop == ReadyClip::Loop::Always ||
                       (taken.choice.loop == ReadyClip::Loop::WhereItCloses &&
                        greatestDistance(mesh, first, last) <= size * LoopTolerance);
    block.loopFrame = loops ? 0 : NoLoop;
    // What rests needs no track: without one a bone keeps its initial place or rotation.
    TrackCollector<QVector3D> translations;
    TrackCollector<QVector4D> rotations;
    for (size_t b = 0; b < bones; ++b) {
        places[b].resize(size_t(frames), places[b].back());
        turns[b].resize(size_t(frames), turns[b].back());
        block.nodes[b].translationIndex = isShifted[b] ? translations.add(places[b]) : NoTrack;
        block.nodes[b].rotationIndex = isTurned[b] ? rotations.add(turns[b]) : NoTrack;
    }
    block.translations = translations.table(frames);
    block.rotations = rotations.table(frames);
    return block;
}
