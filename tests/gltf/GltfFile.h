// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMatrix4x4>
#include <QQuaternion>
#include <QVector2D>
#include <QVector3D>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

/// A binary glTF file as another program takes it, with skinning by the book.
class GltfFile
{
public:
    QJsonObject root;
    QByteArray buffer;

    /// Of a whole .glb; there is no root when the frame around it is wrong.
    explicit GltfFile(const QByteArray &glb)
    {
        const auto number = [&glb](int at) { return qFromLittleEndian<quint32>(glb.constData() + at); };
        if (glb.size() < 20 || !glb.startsWith("glTF") || number(4) != 2 ||
            number(8) != quint32(glb.size()) || number(16) != 0x4E4F534A)
            return;
        const int jsonSize = int(number(12));
        if (jsonSize % 4 != 0 || number(20 + jsonSize + 4) != 0x004E4942)
            return;
        root = QJsonDocument::fromJson(glb.mid(20, jsonSize)).object();
        buffer = glb.mid(20 + jsonSize + 8, int(number(20 + jsonSize)));
        readSurfaces();
    }

    QJsonObject at(const char *list, int index) const
    {
        return root[QLatin1String(list)].toArray().at(index).toObject();
    }
    QJsonArray list(const char *name) const { return root[QLatin1String(name)].toArray(); }
    /// The node of a name.
    int node(const QString &name) const
    {
        for (int i = 0; i < list("nodes").size(); ++i) {
            if (at("nodes", i)["name"].toString() == name)
                return i;
        }
        return -1;
    }

    /// All numbers of an accessor.
    const std::vector<double> &numbers(const QJsonValue &accessorIndex) const
    {
        const auto [known, isNew] = m_numbers.try_emplace(accessorIndex.toInt(-1));
        if (isNew)
            known->second = readNumbers(accessorIndex);
        return known->second;
    }
    std::vector<double> readNumbers(const QJsonValue &accessorIndex) const
    {
        const QJsonObject accessor = at("accessors", accessorIndex.toInt(-1));
        const QJsonObject view = at("bufferViews", accessor["bufferView"].toInt(-1));
        const QString type = accessor["type"].toString();
        const int components = type == "SCALAR" ? 1 : type == "MAT4" ? 16 : type.right(1).toInt();
        const int kind = accessor["componentType"].toInt();
        const int width = kind == 5121 ? 1 : kind == 5123 ? 2 : 4;
        const int offset = view["byteOffset"].toInt() + accessor["byteOffset"].toInt();
        const int count = accessor["count"].toInt() * components;
        std::vector<double> values;
        if (offset % width != 0 ||
            accessor["byteOffset"].toInt() + count * width > view["byteLength"].toInt() ||
            offset + count * width > buffer.size())
            return values;
        const char *bytes = buffer.constData() + offset;
        for (int i = 0; i < count; ++i, bytes += width) {
            float single = 0.0f;
            std::memcpy(&single, bytes, size_t(width == 4 ? 4 : 0));
            const double value = kind == 5126   ? double(single)
                                 : kind == 5121 ? double(quint8(*bytes))
                                 : kind == 5123 ? double(qFromLittleEndian<quint16>(bytes))
                                                : double(qFromLittleEndian<quint32>(bytes));
            values.push_back(accessor["normalized"].toBool() ? value / 255.0 : value);
        }
        return values;
    }

    /// How the nodes stand; clips change it and leave it to the next one, as players do.
    struct Place
    {
        QVector3D translation;
        QQuaternion rotation;
    };
    std::vector<Place> rest() const
    {
        std::vector<Place> places;
        for (const QJsonValue &each : list("nodes")) {
            const QJsonArray t = each["translation"].toArray();
            const QJsonArray r = each["rotation"].toArray();
            Place place;
            if (!t.isEmpty())
                place.translation = {float(t[0].toDouble()), float(t[1].toDouble()), float(t[2].toDouble())};
            if (!r.isEmpty())
                place.rotation = QQuaternion(float(r[3].toDouble()), float(r[0].toDouble()),
                                             float(r[1].toDouble()), float(r[2].toDouble()));
            places.push_back(place);
        }
        return places;
    }
    /// The greatest time among a clip's keys, in seconds.
    double length(int clip) const
    {
        double end = 0.0;
        for (const QJsonValue &sampler : at("animations", clip)["samplers"].toArray())
            end = std::max(end, numbers(sampler["input"]).back());
        return end;
    }
    /// Plays a clip at a time that is that of keys, as far as it has one there.
    void play(int clip, float time, std::vector<Place> &places) const
    {
        const QJsonArray samplers = at("animations", clip)["samplers"].toArray();
        for (const QJsonValue &channel : at("animations", clip)["channels"].toArray()) {
            const QJsonObject sampler = samplers[channel["sampler"].toInt()].toObject();
            const std::vector<double> &times = numbers(sampler["input"]);
            const std::vector<double> &keys = numbers(sampler["output"]);
            const auto found = std::lower_bound(times.begin(), times.end(), double(time) - 1e-7);
            const size_t key = std::min(size_t(found - times.begin()), times.size() - 1);
            const QJsonObject target = channel["target"].toObject();
            Place &place = places[size_t(target["node"].toInt())];
            const size_t width = keys.size() / times.size();
            const double *at = &keys[key * width];
            if (target["path"].toString() == "rotation")
                place.rotation = QQuaternion(float(at[3]), float(at[0]), float(at[1]), float(at[2]));
            else
                place.translation = {float(at[0]), float(at[1]), float(at[2])};
        }
    }

