// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KeySmoothing.h"

#include "Turn.h"

#include <algorithm>

namespace {
/// Calls `add(offset, weight)` for each frame around one, the one itself first with the weight 1.
template <typename Add>
void weigh(int reach, Add add)
{
    add(0, 1.0);
    double weight = 1;
    for (int offset = 1; offset <= reach; ++offset) {
        weight *= double(reach - offset + 1) / double(reach + offset);
        add(-offset, weight);
        add(offset, weight);
    }
}
} // namespace

namespace Motion {
std::vector<int> smoothingReach(const std::vector<bool> &chosen, const std::vector<bool> &isNumber, int most)
{
    const int count = int(chosen.size());
    std::vector<int> reach(chosen.size(), 0);
    // As far as each side lets it: from the left, then from the right.
    const auto sweep = [&](int first, int direction) {
        int way = 0;
        for (int frame = first; frame >= 0 && frame < count; frame += direction) {
            const auto i = size_t(frame);
            if (!isNumber[i])
                way = -1; // its neighbour reaches nothing
            else if (!chosen[i])
                way = 0;
            if (chosen[i] && isNumber[i])
                reach[i] = std::min(direction > 0 ? most : reach[i], way);
            ++way;
        }
    };
    sweep(0, 1);
    sweep(count - 1, -1);
    return reach;
}

double smoothed(const std::vector<double> &values, int frame, int reach)
{
    double sum = 0;
    double weights = 0;
    weigh(reach, [&](int offset, double weight) {
        sum += weight * values[size_t(frame + offset)];
        weights += weight;
    });
    return sum / weights;
}

QVector4D smoothed(const QVector4D *keys, int frame, int reach)
{
    const Turn middle = Turn::of(keys[frame]);
    Turn sum{0, 0, 0, 0};
    weigh(reach, [&](int offset, double weight) {
        const Turn each = Turn::of(keys[frame + offset]);
        const double signedWeight = each.dot(middle) < 0 ? -weight : weight;
        sum.x += signedWeight * each.x;
        sum.y += signedWeight * each.y;
        sum.z += signedWeight * each.z;
        sum.w += signedWeight * each.w;
    });
    return sum.normalized().toVector();
}
} // namespace Motion
