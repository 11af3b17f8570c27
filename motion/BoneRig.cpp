// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoneRig.h"

#include "BoneTracks.h"
#include "NameTables.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <map>

using namespace Motion;

namespace {
/// What a bone's symbol says beside the side; the bits without a meaning are left out.
int symbolPart(const SkinnedMesh &mesh, int bone)
{
    const BoneSymbol symbol = boneSymbol(mesh.nodes[size_t(bone)].symbolFlags);
    return symbol.type * 4 + symbol.part;
}

int symbolSide(const SkinnedMesh &mesh, int bone)
{
    return boneSymbol(mesh.nodes[size_t(bone)].symbolFlags).side;
}

/// A bone's name without its side, and the side: 0 left, 1 right, -1 neither.
struct SidedName
{
    QString rest;
    int side = -1;
};

SidedName sidedName(const QString &name)
{
    static const QRegularExpression words(QStringLiteral("left|right"));
    static const QRegularExpression letters(QStringLiteral("(?<![a-z0-9])([lr])(?![a-z0-9])"));
    SidedName sided{name.toLower(), -1};
    for (const QRegularExpression &sides : {words, letters}) {
        const QRegularExpressionMatch match = sides.match(sided.rest);
        if (!match.hasMatch())
            continue;
        sided.side = match.captured().startsWith(QLatin1Char('l')) ? 0 : 1;
        sided.rest.replace(match.capturedStart(), match.capturedLength(), QLatin1Char('*'));
        break;
    }
    return sided;
}

/// A name as it is compared: without what programs put before it, case and separators.
QString comparedName(const QString &name)
{
    static const QRegularExpression separators(QStringLiteral("[ ._-]"));
    return name.section(QLatin1Char(':'), -1).toLower().remove(separators);
}

/// The bones of a rig by what `key` says of them, from the root down.
template <typename Key>
auto grouped(const BoneRig &rig, Key key)
{
    std::map<decltype(key(0)), std::vector<int>> groups;
    for (const int bone : rig.order)
        groups[key(bone)].push_back(bone);
    return groups;
}
} // namespace

namespace Motion {
BoneRig::BoneRig(const SkinnedMesh &mesh, const std::vector<AnimNode> &nodes)
    : parents(std::min(mesh.nodes.size(), nodes.size()), NoBone)
    , turns(parents.size())
    , places(parents.size())
{
    // As poses are composed: backwards through the child lists, each bone once and down to its end.
    std::vector<bool> isPosed(parents.size());
    std::vector<std::pair<int, size_t>> path; // a bone, and how many of its children are left
    const auto enter = [&](int bone) {
        isPosed[size_t(bone)] = true;
        path.emplace_back(bone, mesh.nodes[size_t(bone)].childNodes.size());
    };
    if (!parents.empty())
        enter(0);
    while (!path.empty()) {
        auto &[bone, left] = path.back();
        if (left == 0) {
            path.pop_back();
            continue;
        }
        const quint16 child = mesh.nodes[size_t(bone)].childNodes[--left];
        if (child < isPosed.size() && !isPosed[child]) {
            parents[child] = bone;
            enter(child);
        }
    }

    std::vector<int> open;
    if (!parents.empty())
        open.push_back(0);
    std::vector<bool> isListed(parents.size());
    while (!open.empty()) {
        const int bone = open.back();
        open.pop_back();
        order.push_back(bone);
        const AnimNode &node = nodes[size_t(bone)];
        const Turn turn = parentTurn(bone);
        const int parent = parents[size_t(bone)];
        turns[size_t(bone)] = turn * Turn::of(node.initialRotation);
        places[size_t(bone)] = turn * placeOf(node.initialPosition);
        if (parent != NoBone)
            places[size_t(bone)] = places[size_t(bone)] + places[size_t(parent)];
        const std::vector<quint16> &children = mesh.nodes[size_t(bone)].childNodes;
        // The first child is to come first off the stack.
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            if (*child < parents.size() && parents[*child] == bone && !isListed[*child]) {
                isListed[*child] = true;
                open.push_back(*child);
            }
        }
    }
}

void BoneRig::turnsAt(const AnimBlock &block, size_t frame, std::vector<Turn> &at) const
{
    at.resize(size());
    for (const int bone : order) {
        const QVector4D *keys = RotationsOfBones::of(block, size_t(bone));
        const Turn own = Turn::of(keys ? keys[frame] : block.nodes[size_t(bone)].initialRotation);
        const int parent = parents[size_t(bone)];
        at[size_t(bone)] = parent == NoBone ? own : at[size_t(parent)] * own;
    }
}

