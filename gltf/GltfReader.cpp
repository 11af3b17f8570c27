// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfReader.h"

#include "GltfText.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr qint64 LargestFile = qint64(1) << 30;
constexpr int WeightSets = 4; ///< of four joints a vertex each
constexpr size_t BytesOfVertex = 2 * sizeof(QVector3D) + sizeof(QVector2D) + sizeof(int);

enum PrimitiveMode { Triangles = 4, TriangleStrip, TriangleFan };

class SceneReader
{
public:
    SceneReader(GltfBytes &bytes, GltfScene &scene)
        : m_bytes(bytes)
        , m_scene(scene)
    {}

    /// Returns true on failure, which the bytes explain.
    bool read()
    {
        return readNodes() || checkParents() || readOrder() || readMaterials() || readMeshes() ||
               readSkins() || readAnimations();
    }

private:
    static QString place(const char *list, int index)
    {
        return QStringLiteral("%1/%2").arg(QLatin1String(list)).arg(index);
    }

    /// An index of a list; -1 without one. Returns true on failure.
    bool index(const QJsonObject &object, const char *field, size_t count, int &value, const QString &where)
    {
        value = -1;
        const QJsonValue given = object.value(QLatin1String(field));
        if (given.isUndefined())
            return false;
        value = given.toInt(-1);
        return value < 0 || size_t(value) >= count ? m_bytes.fail(where) : false;
    }

    template <size_t Count>
    bool numbers(const QJsonObject &object, const char *field, std::array<float, Count> &values,
                 const QString &where)
    {
        const QJsonValue given = object.value(QLatin1String(field));
        if (given.isUndefined())
            return false;
        const QJsonArray array = given.toArray();
        for (size_t i = 0; i < Count; ++i) {
            const QJsonValue value = array.at(int(i));
            values[i] = float(value.toDouble());
            if (!value.isDouble() || !std::isfinite(values[i]))
                return m_bytes.fail(where);
        }
        return false;
    }

    bool readNodes()
    {
        const QJsonArray list = m_bytes.list("nodes");
        m_scene.nodes.resize(size_t(list.size()));
        const size_t meshes = size_t(m_bytes.list("meshes").size());
        const size_t skins = size_t(m_bytes.list("skins").size());
        for (int i = 0; i < list.size(); ++i) {
            const QString where = place("nodes", i);
            const QJsonObject object = list.at(i).toObject();
            GltfScene::Node &node = m_scene.nodes[size_t(i)];
            node.name = object.value(QLatin1String("name")).toString();
            node.extras = object.value(QLatin1String("extras")).toObject();
            std::array<float, 3> move{};
            std::array<float, 4> turn{0.0f, 0.0f, 0.0f, 1.0f};
            std::array<float, 3> scale{1.0f, 1.0f, 1.0f};
            std::array<float, 16> matrix{};
            if (index(object, "mesh", meshes, node.mesh, where) ||
                index(object, "skin", skins, node.skin, where) ||
                numbers(object, "translation", move, where) || numbers(object, "rotation", turn, where) ||
                numbers(object, "scale", scale, where) || numbers(object, "matrix", matrix, where))
                return true;
            node.translation = {move[0], move[1], move[2]};
            node.rotation = QQuaternion(turn[3], turn[0], turn[1], turn[2]).normalized();
            node.scale = {scale[0], scale[1], scale[2]};
            node.hasMatrix = object.contains(QLatin1String("matrix"));
            if (node.hasMatrix)
                node.matrix = QMatrix4x4(matrix.data()).transposed(); // stored by columns
            for (const QJsonValue each : object.value(QLatin1String("children")).toArray()) {
                const int child = each.toInt(-1);
                if (child < 0 || child >= list.size() || m_scene.nodes[size_t(child)].parent >= 0)
                    return m_bytes.fail(where);
                m_scene.nodes[size_t(child)].parent = i;
            }
        }
        return false;
    }

    /// Whoever climbs from child to parent would not come out of a circle. Returns true when there is one.
    bool checkParents()
    {
        constexpr int NotVisited = -1;
        std::vector<int> visitedFrom(m_scene.nodes.size(), NotVisited);
        for (int start = 0; size_t(start) < visitedFrom.size(); ++start) {
            int at = start;
            for (; at >= 0 && visitedFrom[size_t(at)] == NotVisited; at = m_scene.nodes[size_t(at)].parent)
                visitedFrom[size_t(at)] = start;
            if (at >= 0 && visitedFrom[size_t(at)] == start)
                return m_bytes.fail(place("nodes", at));
        }
        return false;
    }

