// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "MotionCommand.h"
#include "Playback.h"

#include <memory>
#include <vector>

/// Has the view play what a command would make of the animation that it plays, while somebody decides. The
/// document does not come into it: the view is lent another file, all of whose frames play.
class MotionOnView
{
public:
    /// `anim` outlives this. Where it is not what plays, nothing is shown.
    explicit MotionOnView(const AnimFile &anim);
    ~MotionOnView() { giveBack(); }
    Q_DISABLE_COPY(MotionOnView)

    /// Shows the one of the changes that is of the animation that plays; that as it is, where there is none.
    void show(const std::vector<Motion::BlockChange> &changes);
    void giveBack();

private:
    const AnimFile &m_anim;
    const bool m_plays;
    std::unique_ptr<AnimFile> m_lent;
    FrameRange m_range; ///< that played before
    float m_time = 0.0f;
};
