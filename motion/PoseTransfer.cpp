// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PoseTransfer.h"

#include "BoneRig.h"
#include "BoneTracks.h"
#include "EventArguments.h"
#include "ModelNames.h"

#include <algorithm>

using namespace Motion;

namespace {
constexpr double SameTurn = 1e-5;  ///< radians
constexpr double SamePlace = 1e-4; ///< units

constexpr int SprayX = 3;    ///< the argument of damage
constexpr int MostNamed = 8; ///< bones in a list for the user

/// From the bones of one block to those of another.
struct Way
{
    const AnimBlock &source;
    const BoneRig &from;
    const BoneRig &to;
    const BonePairs &pairs; ///< for each bone of `to` one of `from`
    bool mirrors = false;
    double ratio = 1; ///< of distances

    Turn seen(const Turn &turn) const { return mirrors ? turn.mirrored() : turn; }
    Place seen(const Place &place) const
    {
        return ratio * (mirrors ? Place{-place.x, place.y, place.z} : place);
    }
    int pairOf(int bone) const { return bone == BoneRig::NoBone ? BoneRig::NoBone : pairs[size_t(bone)]; }

    /// Whether the two bones and their parents stand alike, so that the keys of one are those of the other.
    bool isAlike(int bone) const
    {
        const int other = pairOf(bone);
        return !mirrors && pairOf(to.parents[size_t(bone)]) == from.parents[size_t(other)] &&
               angleBetween(to.turns[size_t(bone)], from.turns[size_t(other)]) <= SameTurn &&
               angleBetween(to.parentTurn(bone), from.parentTurn(other)) <= SameTurn;
    }

