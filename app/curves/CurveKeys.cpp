// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveKeys.h"

#include "KeyBlend.h"
#include "KeySmoothing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
float narrowed(double number)
{
    constexpr auto most = double(std::numeric_limits<float>::max());
    return float(std::clamp(number, -most, most));
}

/// The other values of three curves' selected points at a frame; false where all stay as they are.
bool changeAt(const CurveData &data, const CurveSelection &selection, const std::array<int, 3> &curves,
              int frame, const CurveKeys::Change &change, std::array<double, 3> &values)
{
    bool changes = false;
    for (size_t axis = 0; axis < 3; ++axis) {
        if (curves[axis] < 0 || !selection.contains(curves[axis], frame))
            continue;
        const double before = data.value(curves[axis], frame);
        const double after = change({curves[axis], frame}, before);
        if (!std::isfinite(before) || !std::isfinite(after) || before == after)
            continue;
        values[axis] = after;
        changes = true;
    }
    return changes;
}

void changeTranslations(const CurveData &data, const CurveSelection &selection,
                        const CurveData::Source &source, const CurveKeys::Change &change, BlockKeys &keys)
{
    if (!selection.hasOf(source.translations))
        return;
    for (int frame = 0; frame < data.frameCount(); ++frame) {
        QVector3D key = data.block()->translations.at(source.translationTrack, frame);
        const std::array<double, 3> before{double(key.x()), double(key.y()), double(key.z())};
        std::array<double, 3> values = before;
        if (!changeAt(data, selection, source.translations, frame, change, values))
            continue;
        for (int axis = 0; axis < 3; ++axis) {
            if (values[size_t(axis)] != before[size_t(axis)])
                key[axis] = narrowed(values[size_t(axis)]);
        }
        keys.setTranslation(source.translationTrack, frame, key);
    }
}

void changeRotations(const CurveData &data, const CurveSelection &selection, const CurveData::Source &source,
                     const CurveKeys::Change &change, BlockKeys &keys)
{
    if (!selection.hasOf(source.rotations))
        return;
    for (int frame = 0; frame < data.frameCount(); ++frame) {
        Motion::Angles angles = source.angles[size_t(frame)];
        if (changeAt(data, selection, source.rotations, frame, change, angles))
            keys.setRotation(source.rotationTrack, frame,
                             Motion::keyOf(angles, data.block()->rotations.at(source.rotationTrack, frame)));
    }
}

void changeYaws(const CurveData &data, const CurveSelection &selection, const CurveKeys::Change &change,
                BlockKeys &keys)
{
    const int curve = data.yawCurve();
    for (int frame = 0; curve >= 0 && selection.hasOf(curve) && frame < data.frameCount(); ++frame) {
        std::array<double, 3> values{};
        if (!changeAt(data, selection, {curve, -1, -1}, frame, change, values))
            continue;
        // The full turns that the file has stay.
        const double by = (values[0] - data.value(curve, frame)) * M_PI / 180;
        const float stored = data.block()->frames[size_t(frame)].yawOffset;
        keys.setYaw(frame, narrowed(double(stored) + by));
    }
}

/// Where all three angles of a rotation are selected.
std::vector<bool> wholeTurns(const CurveData &data, const CurveSelection &selection,
                             const CurveData::Source &source)
{
    std::vector<bool> whole(size_t(data.frameCount()));
    for (int frame = 0; frame < data.frameCount(); ++frame) {
        const auto isSelected = [&](int curve) { return curve >= 0 && selection.contains(curve, frame); };
        whole[size_t(frame)] = std::all_of(source.rotations.begin(), source.rotations.end(), isSelected) &&
                               std::isfinite(source.angles[size_t(frame)][0]);
    }
    return whole;
}

/// Calls `visit(first, last)` for the frames that are chosen in a row.
template <typename Visit>
void forRows(const std::vector<bool> &chosen, Visit visit)
{
    const int count = int(chosen.size());
    for (int first = 0; first < count; ++first) {
        if (!chosen[size_t(first)])
            continue;
        int last = first;
        while (last + 1 < count && chosen[size_t(last) + 1])
            ++last;
        visit(first, last);
        first = last;
    }
}