    /// Nodes without a parent, or those of the scene, then their children.
    bool readOrder()
    {
        const size_t count = m_scene.nodes.size();
        std::vector<bool> isRoot(count, true);
        const QJsonArray scenes = m_bytes.list("scenes");
        if (!scenes.isEmpty()) {
            int number = -1;
            if (index(m_bytes.root(), "scene", size_t(scenes.size()), number, QStringLiteral("scene")))
                return true;
            isRoot.assign(count, false);
            for (const QJsonValue each :
                 scenes.at(std::max(number, 0)).toObject().value(QLatin1String("nodes")).toArray()) {
                const int node = each.toInt(-1);
                if (node < 0 || size_t(node) >= count)
                    return m_bytes.fail(QStringLiteral("scene"));
                isRoot[size_t(node)] = true;
            }
        }
        std::vector<std::vector<int>> children(count);
        for (size_t i = 0; i < count; ++i) {
            const int parent = m_scene.nodes[i].parent;
            if (parent >= 0)
                children[size_t(parent)].push_back(int(i));
            else if (isRoot[i])
                m_scene.order.push_back(int(i));
        }
        for (size_t i = 0; i < m_scene.order.size(); ++i) {
            const std::vector<int> &below = children[size_t(m_scene.order[i])];
            m_scene.order.insert(m_scene.order.end(), below.begin(), below.end());
        }
        return false;
    }

    bool readMaterials()
    {
        for (const QJsonValue each : m_bytes.list("materials")) {
            const QJsonObject object = each.toObject();
            m_scene.materials.push_back({object.value(QLatin1String("name")).toString(),
                                         object.value(QLatin1String("extras")).toObject()});
        }
        return false;
    }

    bool readMeshes()
    {
        const QJsonArray list = m_bytes.list("meshes");
        for (int i = 0; i < list.size(); ++i) {
            m_scene.meshes.emplace_back();
            for (const QJsonValue each : list.at(i).toObject().value(QLatin1String("primitives")).toArray()) {
                GltfScene::Primitive primitive;
                const QJsonObject object = each.toObject();
                const int mode = object.value(QLatin1String("mode")).toInt(Triangles);
                if (mode < Triangles || mode > TriangleFan) {
                    ++m_scene.otherPrimitives;
                    continue;
                }
                if (readPrimitive(object, mode, primitive, place("meshes", i)))
                    return true;
                m_scene.meshes.back().push_back(std::move(primitive));
            }
        }
        return false;
    }

    bool readPrimitive(const QJsonObject &object, int mode, GltfScene::Primitive &primitive,
                       const QString &where)
    {
        const QJsonObject attributes = object.value(QLatin1String("attributes")).toObject();
        const auto read = [&](const char *name, int components, GltfBytes::Floats &values) {
            values = m_bytes.floats(attributes.value(QLatin1String(name)), components);
            return !values;
        };
        GltfBytes::Floats values;
        if (index(object, "material", m_scene.materials.size(), primitive.material, where) ||
            read("POSITION", 3, values))
            return true;
        const size_t count = values->size() / 3;
        if (m_bytes.spend(count * BytesOfVertex, where))
            return true;
        for (size_t i = 0; i < count; ++i)
            primitive.positions.emplace_back((*values)[3 * i], (*values)[3 * i + 1], (*values)[3 * i + 2]);
        if (attributes.contains(QLatin1String("NORMAL"))) {
            if (read("NORMAL", 3, values))
                return true;
            if (values->size() != 3 * count)
                return m_bytes.fail(where);
            for (size_t i = 0; i < count; ++i)
                primitive.normals.emplace_back((*values)[3 * i], (*values)[3 * i + 1], (*values)[3 * i + 2]);
        }
        if (attributes.contains(QLatin1String("TEXCOORD_0"))) {
            if (read("TEXCOORD_0", 2, values))
                return true;
            if (values->size() != 2 * count)
                return m_bytes.fail(where);
            for (size_t i = 0; i < count; ++i)
                primitive.uvs.emplace_back((*values)[2 * i], (*values)[2 * i + 1]);
        }
        return readJoints(attributes, count, primitive, where) ||
               readTriangles(object, mode, count, primitive, where);
    }

