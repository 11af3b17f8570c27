// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfParts.h"

#include <QMatrix4x4>
#include <QQuaternion>
#include <QVector2D>

#include <array>
#include <map>

/// A rig that a test makes: written as glTF, and posed by the textbook, which knows nothing of the importer.
struct Rig
{
    struct Node
    {
        QByteArray name;
        int parent = -1;
        QVector3D place;
        QQuaternion turn;
        QVector3D scale{1, 1, 1};
        int mesh = -1;
        bool isSkinned = false;
    };
    struct Vertex
    {
        QVector3D place;
        QVector3D normal;
        QVector2D uv;
        std::array<quint16, 4> joints{}; ///< in Rig::joints
        std::array<float, 4> weights{};  ///< the greatest first
    };
    /// Triangles have vertices of their own, counter-clockwise.
    using Mesh = std::vector<Vertex>;
    struct Key
    {
        float time; ///< seconds
        QVector4D value;
    };
    struct Clip
    {
        QByteArray name;
        std::map<std::pair<int, QByteArray>, std::vector<Key>>
            channels; ///< by node and "translation", "rotation", "scale"
    };

    std::vector<Node> nodes; ///< parents first
    std::vector<Mesh> meshes;
    std::vector<int> joints;       ///< nodes of the skin
    std::vector<QMatrix4x4> binds; ///< of each joint the inverse of where it was bound
    std::vector<Clip> clips;

    /// Where the nodes stand `time` seconds after the start of the file, or at rest.
    std::vector<QMatrix4x4> worlds(const Clip *clip, float time) const
    {
        std::vector<QMatrix4x4> found;
        for (int n = 0; n < int(nodes.size()); ++n) {
            const Node &node = nodes[size_t(n)];
            QVector3D place = node.place;
            QQuaternion turn = node.turn;
            QVector3D scale = node.scale;
            const auto straight = [](const QVector4D &a, const QVector4D &b, float t) {
                return a + (b - a) * t;
            };
            if (const std::vector<Key> *keys = channel(clip, n, "translation"))
                place = at(*keys, time, straight).toVector3D();
            if (const std::vector<Key> *keys = channel(clip, n, "scale"))
                scale = at(*keys, time, straight).toVector3D();
            if (const std::vector<Key> *keys = channel(clip, n, "rotation"))
                turn = QQuaternion(at(*keys, time, [](const QVector4D &a, const QVector4D &b, float t) {
                    return QQuaternion::slerp(QQuaternion(a), QQuaternion(b), t).toVector4D();
                }));
            QMatrix4x4 local;
            local.translate(place);
            local.rotate(turn);
            local.scale(scale);
            found.push_back(node.parent < 0 ? local : found[size_t(node.parent)] * local);
        }
        return found;
    }

    /// Where all its joints have a vertex of the skin.
    QVector3D blended(const std::vector<QMatrix4x4> &worlds, const Vertex &vertex) const
    {
        QVector3D place;
        for (size_t w = 0; w < vertex.joints.size(); ++w) {
            const size_t joint = vertex.joints[w];
            place += vertex.weights[w] * (worlds[size_t(joints[joint])] * binds[joint]).map(vertex.place);
        }
        return place;
    }

    /// Where a vertex of the mesh at `node` stands, when it rests where all its joints have it and from there
    /// goes with the strongest, which is what a model with one bone a vertex can do.
    QVector3D place(const std::vector<QMatrix4x4> &worlds, const std::vector<QMatrix4x4> &rest, int node,
                    const Vertex &vertex) const
    {
        if (!nodes[size_t(node)].isSkinned)
            return worlds[size_t(node)].map(vertex.place);
        const QVector3D resting = blended(rest, vertex);
        const auto strongest = size_t(joints[vertex.joints[0]]);
        return (worlds[strongest] * rest[strongest].inverted()).map(resting);
    }

