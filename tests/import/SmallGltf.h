// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfParts.h"

#include <QVector>

#include <array>

/// One skinned triangle in a glTF file of its own, with the bones
///
///     scene ─┬─ hips at (1, 2, 3) ─┬─ arm
///            │                     └─ tail, turned by 90 degrees about z, and scaled
///            └─ body (the triangle)
///
/// whose corners belong to hips, arm and nobody. Times are in milliseconds, the format's ticks.
class SmallGltf
{
public:
    struct Key
    {
        float time;
        std::array<float, 4> value; ///< x, y, z of a translation; x, y, z, w of a rotation
    };
    struct Channel
    {
        int node; ///< 1: hips, 2: arm, 3: tail, 4: body
        bool isRotation;
        QVector<Key> keys;
    };
    struct Animation
    {
        QString name;
        QVector<Channel> channels;
    };

    /// Weights are stored as whole numbers on request, and the second corner follows two bones then.
    QByteArray file(const QVector<Animation> &animations, bool wholeWeights = false)
    {
        // The accessors 0 to 3 below. The library crashes on a skin without matrices.
        m_parts.add("VEC3", 3, std::vector<float>{0, 0, 0, 10, 0, 0, 0, 20, -30});
        m_parts.add("VEC4", 4, std::vector<quint16>{0, 0, 0, 0, 1, 2, 0, 0, 0, 0, 0, 0});
        if (wholeWeights)
            m_parts.add("VEC4", 4,
                        std::vector<quint16>{65535, 0, 0, 0, 45535, 20000, 0, 0, 32768, 32767, 0, 0},
                        GltfParts::Shares);
        else
            m_parts.add("VEC4", 4, std::vector<float>{1, 0, 0, 0, 1, 0, 0, 0, 0.5, 0.5, 0, 0});
        const std::vector<float> identity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
        std::vector<float> matrices;
        for (int joint = 0; joint < 3; ++joint)
            matrices.insert(matrices.end(), identity.begin(), identity.end());
        m_parts.add("MAT4", 16, matrices);
        QJsonObject root = QJsonDocument::fromJson(R"({
            "nodes": [{"name": "scene", "children": [1, 4]},
                      {"name": "hips", "children": [2, 3], "translation": [1, 2, 3]},
                      {"name": "arm"},
                      {"name": "tail", "scale": [2, 1, 4],
                       "rotation": [0, 0, 0.7071067811865476, 0.7071067811865476]},
                      {"name": "body", "mesh": 0, "skin": 0}],
            "skins": [{"joints": [1, 2, 3], "inverseBindMatrices": 3}],
            "meshes": [{"primitives": [{"attributes": {"POSITION": 0, "JOINTS_0": 1, "WEIGHTS_0": 2}}]}]
        })")
                               .object();
        QJsonArray written;
        for (const Animation &animation : animations)
            written.append(animationObject(animation));
        if (!written.isEmpty())
            root["animations"] = written;
        return m_parts.file(root);
    }

private:
    QJsonObject animationObject(const Animation &animation)
    {
        QJsonObject object{{"name", animation.name}};
        for (const Channel &channel : animation.channels) {
            std::vector<float> times, values;
            for (const Key &key : channel.keys) {
                times.push_back(key.time / 1000.0f);
                values.insert(values.end(), key.value.begin(),
                              key.value.begin() + (channel.isRotation ? 4 : 3));
            }
            m_parts.addChannel(object, channel.node, channel.isRotation ? "rotation" : "translation", times,
                               values);
        }
        return object;
    }

    GltfParts m_parts;
};
