// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <vector>

/// What every glTF file of the tests is made of: one buffer, and numbers in it.
class GltfParts
{
public:
    enum Meaning { AsTheyAre, Shares }; ///< of whole numbers, whose greatest is 1 as a share

    /// Returns the number of the accessor.
    template <typename T>
    int add(const char *type, int width, const std::vector<T> &values, Meaning meaning = AsTheyAre)
    {
        const int bytes = int(values.size() * sizeof(T));
        m_views.append(QJsonObject{{"buffer", 0}, {"byteOffset", m_bytes.size()}, {"byteLength", bytes}});
        m_bytes.append(reinterpret_cast<const char *>(values.data()), bytes);
        m_accessors.append(QJsonObject{{"bufferView", m_views.size() - 1},
                                       {"componentType", sizeof(T) == 4 ? 5126 : 5123},
                                       {"normalized", meaning == Shares},
                                       {"count", int(values.size()) / width},
                                       {"type", type}});
        return m_accessors.size() - 1;
    }

    /// To an animation: times in seconds, three values each for a "translation", four for a "rotation".
    void addChannel(QJsonObject &animation, int node, const QString &path, const std::vector<float> &times,
                    const std::vector<float> &values)
    {
        const bool isRotation = path == QLatin1String("rotation");
        QJsonArray channels = animation["channels"].toArray();
        QJsonArray samplers = animation["samplers"].toArray();
        channels.append(QJsonObject{{"sampler", samplers.size()},
                                    {"target", QJsonObject{{"node", node}, {"path", path}}}});
        samplers.append(
            QJsonObject{{"input", add("SCALAR", 1, times)},
                        {"output", isRotation ? add("VEC4", 4, values) : add("VEC3", 3, values)}});
        animation["channels"] = channels;
        animation["samplers"] = samplers;
    }

    /// The file, from all that is no number.
    QByteArray file(QJsonObject root) const
    {
        root["asset"] = QJsonObject{{"version", "2.0"}};
        root["scene"] = 0;
        root["scenes"] = QJsonArray{QJsonObject{{"nodes", QJsonArray{0}}}};
        root["accessors"] = m_accessors;
        root["bufferViews"] = m_views;
        root["buffers"] = QJsonArray{QJsonObject{
            {"byteLength", m_bytes.size()},
            {"uri", QString::fromLatin1("data:application/octet-stream;base64," + m_bytes.toBase64())}}};
        return QJsonDocument(root).toJson();
    }

private:
    QByteArray m_bytes;
    QJsonArray m_views;
    QJsonArray m_accessors;
};
