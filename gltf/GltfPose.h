// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfScene.h"

#include <array>

/// Where the nodes of a scene are, as they stand in the file or at a time of an animation.
class GltfPose
{
public:
    explicit GltfPose(const GltfScene &scene);

    /// Which animation moves the nodes; null for none.
    void setAnimation(const GltfScene::Animation *animation);
    /// For each node the matrix from its space to the scene's; a node that the scene does not show keeps the
    /// identity. Before its first key a channel holds that, behind its last one the last.
    const std::vector<QMatrix4x4> &at(float seconds);

private:
    const GltfScene &m_scene;
    std::vector<std::array<const GltfScene::Channel *, 3>> m_channels; ///< by node and path
    std::vector<QMatrix4x4> m_worlds;
};