/// Changes whole rotations by `turn(source, chosen, keys)`, and of what else is selected the values of each
/// curve by `bend(values, chosen)`.
template <typename Turn, typename Bend>
BlockKeys reshaped(const CurveData &data, const CurveSelection &selection, Turn turn, Bend bend)
{
    BlockKeys keys;
    std::vector<std::vector<double>> values(size_t(data.count()));
    std::vector<std::vector<bool>> whole(data.sources().size());
    for (size_t i = 0; i < whole.size(); ++i) {
        const CurveData::Source &source = data.sources()[i];
        if (!selection.hasOf(source.rotations))
            continue;
        whole[i] = wholeTurns(data, selection, source);
        turn(source, whole[i], keys);
    }
    for (int curve = 0; curve < data.count(); ++curve) {
        if (!selection.hasOf(curve))
            continue;
        std::vector<bool> chosen = selection.frames(curve);
        const Curve &shown = data.curves()[size_t(curve)];
        std::vector<double> &own = values[size_t(curve)];
        for (int frame = 0; frame < data.frameCount(); ++frame) {
            own.push_back(data.value(curve, frame));
            const bool isTurned =
                kindOf(shown.channel) == CurveKind::Rotation && whole[size_t(shown.source)][size_t(frame)];
            if (isTurned || !std::isfinite(own.back()))
                chosen[size_t(frame)] = false;
        }
        bend(own, chosen);
    }
    const auto change = [&values](const CurveKey &key, double) {
        return values[size_t(key.curve)][size_t(key.frame)];
    };
    for (const CurveData::Source &source : data.sources()) {
        changeTranslations(data, selection, source, change, keys);
        changeRotations(data, selection, source, change, keys);
    }
    changeYaws(data, selection, change, keys);
    return keys;
}
} // namespace

BlockKeys CurveKeys::changed(const CurveData &data, const CurveSelection &selection, CurveUnit unit,
                             const Change &change)
{
    BlockKeys keys;
    for (const CurveData::Source &source : data.sources()) {
        if (unit == CurveUnit::Units)
            changeTranslations(data, selection, source, change, keys);
        else
            changeRotations(data, selection, source, change, keys);
    }
    if (unit == CurveUnit::Degrees)
        changeYaws(data, selection, change, keys);
    return keys;
}

BlockKeys CurveKeys::smoothed(const CurveData &data, const CurveSelection &selection, int frames)
{
    const auto turn = [&](const CurveData::Source &source, const std::vector<bool> &chosen, BlockKeys &keys) {
        const QVector4D *track = &data.block()->rotations.at(source.rotationTrack, 0);
        std::vector<bool> isNumber;
        for (const Motion::Angles &angles : source.angles)
            isNumber.push_back(std::isfinite(angles[0]));
        const std::vector<int> reach = Motion::smoothingReach(chosen, isNumber, frames);
        for (int frame = 0; frame < data.frameCount(); ++frame) {
            if (reach[size_t(frame)] > 0)
                keys.setRotation(source.rotationTrack, frame,
                                 Motion::smoothed(track, frame, reach[size_t(frame)]));
        }
    };
    const auto bend = [frames](std::vector<double> &values, const std::vector<bool> &chosen) {
        std::vector<bool> isNumber(values.size());
        std::transform(values.begin(), values.end(), isNumber.begin(),
                       [](double value) { return std::isfinite(value); });
        const std::vector<int> reach = Motion::smoothingReach(chosen, isNumber, frames);
        const std::vector<double> before = values;
        for (size_t frame = 0; frame < values.size(); ++frame) {
            if (reach[frame] > 0)
                values[frame] = Motion::smoothed(before, int(frame), reach[frame]);
        }
    };
    return reshaped(data, selection, turn, bend);
}

BlockKeys CurveKeys::straightened(const CurveData &data, const CurveSelection &selection)
{
    const auto turn = [&](const CurveData::Source &source, const std::vector<bool> &chosen, BlockKeys &keys) {
        const QVector4D *track = &data.block()->rotations.at(source.rotationTrack, 0);
        forRows(chosen, [&](int first, int last) {
            for (int frame = first + 1; frame < last; ++frame)
                keys.setRotation(
                    source.rotationTrack, frame,
                    Motion::between(track[first], track[last], double(frame - first) / (last - first)));
        });
    };
    const auto bend = [](std::vector<double> &values, const std::vector<bool> &chosen) {
        forRows(chosen, [&values](int first, int last) {
            const double from = values[size_t(first)];
            const double way = values[size_t(last)] - from;
            for (int frame = first + 1; frame < last; ++frame)
                values[size_t(frame)] = from + way * (frame - first) / (last - first);
        });
    };
    return reshaped(data, selection, turn, bend);
}