    /// Turns what is in the space of a bone of `from` into that of its partner, as they stand initially.
    Place ownPlace(int bone, const Place &place) const
    {
        const Turn other = from.turns[size_t(pairOf(bone))];
        return to.turns[size_t(bone)].inverse() * seen(other * place);
    }
};

template <typename Tracks>
typename Tracks::Keys keysOf(const AnimBlock &block, int bone)
{
    const auto *keys = Tracks::of(block, size_t(bone));
    return keys ? typename Tracks::Keys(keys, keys + block.frameCount()) : typename Tracks::Keys();
}

/// The keys of all bones, a list for each.
struct MadeKeys
{
    std::vector<RotationsOfBones::Keys> turns;
    std::vector<TranslationsOfBones::Keys> places;
};

/// Has all bones of a frame of `way.to`, whose bones begin as `initial` says, do what their partners do.
void takePose(const Way &way, const std::vector<AnimNode> &initial, size_t frame, std::vector<Turn> &theirs,
              std::vector<Turn> &own, MadeKeys &made)
{
    way.from.turnsAt(way.source, frame, theirs);
    own.resize(way.to.size());
    for (const int bone : way.to.order) {
        const auto b = size_t(bone);
        const int parent = way.to.parents[b];
        const Turn base = parent == BoneRig::NoBone ? Turn() : own[size_t(parent)];
        const int other = way.pairOf(bone);
        if (other == BoneRig::NoBone) {
            own[b] = base * Turn::of(initial[b].initialRotation);
            continue;
        }
        const auto o = size_t(other);
        own[b] = way.seen(theirs[o] * way.from.turns[o].inverse()) * way.to.turns[b];
        const Turn key = base.inverse() * own[b];
        // Of the two quaternions of a rotation the one that goes on from the last key.
        RotationsOfBones::Keys &keys = made.turns[b];
        const QVector4D last = keys.empty() ? initial[b].initialRotation : keys.back();
        const bool isAway = key.dot(Turn::of(last)) < 0;
        keys.push_back((isAway ? key.negated() : key).normalized().toVector());

        const QVector3D *place = TranslationsOfBones::of(way.source, o);
        if (!place)
            continue;
        const int theirParent = way.from.parents[o];
        const Turn theirBase = theirParent == BoneRig::NoBone ? Turn() : theirs[size_t(theirParent)];
        const Place moved = placeOf(place[frame]) - placeOf(way.source.nodes[o].initialPosition);
        made.places[b].push_back(
            vectorOf(placeOf(initial[b].initialPosition) + base.inverse() * way.seen(theirBase * moved)));
    }
}

/// Gives the bones of `block`, which has the source's frames, the tracks that they need for the pose of their
/// partners.
QString takeTracks(const Way &way, AnimBlock &block, const BlockAccount &account)
{
    const qint64 frames = way.source.frameCount();
    if (frames == 0)
        return Texts::tr("It has no frames.");
    // Whatever tracks there are: bones may share one.
    const qint64 bytes = frames * qint64(way.to.order.size()) * qint64(sizeof(QVector3D) + sizeof(QVector4D));
    if (bytes > MostBytes)
        return Texts::tr("The keys of %1 bones in %2 frames would take %3 MiB; %4 is the most.")
            .arg(way.to.order.size())
            .arg(frames)
            .arg(bytes >> 20)
            .arg(MostBytes >> 20);
    MadeKeys made{std::vector<RotationsOfBones::Keys>(way.to.size()),
                  std::vector<TranslationsOfBones::Keys>(way.to.size())};
    std::vector<Turn> theirs;
    std::vector<Turn> own;
    for (size_t frame = 0; frame < way.source.frames.size() && !account.isCancelled(); ++frame)
        takePose(way, block.nodes, frame, theirs, own, made);

    RotationsOfBones rotations(block);
    TranslationsOfBones translations(block);
    for (const int bone : way.to.order) {
        if (account.isCancelled())
            return {};
        const auto b = size_t(bone);
        const AnimNode &node = block.nodes[b];
        RotationsOfBones::Keys turns = std::move(made.turns[b]);
        TranslationsOfBones::Keys places = std::move(made.places[b]);
        if (way.pairOf(bone) != BoneRig::NoBone && way.isAlike(bone)) {
            // Nothing is lost by counting.
            turns = keysOf<RotationsOfBones>(way.source, way.pairOf(bone));
            const AnimNode &other = way.source.nodes[size_t(way.pairOf(bone))];
            if (way.ratio == 1 && node.initialPosition == other.initialPosition)
                places = keysOf<TranslationsOfBones>(way.source, way.pairOf(bone));
        } else {
            const Turn rest = Turn::of(node.initialRotation);
            if (std::all_of(turns.begin(), turns.end(), [&](const QVector4D &key) {
                    return angleBetween(rest, Turn::of(key)) <= SameTurn;
                }))
                turns.clear();
        }
        if (std::all_of(places.begin(), places.end(), [&](const QVector3D &key) {
                return lengthOf(placeOf(key) - placeOf(node.initialPosition)) <= SamePlace;
            }))
            places.clear();
        if (turns.empty())
            rotations.rest(b);
        else
            rotations.follow(b, std::move(turns));
        if (places.empty())
            translations.rest(b);
        else
            translations.follow(b, std::move(places));
    }
    const QString refusal = rotations.store();
    return refusal.isEmpty() ? translations.store() : refusal;
}

/// "12: head, 13: jaw and 4 more".
QString listed(const SkinnedMesh &mesh, const std::vector<int> &bones)
{
    QStringList names;
    for (const int bone : bones) {
        if (names.size() < MostNamed)
            names << boneTitle(mesh, bone);
    }
    const QString text = names.join(QLatin1String(", "));
    const int more = int(bones.size()) - names.size();
    return more > 0 ? Texts::tr("%1 and %2 more").arg(text, QString::number(more)) : text;
}

double boneLength(const AnimNode &node)
{
    return lengthOf(placeOf(node.initialPosition));
}

/// The size of one skeleton by that of the other, the bones that found each other counted.
double sizeRatio(const BonePairs &pairs, const BoneRig &toRig, const std::vector<AnimNode> &to,
                 const std::vector<AnimNode> &from)
{
    double own = 0;
    double theirs = 0;
    for (const int bone : toRig.order) {
        if (pairs[size_t(bone)] == BoneRig::NoBone || toRig.parents[size_t(bone)] == BoneRig::NoBone)
            continue;
        own += boneLength(to[size_t(bone)]);
        theirs += boneLength(from[size_t(pairs[size_t(bone)])]);
    }
    const double ratio = own / theirs;
    return own > 0 && theirs > 0 && std::isfinite(ratio) && std::abs(ratio - 1) > 1e-6 ? ratio : 1;
}

qint32 freeId(const AnimFile &file, const std::vector<qint32> &taken, qint32 id)
{
    const auto isTaken = [&](qint32 wanted) {
        return std::find(taken.begin(), taken.end(), wanted) != taken.end() ||
               std::any_of(file.blocks.begin(), file.blocks.end(),
                           [wanted](const AnimBlock &block) { return block.animId == wanted; });
    };
    while (isTaken(id))
        id = id == std::numeric_limits<qint32>::max() ? 0 : id + 1;
    return id;
}
} // namespace

