// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RootYaw.h"

#include "BoneTracks.h"
#include "Turn.h"

#include <cmath>

using namespace Motion;

namespace {
constexpr double NoTurn = 1e-6; ///< radians

/// Why the root cannot be turned frame by frame.
QString rootRefusal(const AnimBlock &block)
{
    if (block.frames.empty())
        return Texts::tr("It has no frames.");
    return block.nodes.empty() ? Texts::tr("It has no bones.") : QString();
}

QVector4D rootRotation(const AnimBlock &block, size_t frame)
{
    const QVector4D *keys = RotationsOfBones::of(block, 0);
    return keys ? keys[frame] : block.nodes[0].initialRotation;
}

/// Turns the root about the upright axis by so many radians at each frame.
QString turnRoot(AnimBlock &block, const std::vector<double> &radians)
{
    const QVector3D *places = TranslationsOfBones::of(block, 0);
    RotationsOfBones::Keys turned;
    TranslationsOfBones::Keys moved;
    bool moves = false;
    for (size_t frame = 0; frame < radians.size(); ++frame) {
        QVector4D rotation = rootRotation(block, frame);
        QVector3D position = places ? places[frame] : block.nodes[0].initialPosition;
        if (std::abs(radians[frame]) > NoTurn) {
            // A rotation keeps its length, whatever that is.
            const Turn turn = Turn::aboutZ(radians[frame]);
            rotation = (turn * Turn{double(rotation.x()), double(rotation.y()), double(rotation.z()),
                                    double(rotation.w())})
                           .toVector();
            if (position.x() != 0 || position.y() != 0) {
                position = vectorOf(turn * placeOf(position));
                moves = true;
            }
        }
        turned.push_back(rotation);
        moved.push_back(position);
    }
    AnimBlock made = block;
    RotationsOfBones rotations(made);
    rotations.follow(0, std::move(turned));
    TranslationsOfBones translations(made);
    if (moves)
        translations.follow(0, std::move(moved));
    QString refusal = rotations.store();
    if (refusal.isEmpty())
        refusal = translations.store();
    // Actions at no bone stand in the space that the yaw turns.
    for (AnimAction &action : made.actions) {
        if (action.node >= made.nodes.size() && action.frame < radians.size() &&
            std::abs(radians[action.frame]) > NoTurn)
            action.offset = vectorOf(Turn::aboutZ(radians[action.frame]) * placeOf(action.offset));
    }
    if (refusal.isEmpty())
        block = std::move(made);
    return refusal;
}
} // namespace

namespace Motion {
QString apply(const ExtractYaw &, AnimBlock &block, BlockAccount &account)
{
    QString refusal = rootRefusal(block);
    if (!refusal.isEmpty())
        return refusal;
    const Turn rest = Turn::of(block.nodes[0].initialRotation).inverse();
    std::vector<double> back;
    double heading = 0;
    double most = 0;
    for (size_t frame = 0; frame < block.frames.size(); ++frame) {
        const Turn way = Turn::of(rootRotation(block, frame)) * rest;
        // Upside down there is no telling; the frame before knows.
        if (std::hypot(way.z, way.w) > 1e-6) {
            const double found = 2 * std::atan2(way.z, way.w);
            heading += std::remainder(found - heading, 2 * M_PI);
        }
        back.push_back(std::abs(heading) > NoTurn ? -heading : 0);
        most = std::max(most, std::abs(heading));
    }
    if (most <= NoTurn)
        return {};
    refusal = turnRoot(block, back);
    if (!refusal.isEmpty())
        return refusal;
    for (size_t frame = 0; frame < back.size(); ++frame)
        block.frames[frame].yawOffset = float(double(block.frames[frame].yawOffset) + back[frame]);
    account.notes << Texts::tr("The frames turn the model by up to %1°, instead of the root bone.")
                         .arg(most * 180 / M_PI, 0, 'f', 1);
    return {};
}

QString apply(const ApplyYaw &, AnimBlock &block, BlockAccount &account)
{
    QString refusal = rootRefusal(block);
    if (!refusal.isEmpty())
        return refusal;
    std::vector<double> turns;
    double most = 0;
    for (const AnimFrame &frame : block.frames) {
        if (!std::isfinite(frame.yawOffset))
            return Texts::tr("The yaw of a frame is no number.");
        turns.push_back(-double(frame.yawOffset)); // as the game turns the model
        most = std::max(most, std::abs(turns.back()));
    }
    if (most <= NoTurn)
        return {};
    refusal = turnRoot(block, turns);
    if (!refusal.isEmpty())
        return refusal;
    for (AnimFrame &frame : block.frames)
        frame.yawOffset = 0;
    account.notes << Texts::tr("The root bone turns the model by up to %1°, instead of the frames.")
                         .arg(most * 180 / M_PI, 0, 'f', 1);
    return {};
}
} // namespace Motion