    bool readJoints(const QJsonObject &attributes, size_t count, GltfScene::Primitive &primitive,
                    const QString &where)
    {
        // A share this small bends nothing that can be seen.
        constexpr float LeastShare = 0.02f;
        std::vector<float> strongest(count, 0.0f);
        std::vector<float> sum(count, 0.0f);
        for (int set = 0; set < WeightSets; ++set) {
            const QString joint = QStringLiteral("JOINTS_%1").arg(set);
            if (!attributes.contains(joint))
                break;
            const GltfBytes::Integers joints = m_bytes.integers(attributes.value(joint), 4);
            const GltfBytes::Floats weights =
                joints ? m_bytes.floats(attributes.value(QStringLiteral("WEIGHTS_%1").arg(set)), 4) : nullptr;
            if (!joints || !weights)
                return true;
            if (joints->size() != 4 * count || weights->size() != 4 * count)
                return m_bytes.fail(where);
            primitive.joints.resize(count, -1);
            for (size_t i = 0; i < 4 * count; ++i) {
                const float weight = (*weights)[i];
                sum[i / 4] += weight;
                if (weight > strongest[i / 4]) {
                    strongest[i / 4] = weight;
                    primitive.joints[i / 4] = int(std::min<quint32>((*joints)[i], 0x7FFFFFFF));
                }
            }
        }
        for (size_t i = 0; i < count; ++i)
            primitive.sharedVertices += strongest[i] < (1.0f - LeastShare) * sum[i] ? 1 : 0;
        return false;
    }

    bool readTriangles(const QJsonObject &object, int mode, size_t count, GltfScene::Primitive &primitive,
                       const QString &where)
    {
        std::vector<quint32> corners;
        GltfBytes::Integers indices;
        if (object.contains(QLatin1String("indices"))) {
            indices = m_bytes.integers(object.value(QLatin1String("indices")), 1);
            if (!indices)
                return true;
        }
        // Of a strip, each corner begins a triangle.
        const size_t bytesOfCorner = (mode == Triangles ? 1 : 3) * sizeof(quint32);
        if (m_bytes.spend((indices ? indices->size() : count) * bytesOfCorner, where))
            return true;
        if (indices) {
            corners = *indices;
        } else {
            for (size_t i = 0; i < count; ++i)
                corners.push_back(quint32(i));
        }
        if (std::any_of(corners.begin(), corners.end(), [count](quint32 each) { return each >= count; }))
            return m_bytes.fail(where);
        if (mode == Triangles) {
            corners.resize(corners.size() / 3 * 3);
            primitive.indices = std::move(corners);
            return false;
        }
        for (size_t i = 0; i + 2 < corners.size(); ++i) {
            const bool isOdd = mode == TriangleStrip && i % 2 == 1;
            const quint32 first = mode == TriangleFan ? corners[0] : corners[i];
            primitive.indices.insert(primitive.indices.end(),
                                     {first, corners[i + (isOdd ? 2 : 1)], corners[i + (isOdd ? 1 : 2)]});
        }
        return false;
    }

    bool readSkins()
    {
        const QJsonArray list = m_bytes.list("skins");
        for (int i = 0; i < list.size(); ++i) {
            const QJsonObject object = list.at(i).toObject();
            GltfScene::Skin skin;
            for (const QJsonValue each : object.value(QLatin1String("joints")).toArray()) {
                const int node = each.toInt(-1);
                if (node < 0 || size_t(node) >= m_scene.nodes.size())
                    return m_bytes.fail(place("skins", i));
                skin.joints.push_back(node);
            }
            skin.inverseBinds.resize(skin.joints.size());
            const QJsonValue binds = object.value(QLatin1String("inverseBindMatrices"));
            const GltfBytes::Floats matrices = binds.isUndefined() ? nullptr : m_bytes.floats(binds, 16);
            if (!binds.isUndefined() && !matrices)
                return true;
            if (matrices && matrices->size() < 16 * skin.joints.size())
                return m_bytes.fail(place("skins", i));
            for (size_t j = 0; matrices && j < skin.joints.size(); ++j)
                skin.inverseBinds[j] = QMatrix4x4(matrices->data() + 16 * j).transposed();
            m_scene.skins.push_back(std::move(skin));
        }
        // A vertex names a joint of whatever skin its mesh is shown with.
        std::vector<int> greatest(m_scene.meshes.size(), -1);
        for (size_t i = 0; i < greatest.size(); ++i) {
            for (const GltfScene::Primitive &primitive : m_scene.meshes[i]) {
                for (const int joint : primitive.joints)
                    greatest[i] = std::max(greatest[i], joint);
            }
        }
        for (const GltfScene::Node &node : m_scene.nodes) {
            if (node.mesh >= 0 && node.skin >= 0 &&
                greatest[size_t(node.mesh)] >= int(m_scene.skins[size_t(node.skin)].joints.size()))
                return m_bytes.fail(place("meshes", node.mesh));
        }
        return false;
    }