namespace Motion {
QString apply(const Mirror &, AnimBlock &block, BlockAccount &account, const SkinnedMesh *mesh)
{
    if (!mesh)
        return Texts::tr("Which bones are left and right is in the mesh: open the one that it belongs to.");
    if (mesh->nodes.size() != block.nodes.size())
        return Texts::tr("It is for %1 bones, but the mesh has %2.")
            .arg(block.nodes.size())
            .arg(mesh->nodes.size());
    const BoneRig rig(*mesh, block.nodes);
    const BonePairs pairs = counterparts(*mesh, rig, account);
    if (account.isCancelled())
        return {};
    AnimBlock made = block;
    const Way way{block, rig, rig, pairs, true, 1};
    const QString refusal = takeTracks(way, made, account);
    if (!refusal.isEmpty())
        return refusal;
    for (AnimFrame &frame : made.frames)
        frame.yawOffset = frame.yawOffset == 0 ? frame.yawOffset : -frame.yawOffset;
    int sprays = 0;
    for (AnimAction &action : made.actions) {
        const QLatin1String label(eventArgument(action.eventType, SprayX).label);
        sprays += label == QLatin1String("Blood Spray X") && action.args[SprayX] != 0 ? 1 : 0;
        if (action.node < pairs.size()) {
            action.node = quint16(pairs[action.node]);
            action.offset = vectorOf(way.ownPlace(action.node, placeOf(action.offset)));
        } else {
            action.offset.setX(action.offset.x() == 0 ? action.offset.x() : -action.offset.x());
        }
    }
    std::vector<int> alone;
    for (const int bone : rig.order) {
        if (pairs[size_t(bone)] == bone)
            alone.push_back(bone);
    }
    if (sprays > 0)
        account.notes
            << Texts::tr("Key frame actions whose blood sprays to the same side as before: %1.").arg(sprays);
    account.notes << Texts::tr("Pairs of bones that change sides: %1. Bones without a partner, mirrored in "
                               "place: %2.")
                         .arg((rig.order.size() - alone.size()) / 2)
                         .arg(alone.empty() ? Texts::tr("none") : listed(*mesh, alone));
    block = std::move(made);
    return {};
}

CopiedBlock copiedTo(const Animated &to, const Animated &from, int index, const std::vector<qint32> &taken,
                     const std::atomic_bool *cancelled)
{
    CopiedBlock copied;
    copied.account.cancelled = cancelled;
    const AnimBlock &source = from.anim.blocks[size_t(index)];
    const auto misfit = [&copied](const AnimBlock &block, const SkinnedMesh &mesh) {
        if (block.nodes.size() != mesh.nodes.size() || block.nodes.empty())
            copied.refusal = Texts::tr("It is for %1 bones, but its mesh has %2.")
                                 .arg(block.nodes.size())
                                 .arg(mesh.nodes.size());
        return !copied.refusal.isEmpty();
    };
    if (to.anim.blocks.empty()) {
        copied.refusal = Texts::tr("There is no animation that tells how the bones stand initially.");
        return copied;
    }
    const AnimBlock &like = to.anim.blocks.front();
    if (misfit(source, from.mesh) || misfit(like, to.mesh))
        return copied;

    const BoneRig fromRig(from.mesh, source.nodes);
    const BoneRig toRig(to.mesh, like.nodes);
    const BonePairs pairs = partners(from.mesh, fromRig, to.mesh, toRig);
    std::vector<int> back(fromRig.size(), BoneRig::NoBone);
    std::vector<int> alone;
    for (const int bone : toRig.order) {
        if (pairs[size_t(bone)] == BoneRig::NoBone)
            alone.push_back(bone);
        else
            back[size_t(pairs[size_t(bone)])] = bone;
    }
    std::vector<int> unused;
    for (const int bone : fromRig.order) {
        if (back[size_t(bone)] == BoneRig::NoBone)
            unused.push_back(bone);
    }
    const auto found = toRig.order.size() - alone.size();
    if (found == 0) {
        copied.refusal = Texts::tr("No bone of one skeleton has a partner in the other: neither names nor "
                                   "symbols agree.");
        return copied;
    }

    AnimBlock made = source;
    made.nodes = like.nodes;
    for (AnimNode &node : made.nodes)
        node.translationIndex = node.rotationIndex = None;
    made.translations = {0, source.frameCount()};
    made.rotations = {0, source.frameCount()};
    const Way way{source, fromRig, toRig, pairs, false, sizeRatio(pairs, toRig, like.nodes, source.nodes)};
    copied.refusal = takeTracks(way, made, copied.account);
    if (!copied.refusal.isEmpty())
        return copied;

    QStringList &notes = copied.account.notes;
    notes << Texts::tr("Bones that found their partner: %1.").arg(found);
    if (!alone.empty())
        notes << Texts::tr("Bones without a partner, which keep their initial pose: %1.")
                     .arg(listed(to.mesh, alone));
    if (!unused.empty())
        notes
            << Texts::tr("Bones of the other skeleton that are left out: %1.").arg(listed(from.mesh, unused));
    if (way.ratio != 1)
        notes << Texts::tr("Distances are scaled by %1.").arg(way.ratio, 0, 'g', 3);
    int nowhere = 0;
    for (AnimAction &action : made.actions) {
        if (action.node >= back.size())
            continue;
        const int own = back[action.node];
        if (own == BoneRig::NoBone) {
            action.node = None;
            ++nowhere;
        } else {
            action.node = quint16(own);
            if (!way.isAlike(own) || way.ratio != 1)
                action.offset = vectorOf(way.ownPlace(own, placeOf(action.offset)));
        }
    }
    if (nowhere > 0)
        notes << Texts::tr("Key frame actions that happen at no bone any more: %1.").arg(nowhere);
    made.animId = freeId(to.anim, taken, source.animId);
    if (made.animId != source.animId)
        notes << Texts::tr("The id %1 is taken: it gets %2.").arg(source.animId).arg(made.animId);
    copied.block = std::move(made);
    return copied;
}
} // namespace Motion
