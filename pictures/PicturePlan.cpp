// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PicturePlan.h"

#include <algorithm>

std::vector<PicturePlan::Shot> PicturePlan::shots() const
{
    const size_t frames = size_t(lastFrame - firstFrame) / size_t(step) + 1;
    const size_t count = std::max(frames, size_t(turns));
    std::vector<Shot> all;
    all.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        const int frame = firstFrame + step * int(i % frames);
        if (turns > 0)
            all.push_back({frame, 360.0f * float(int(i) % turns) / float(turns), int(i)});
        else
            all.push_back({frame, 0.0f, std::max(frame, 0)});
    }
    return all;
}

QMatrix4x4 turnedView(const QMatrix4x4 &view, const QVector3D &pivot, float degrees)
{
    QMatrix4x4 turned = view;
    if (degrees == 0.0f)
        return turned;
    turned.translate(pivot);
    turned.rotate(-degrees, 0.0f, 1.0f, 0.0f);
    turned.translate(-pivot);
    return turned;
}
