// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <array>
#include <cmath>

/// One skinned triangle in a glTF file of its own, with the bones
///
///     scene ─┬─ hips at (1, 2, 3) ─┬─ arm
///            │                     └─ tail, turned by 90 degrees about z
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
        const int positions = floats({{0, 0, 0, 0}, {10, 0, 0, 0}, {0, 20, -30, 0}}, 3,
                                     QStringLiteral("VEC3"), {0, 0, -30}, {10, 20, 0});
        const int joints = shorts({{0, 0, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 0}});
        const int weights = floats({{1, 0, 0, 0}, {1, 0, 0, 0}, {0.5, 0.5, 0, 0}}, 4, QStringLiteral("VEC4"));
        // The library crashes on a skin without them.
        const int binds = identities(3);
        QJsonArray written;
        for (const Animation &animation : animations)
            written.append(animationObject(animation));

        const double half = std::sqrt(0.5);
        QJsonObject root;
        root["asset"] = QJsonObject{{"version", "2.0"}};
        root["scene"] = 0;
        root["scenes"] = QJsonArray{QJsonObject{{"nodes", QJsonArray{0}}}};
        root["nodes"] = QJsonArray{QJsonObject{{"name", "scene"}, {"children", QJsonArray{1, 4}}},
                                   QJsonObject{{"name", "hips"},
                                               {"children", QJsonArray{2, 3}},
                                               {"translation", QJsonArray{1, 2, 3}}},
                                   QJsonObject{{"name", "arm"}},
                                   QJsonObject{{"name", "tail"}, {"rotation", QJsonArray{0, 0, half, half}}},
                                   QJsonObject{{"name", "body"}, {"mesh", 0}, {"skin", 0}}};
        root["skins"] =
            QJsonArray{QJsonObject{{"joints", QJsonArray{1, 2, 3}}, {"inverseBindMatrices", binds}}};
        root["meshes"] = QJsonArray{QJsonObject{
            {"primitives", QJsonArray{QJsonObject{{"attributes", QJsonObject{{"POSITION", positions},
                                                                             {"JOINTS_0", joints},
                                                                             {"WEIGHTS_0", weights}}}}}}}};
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
    using Row = std::array<float, 4>;

    template <typename T>
    void append(T value)
    {
        m_bytes.append(reinterpret_cast<const char *>(&value), int(sizeof value));
    }

    /// `first` is where the rows begin in the buffer.
    int accessor(int first, int count, int componentType, const QString &type)
    {
        m_views.append(
            QJsonObject{{"buffer", 0}, {"byteOffset", first}, {"byteLength", m_bytes.size() - first}});
        m_accessors.append(QJsonObject{{"bufferView", m_views.size() - 1},
                                       {"componentType", componentType},
                                       {"count", count},
                                       {"type", type}});
        return m_accessors.size() - 1;
    }

    int floats(const QVector<Row> &rows, int width, const QString &type, const QJsonArray &least = {},
               const QJsonArray &greatest = {})
    {
        const int first = m_bytes.size();
        for (const Row &row : rows) {
            for (int i = 0; i < width; ++i)
                append(row[size_t(i)]);
        }
        const int index = accessor(first, rows.size(), 5126, type);
        if (!least.isEmpty()) {
            QJsonObject object = m_accessors[index].toObject();
            object["min"] = least;
            object["max"] = greatest;
            m_accessors[index] = object;
        }
        return index;
    }

    int identities(int count)
    {
        const int first = m_bytes.size();
        for (int i = 0; i < 16 * count; ++i)
            append(i % 16 % 5 == 0 ? 1.0f : 0.0f);
        return accessor(first, count, 5126, QStringLiteral("MAT4"));
    }

    int shorts(const QVector<std::array<quint16, 4>> &rows)
    {
        const int first = m_bytes.size();
        for (const auto &row : rows) {
            for (const quint16 value : row)
                append(value);
        }
        return accessor(first, rows.size(), 5123, QStringLiteral("VEC4"));
    }

    QJsonObject animationObject(const Animation &animation)
    {
        QJsonArray channels;
        QJsonArray samplers;
        for (const Channel &channel : animation.channels) {
            QVector<Row> times;
            QVector<Row> values;
            for (const Key &key : channel.keys) {
                times.append({key.time / 1000.0f, 0, 0, 0});
                values.append(key.value);
            }
            const int input = floats(times, 1, QStringLiteral("SCALAR"), {double(times.first()[0])},
                                     {double(times.last()[0])});
            const int output = channel.isRotation ? floats(values, 4, QStringLiteral("VEC4"))
                                                  : floats(values, 3, QStringLiteral("VEC3"));
            channels.append(QJsonObject{
                {"sampler", samplers.size()},
                {"target", QJsonObject{{"node", channel.node},
                                       {"path", channel.isRotation ? "rotation" : "translation"}}}});
            samplers.append(QJsonObject{{"input", input}, {"output", output}});
        }
        return {{"name", animation.name}, {"channels", channels}, {"samplers", samplers}};
    }

    QByteArray m_bytes;
    QJsonArray m_views;
    QJsonArray m_accessors;
};