    QByteArray file()
    {
        QJsonArray writtenMeshes;
        for (const Mesh &mesh : meshes) {
            std::vector<float> places, normals, uvs, weights;
            std::vector<quint16> numbers;
            for (const Vertex &vertex : mesh) {
                for (int axis = 0; axis < 3; ++axis) {
                    places.push_back(vertex.place[axis]);
                    normals.push_back(vertex.normal[axis]);
                }
                uvs.insert(uvs.end(), {vertex.uv.x(), vertex.uv.y()});
                numbers.insert(numbers.end(), vertex.joints.begin(), vertex.joints.end());
                weights.insert(weights.end(), vertex.weights.begin(), vertex.weights.end());
            }
            QJsonObject attributes{{"POSITION", m_parts.add("VEC3", 3, places)},
                                   {"NORMAL", m_parts.add("VEC3", 3, normals)},
                                   {"TEXCOORD_0", m_parts.add("VEC2", 2, uvs)}};
            if (mesh.front().weights[0] > 0.0f) {
                attributes["JOINTS_0"] = m_parts.add("VEC4", 4, numbers);
                attributes["WEIGHTS_0"] = m_parts.add("VEC4", 4, weights);
            }
            writtenMeshes.append(
                QJsonObject{{"primitives", QJsonArray{QJsonObject{{"attributes", attributes}}}}});
        }
        QJsonArray writtenNodes;
        for (int n = 0; n < int(nodes.size()); ++n)
            writtenNodes.append(nodeObject(n));
        std::vector<float> matrices;
        QJsonArray writtenJoints;
        for (size_t j = 0; j < joints.size(); ++j) {
            writtenJoints.append(joints[j]);
            matrices.insert(matrices.end(), binds[j].constData(), binds[j].constData() + 16);
        }
        QJsonArray writtenClips;
        for (const Clip &clip : clips)
            writtenClips.append(clipObject(clip));
        return m_parts.file(
            {{"nodes", writtenNodes},
             {"meshes", writtenMeshes},
             {"skins", QJsonArray{QJsonObject{{"joints", writtenJoints},
                                              {"inverseBindMatrices", m_parts.add("MAT4", 16, matrices)}}}},
             {"animations", writtenClips}});
    }

private:
    static const std::vector<Key> *channel(const Clip *clip, int node, const char *path)
    {
        const auto found = clip ? clip->channels.find({node, path}) : decltype(clip->channels.end())();
        return clip && found != clip->channels.end() ? &found->second : nullptr;
    }

    template <typename Mix>
    static QVector4D at(const std::vector<Key> &keys, float time, Mix mix)
    {
        for (size_t k = 0; k < keys.size(); ++k) {
            if (time <= keys[k].time)
                return k == 0 ? keys[0].value
                              : mix(keys[k - 1].value, keys[k].value,
                                    (time - keys[k - 1].time) / (keys[k].time - keys[k - 1].time));
        }
        return keys.back().value;
    }

    QJsonObject nodeObject(int n) const
    {
        const Node &node = nodes[size_t(n)];
        QJsonArray children;
        for (int c = 0; c < int(nodes.size()); ++c) {
            if (nodes[size_t(c)].parent == n)
                children.append(c);
        }
        QJsonObject object{
            {"name", QString::fromLatin1(node.name)},
            {"translation", QJsonArray{node.place.x(), node.place.y(), node.place.z()}},
            {"rotation", QJsonArray{node.turn.x(), node.turn.y(), node.turn.z(), node.turn.scalar()}},
            {"scale", QJsonArray{node.scale.x(), node.scale.y(), node.scale.z()}}};
        if (!children.isEmpty())
            object["children"] = children;
        if (node.mesh >= 0)
            object["mesh"] = node.mesh;
        if (node.isSkinned)
            object["skin"] = 0;
        return object;
    }

    QJsonObject clipObject(const Clip &clip)
    {
        QJsonObject object{{"name", QString::fromLatin1(clip.name)}};
        for (const auto &[target, keys] : clip.channels) {
            std::vector<float> times, values;
            for (const Key &key : keys) {
                times.push_back(key.time);
                for (int i = 0; i < (target.second == "rotation" ? 4 : 3); ++i)
                    values.push_back(key.value[i]);
            }
            m_parts.addChannel(object, target.first, QString::fromLatin1(target.second), times, values);
        }
        return object;
    }

    GltfParts m_parts;
};