    struct Vertex
    {
        QVector3D position, normal;
        QVector2D uv;
        int joint = -1;
    };
    struct Surface
    {
        std::vector<Vertex> vertices;
        std::vector<int> indexes;
        QJsonObject material;
    };
    /// The primitives where the places have them, in the scene.
    std::vector<Surface> posed(const std::vector<Place> &places) const
    {
        const std::vector<QMatrix4x4> worlds = worldsOf(places);
        std::vector<QMatrix4x4> joints;
        for (size_t i = 0; i < m_joints.size(); ++i)
            joints.push_back(worlds[size_t(m_joints[i])] * m_binds[i]);
        std::vector<Surface> surfaces = m_surfaces;
        for (Surface &surface : surfaces) {
            for (Vertex &vertex : surface.vertices) {
                const QMatrix4x4 place = vertex.joint >= 0 ? joints[size_t(vertex.joint)] : QMatrix4x4();
                vertex.position = place.map(vertex.position);
                vertex.normal = place.mapVector(vertex.normal);
            }
        }
        return surfaces;
    }
    std::vector<QMatrix4x4> worldsOf(const std::vector<Place> &places) const
    {
        std::vector<QMatrix4x4> worlds;
        for (size_t i = 0; i < places.size(); ++i) {
            QMatrix4x4 world;
            for (int node = int(i); node >= 0; node = m_parents[size_t(node)]) {
                QMatrix4x4 local;
                local.translate(places[size_t(node)].translation);
                local.rotate(places[size_t(node)].rotation);
                world = local * world;
            }
            worlds.push_back(world);
        }
        return worlds;
    }

private:
    void readSurfaces()
    {
        m_parents.assign(size_t(list("nodes").size()), -1);
        for (int i = 0; i < list("nodes").size(); ++i) {
            for (const QJsonValue &child : at("nodes", i)["children"].toArray())
                m_parents[size_t(child.toInt())] = i;
        }
        const std::vector<double> binds = numbers(at("skins", 0)["inverseBindMatrices"]);
        for (const QJsonValue &joint : at("skins", 0)["joints"].toArray()) {
            QMatrix4x4 bind;
            for (int k = 0; k < 16; ++k)
                bind(k % 4, k / 4) = float(binds[16 * m_joints.size() + size_t(k)]);
            m_binds.push_back(bind);
            m_joints.push_back(joint.toInt());
        }
        for (const QJsonValue &primitive : at("meshes", 0)["primitives"].toArray()) {
            const QJsonObject attributes = primitive["attributes"].toObject();
            const auto values = [&](const char *name) { return numbers(attributes[QLatin1String(name)]); };
            const std::vector<double> p = values("POSITION"), n = values("NORMAL"), t = values("TEXCOORD_0"),
                                      j = values("JOINTS_0"), w = values("WEIGHTS_0");
            Surface surface;
            surface.material = at("materials", primitive["material"].toInt(-1));
            for (size_t i = 0; i < p.size() / 3; ++i) {
                Vertex vertex;
                vertex.position = {float(p[3 * i]), float(p[3 * i + 1]), float(p[3 * i + 2])};
                vertex.normal = {float(n[3 * i]), float(n[3 * i + 1]), float(n[3 * i + 2])};
                vertex.uv = {float(t[2 * i]), float(t[2 * i + 1])};
                if (!j.empty() && w[4 * i] == 1.0 && w[4 * i + 1] == 0.0)
                    vertex.joint = int(j[4 * i]);
                surface.vertices.push_back(vertex);
            }
            for (const double index : numbers(primitive["indices"]))
                surface.indexes.push_back(int(index));
            m_surfaces.push_back(surface);
        }
    }

    std::vector<int> m_parents; ///< by node
    std::vector<int> m_joints;  ///< nodes
    std::vector<QMatrix4x4> m_binds;
    std::vector<Surface> m_surfaces; ///< as stored
    mutable std::map<int, std::vector<double>> m_numbers;
};
