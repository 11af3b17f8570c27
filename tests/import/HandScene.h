// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneParts.h"

#include <QVector3D>

#include <cmath>

inline const float half = std::sqrt(0.5f);

inline bool isClose(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-4f;
}

/// A scene made by hand, as readers of damaged and of odd files make them.
struct HandScene
{
    aiScene scene;

    HandScene() { scene.mRootNode = new aiNode("scene"); }

    aiNode *node(const char *name, aiNode *parent = nullptr, bool bearsMesh = false)
    {
        auto *made = new aiNode(name);
        (parent ? parent : scene.mRootNode)->addChildren(1, &made);
        if (bearsMesh) {
            made->mNumMeshes = 1;
            made->mMeshes = new unsigned[1]{0};
        }
        return made;
    }

    /// The marks of the nodes of these names.
    static std::vector<bool> marks(const SceneNodes &nodes, const QByteArrayList &names)
    {
        std::vector<bool> found;
        for (int i = 0; i < nodes.count(); ++i)
            found.push_back(names.contains(nodes[i].source->mName.C_Str()));
        return found;
    }
};