BonePairs counterparts(const SkinnedMesh &mesh, const BoneRig &rig, const BlockAccount &account)
{
    BonePairs pairs(rig.size());
    for (size_t bone = 0; bone < pairs.size(); ++bone)
        pairs[bone] = int(bone);
    const auto isAlone = [&pairs](int bone) { return pairs[size_t(bone)] == bone; };
    const auto join = [&pairs](int left, int right) {
        pairs[size_t(left)] = right;
        pairs[size_t(right)] = left;
    };
    QHash<QString, std::array<std::vector<int>, 2>> byName;
    std::vector<bool> isNamed(rig.size());
    for (const int bone : rig.order) {
        const SidedName name = sidedName(mesh.nodes[size_t(bone)].name);
        if (name.side >= 0)
            byName[name.rest][size_t(name.side)].push_back(bone);
        // A name without a side says that the bone has none.
        isNamed[size_t(bone)] = !name.rest.isEmpty();
    }
    for (const auto &[left, right] : std::as_const(byName)) {
        if (left.size() == 1 && right.size() == 1)
            join(left[0], right[0]);
    }

    auto bySymbol = grouped(rig, [&mesh](int bone) { return symbolPart(mesh, bone); });
    // From the root down, so that parents are paired before their children.
    for (const int bone : rig.order) {
        if (account.isCancelled())
            return pairs;
        if (symbolSide(mesh, bone) != 0 || !isAlone(bone) || isNamed[size_t(bone)])
            continue;
        Place mirrored = rig.places[size_t(bone)];
        mirrored.x = -mirrored.x;
        const int parent = rig.parents[size_t(bone)];
        const int wanted = parent == BoneRig::NoBone ? BoneRig::NoBone : pairs[size_t(parent)];
        int best = BoneRig::NoBone;
        std::pair<bool, double> least;
        for (const int other : bySymbol[symbolPart(mesh, bone)]) {
            if (symbolSide(mesh, other) != 1 || !isAlone(other) || isNamed[size_t(other)])
                continue;
            const std::pair<bool, double> cost(rig.parents[size_t(other)] != wanted,
                                               lengthOf(rig.places[size_t(other)] - mirrored));
            if (best == BoneRig::NoBone || cost < least) {
                best = other;
                least = cost;
            }
        }
        if (best != BoneRig::NoBone)
            join(bone, best);
    }
    return pairs;
}

BonePairs partners(const SkinnedMesh &from, const BoneRig &fromRig, const SkinnedMesh &to,
                   const BoneRig &toRig)
{
    BonePairs pairs(toRig.size(), BoneRig::NoBone);
    std::vector<bool> isTaken(fromRig.size());
    const auto join = [&](int own, int other) {
        pairs[size_t(own)] = other;
        isTaken[size_t(other)] = true;
    };
    const auto nameOf = [](const SkinnedMesh &mesh) {
        return [&mesh](int bone) { return comparedName(mesh.nodes[size_t(bone)].name); };
    };
    const auto named = grouped(fromRig, nameOf(from));
    for (const auto &[name, bones] : grouped(toRig, nameOf(to))) {
        const auto same = named.find(name);
        if (!name.isEmpty() && same != named.end() && bones.size() == 1 && same->second.size() == 1)
            join(bones[0], same->second[0]);
    }
    const auto symbolOf = [](const SkinnedMesh &mesh) {
        return [&mesh](int bone) { return symbolPart(mesh, bone) * 2 + symbolSide(mesh, bone); };
    };
    auto symbols = grouped(fromRig, symbolOf(from));
    for (auto &[symbol, own] : grouped(toRig, symbolOf(to))) {
        std::vector<int> theirs = symbols[symbol];
        std::vector<int> mine = own;
        theirs.erase(
            std::remove_if(theirs.begin(), theirs.end(), [&](int bone) { return isTaken[size_t(bone)]; }),
            theirs.end());
        mine.erase(std::remove_if(mine.begin(), mine.end(),
                                  [&](int bone) { return pairs[size_t(bone)] != BoneRig::NoBone; }),
                   mine.end());
        const size_t count =
            mine.size() == theirs.size() ? mine.size() : std::min({mine.size(), theirs.size(), size_t(1)});
        for (size_t i = 0; i < count; ++i)
            join(mine[i], theirs[i]);
    }
    return pairs;
}
} // namespace Motion
