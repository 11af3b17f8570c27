// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
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

    QByteArray file(const QVector<Animation> &animations)
    {
        // The accessors 0 to 3 below. The library crashes on a skin without matrices.
        add<float, 3>("VEC3", {{0, 0, 0}, {10, 0, 0}, {0, 20, -30}});
        add<quint16, 4>("VEC4", {{0, 0, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 0}});
        add<float, 4>("VEC4", {{1, 0, 0, 0}, {1, 0, 0, 0}, {0.5, 0.5, 0, 0}});
        add<float, 16>("MAT4", {3, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}});
        QJsonObject root = QJsonDocument::fromJson(R"({
            "asset": {"version": "2.0"},
            "scene": 0,
            "scenes": [{"nodes": [0]}],
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
        root["accessors"] = m_accessors;
        root["bufferViews"] = m_views;
        root["buffers"] = QJsonArray{QJsonObject{
            {"byteLength", m_bytes.size()},
            {"uri", QString::fromLatin1("data:application/octet-stream;base64," + m_bytes.toBase64())}}};
        return QJsonDocument(root).toJson();
    }

private:
    /// Returns the number of the accessor.
    template <typename T, size_t Width>
    int add(const char *type, const QVector<std::array<T, Width>> &rows)
    {
        const int bytes = rows.size() * int(sizeof(T) * Width);
        m_views.append(QJsonObject{{"buffer", 0}, {"byteOffset", m_bytes.size()}, {"byteLength", bytes}});
        m_bytes.append(reinterpret_cast<const char *>(rows.constData()), bytes);
        m_accessors.append(QJsonObject{{"bufferView", m_views.size() - 1},
                                       {"componentType", sizeof(T) == 4 ? 5126 : 5123},
                                       {"count", rows.size()},
                                       {"type", type}});
        return m_accessors.size() - 1;
    }

    QJsonObject animationObject(const Animation &animation)
    {
        QJsonArray channels;
        QJsonArray samplers;
        for (const Channel &channel : animation.channels) {
            QVector<std::array<float, 1>> times;
            QVector<std::array<float, 3>> places;
            QVector<std::array<float, 4>> rotations;
            for (const Key &key : channel.keys) {
                times.append(std::array<float, 1>{key.time / 1000.0f});
                places.append(std::array<float, 3>{key.value[0], key.value[1], key.value[2]});
                rotations.append(key.value);
            }
            channels.append(QJsonObject{
                {"sampler", samplers.size()},
                {"target", QJsonObject{{"node", channel.node},
                                       {"path", channel.isRotation ? "rotation" : "translation"}}}});
            samplers.append(
                QJsonObject{{"input", add("SCALAR", times)},
                            {"output", channel.isRotation ? add("VEC4", rotations) : add("VEC3", places)}});
        }
        return {{"name", animation.name}, {"channels", channels}, {"samplers", samplers}};
    }

    QByteArray m_bytes;
    QJsonArray m_views;
    QJsonArray m_accessors;
};
