// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Playback.h"

#include "AnimFile.h"
#include "SkinnedMesh.h"

Playback &playback()
{
    static Playback state;
    return state;
}

bool animationMatchesMesh(const AnimFile &anim, const SkinnedMesh &mesh)
{
    return !anim.blocks.empty() && anim.blocks.front().nodes.size() == mesh.nodes.size();
}

const AnimBlock *playableBlock(const Playback &state)
{
    if (!state.anim || !state.mesh || !animationMatchesMesh(*state.anim, *state.mesh))
        return nullptr;
    if (state.blockIndex < 0 || size_t(state.blockIndex) >= state.anim->blocks.size())
        return nullptr;
    return state.preview ? state.preview : &state.anim->blocks[size_t(state.blockIndex)];
}