    bool readAnimations()
    {
        const QJsonArray list = m_bytes.list("animations");
        for (int i = 0; i < list.size(); ++i) {
            const QJsonObject object = list.at(i).toObject();
            GltfScene::Animation animation;
            animation.name = object.value(QLatin1String("name")).toString();
            animation.extras = object.value(QLatin1String("extras")).toObject();
            const QJsonArray samplers = object.value(QLatin1String("samplers")).toArray();
            for (const QJsonValue each : object.value(QLatin1String("channels")).toArray()) {
                GltfScene::Channel channel;
                bool counts = false;
                if (readChannel(each.toObject(), samplers, channel, counts, place("animations", i)))
                    return true;
                if (counts)
                    animation.channels.push_back(std::move(channel));
            }
            m_scene.animations.push_back(std::move(animation));
        }
        return false;
    }

    /// `counts`: it moves a node, rather than the weights of a morph.
    bool readChannel(const QJsonObject &object, const QJsonArray &samplers, GltfScene::Channel &channel,
                     bool &counts, const QString &where)
    {
        static const QStringList paths{"translation", "rotation", "scale"};
        static const QStringList interpolations{"LINEAR", "STEP", "CUBICSPLINE"};
        const QJsonObject target = object.value(QLatin1String("target")).toObject();
        const int path = paths.indexOf(target.value(QLatin1String("path")).toString());
        int number = -1;
        if (index(target, "node", m_scene.nodes.size(), channel.node, where) ||
            index(object, "sampler", size_t(samplers.size()), number, where))
            return true;
        counts = path >= 0 && channel.node >= 0;
        if (!counts)
            return false;
        const QJsonObject sampler = samplers.at(number).toObject();
        const int interpolation = interpolations.indexOf(
            sampler.value(QLatin1String("interpolation")).toString(interpolations.first()));
        channel.path = GltfScene::Path(path);
        channel.interpolation = GltfScene::Interpolation(interpolation);
        const size_t width = channel.path == GltfScene::Path::Rotation ? 4 : 3;
        channel.times = m_bytes.floats(sampler.value(QLatin1String("input")), 1);
        channel.values =
            channel.times ? m_bytes.floats(sampler.value(QLatin1String("output")), int(width)) : nullptr;
        if (!channel.times || !channel.values)
            return true;
        const bool isSpline = channel.interpolation == GltfScene::Interpolation::CubicSpline;
        const size_t keys = channel.times->size();
        if (number < 0 || interpolation < 0 || keys == 0 ||
            channel.values->size() != keys * width * (isSpline ? 3 : 1) ||
            !std::is_sorted(channel.times->begin(), channel.times->end()))
            return m_bytes.fail(where);
        return false;
    }

    GltfBytes &m_bytes;
    GltfScene &m_scene;
};
} // namespace

bool readGltf(const QByteArray &file, const GltfBytes::FileReader &readFile, GltfScene &scene,
              QString &reason)
{
    GltfBytes bytes;
    scene = {};
    const bool failed = bytes.open(file, readFile) || SceneReader(bytes, scene).read();
    reason = bytes.error();
    return failed;
}

bool openGltf(const QString &path, GltfBytes &bytes, QString &reason)
{
    const auto read = [](const QString &name) -> QByteArray {
        QFile file(name);
        // Others than regular files may have no end.
        if (!QFileInfo(name).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray content = file.readAll();
        return content.isNull() ? QByteArray("") : content;
    };
    const QByteArray file = read(path);
    if (file.isNull()) {
        reason = Gltf::tr("The file cannot be opened.");
        return true;
    }
    const QDir folder = QFileInfo(path).dir();
    const bool failed = bytes.open(file, [&](const QString &uri) { return read(folder.filePath(uri)); });
    reason = bytes.error();
    return failed;
}

bool readGltf(const QString &path, GltfScene &scene, QString &reason)
{
    GltfBytes bytes;
    scene = {};
    if (openGltf(path, bytes, reason))
        return true;
    const bool failed = SceneReader(bytes, scene).read();
    reason = bytes.error();
    return failed;
}
