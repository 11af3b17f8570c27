// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfSurfaces.h"

#include "GltfExtras.h"
#include "GltfTextures.h"
#include "GltfWriter.h"
#include "ImportMessages.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
// What the view draws nothing of, of 1; see its shader.
constexpr double AlphaCutoff = 0.01;
constexpr int MostByteJoints = 256;
// As near to 1 as the square of a unit vector's length comes in single precision.
constexpr double UnitTolerance = 4e-7;

struct Primitive
{
    std::vector<quint32> vertices; ///< of the mesh, ascending
    std::vector<quint32> indexes;  ///< into those
    size_t leftOut = 0;            ///< triangles
};

/// The triangles of a surface, turned over, with the vertices that they need.
Primitive primitiveOf(const std::vector<quint16> &indexes, size_t vertexCount)
{
    Primitive primitive;
    for (size_t i = 0; i < indexes.size(); i += 3) {
        const size_t end = std::min(i + 3, indexes.size());
        const bool isWhole = end == i + 3 && std::all_of(indexes.begin() + std::ptrdiff_t(i),
                                                         indexes.begin() + std::ptrdiff_t(end),
                                                         [=](quint16 index) { return index < vertexCount; });
        if (!isWhole) {
            ++primitive.leftOut;
            continue;
        }
        // The game's are clockwise.
        primitive.indexes.insert(primitive.indexes.end(), {indexes[i], indexes[i + 2], indexes[i + 1]});
    }
    primitive.vertices = primitive.indexes;
    std::sort(primitive.vertices.begin(), primitive.vertices.end());
    primitive.vertices.erase(std::unique(primitive.vertices.begin(), primitive.vertices.end()),
                             primitive.vertices.end());
    for (quint32 &index : primitive.indexes) {
        index = quint32(std::lower_bound(primitive.vertices.begin(), primitive.vertices.end(), index) -
                        primitive.vertices.begin());
    }
    return primitive;
}

/// Numbers as the file takes them; those that are none are counted.
class FiniteFloats
{
public:
    float operator()(double value)
    {
        const auto single = float(value);
        if (std::isfinite(single))
            return single;
        ++strays;
        return 0.0f;
    }
    size_t strays = 0;
};

double lengthSquared(const Rigid::Vector &v)
{
    return v[0] * v[0] + v[1] * v[1] + v[2] * v[2];
}

/// The numbers of a primitive's vertices, by attribute.
struct Attributes
{
    std::vector<float> positions, normals, texcoords;
    std::vector<quint16> joints; ///< four a vertex
};

/// The direction that a counter-clockwise triangle faces; upwards where it has no area.
Rigid::Vector normalOf(const Rigid::Vector &a, const Rigid::Vector &b, const Rigid::Vector &c)
{
    const Rigid::Vector u{b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    const Rigid::Vector v{c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    const Rigid::Vector across{u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2],
                               u[0] * v[1] - u[1] * v[0]};
    const double length = std::sqrt(lengthSquared(across));
    if (!(length > 0.0) || !std::isfinite(length))
        return {0.0, 0.0, 1.0};
    return {across[0] / length, across[1] / length, across[2] / length};
}

/// Where a vertex has no direction, the first triangle with it has one.
void mendNormals(Attributes &attributes, const Primitive &primitive)
{
    const auto corner = [&](size_t vertex) {
        const float *at = &attributes.positions[3 * vertex];
        return Rigid::Vector{double(at[0]), double(at[1]), double(at[2])};
    };
    for (size_t i = 0; i + 2 < primitive.indexes.size(); i += 3) {
        for (size_t k = i; k < i + 3; ++k) {
            float *normal = &attributes.normals[3 * primitive.indexes[k]];
            if (normal[0] != 0.0f || normal[1] != 0.0f || normal[2] != 0.0f)
                continue;
            const Rigid::Vector across =
                normalOf(corner(primitive.indexes[i]), corner(primitive.indexes[i + 1]),
                         corner(primitive.indexes[i + 2]));
            for (size_t axis = 0; axis < 3; ++axis)
                normal[axis] = float(across[axis]);
        }
    }
}

template <typename Mesh>
Attributes attributesOf(const Mesh &mesh, const Primitive &primitive,
                        const std::function<GltfVertex(size_t)> &place, FiniteFloats &finite)
{
    Attributes attributes;
    for (const quint32 number : primitive.vertices) {
        const GltfVertex vertex = place(number);
        for (const double part : vertex.position)
            attributes.positions.push_back(finite(part));
        // A file may only hold units.
        const double squared = lengthSquared(vertex.normal);
        const bool hasDirection = squared > 1e-30 && std::isfinite(squared);
        const double length =
            !hasDirection || std::fabs(squared - 1.0) <= UnitTolerance ? 1.0 : std::sqrt(squared);
        for (const double part : vertex.normal)
            attributes.normals.push_back(hasDirection ? float(part / length) : 0.0f);
        // The game reads 1 - y.
        const QVector2D &uv = mesh.vertices[number].uv;
        attributes.texcoords.push_back(finite(double(uv.x())));
        attributes.texcoords.push_back(finite(double(1.0f - uv.y())));
        if (vertex.joint >= 0)
            attributes.joints.insert(attributes.joints.end(), {quint16(vertex.joint), 0, 0, 0});
    }
    mendNormals(attributes, primitive);
    return attributes;
}

QJsonObject written(GltfWriter &writer, const Attributes &attributes, const Primitive &primitive)
{
    using Purpose = GltfWriter::Purpose;
    QJsonObject entry{
        {QStringLiteral("POSITION"), writer.addFloats(attributes.positions, "VEC3", Purpose::Vertices, true)},
        {QStringLiteral("NORMAL"), writer.addFloats(attributes.normals, "VEC3", Purpose::Vertices)},
        {QStringLiteral("TEXCOORD_0"), writer.addFloats(attributes.texcoords, "VEC2", Purpose::Vertices)}};
    if (!attributes.joints.empty()) {
        const std::vector<quint16> &joints = attributes.joints;
        const bool areBytes = *std::max_element(joints.begin(), joints.end()) < MostByteJoints;
        entry.insert(QStringLiteral("JOINTS_0"),
                     areBytes ? writer.addBytes({joints.begin(), joints.end()}, "VEC4", false)
                              : writer.addShorts(joints, "VEC4"));
        // Each vertex belongs to one bone.
        std::vector<quint8> weights(joints.size(), 0);
        for (size_t i = 0; i < weights.size(); i += 4)
            weights[i] = 0xFF;
        entry.insert(QStringLiteral("WEIGHTS_0"), writer.addBytes(weights, "VEC4", true));
    }
    return {{QStringLiteral("attributes"), entry},
            {QStringLiteral("indices"), writer.addIndexes(primitive.indexes, primitive.vertices.size())}};
}

int addMaterial(GltfWriter &writer, int number, const QString &material, GltfTextures &textures)
{
    const GltfTextures::Texture texture = textures.find(material);
    QJsonObject shading{{QStringLiteral("metallicFactor"), 0}, {QStringLiteral("roughnessFactor"), 1}};
    if (texture.index >= 0) {
        shading.insert(QStringLiteral("baseColorTexture"),
                       QJsonObject{{QStringLiteral("index"), texture.index}});
    }
    QJsonObject entry{{QStringLiteral("name"), material.section(QLatin1Char('/'), -1)},
                      {QStringLiteral("pbrMetallicRoughness"), shading},
                      {QStringLiteral("extras"), GltfExtras::extras(GltfExtras::Surface{number, material})}};
    if (texture.hasHoles) {
        entry.insert(QStringLiteral("alphaMode"), QStringLiteral("MASK"));
        entry.insert(QStringLiteral("alphaCutoff"), AlphaCutoff);
    }
    return writer.append("materials", entry);
}

template <typename Mesh>
int addSurfacesOf(GltfWriter &writer, const Mesh &mesh, const QString &name,
                  const std::function<GltfVertex(size_t)> &place, GltfTextures &textures,
                  ImportMessages &messages)
{
    QJsonArray primitives;
    FiniteFloats finite;
    for (size_t i = 0; i < mesh.surfaces.size(); ++i) {
        const Primitive primitive = primitiveOf(mesh.surfaces[i].triangleIndexes, mesh.vertices.size());
        if (primitive.leftOut > 0) {
            messages.addWarning(
                QCoreApplication::translate("Import", "[glTF Export] Surface %1: %2 triangles name vertices "
                                                      "that are not there and are left out")
                    .arg(QString::number(i), QString::number(primitive.leftOut)));
        }
        if (primitive.indexes.empty())
            continue;
        QJsonObject entry = written(writer, attributesOf(mesh, primitive, place, finite), primitive);
        entry.insert(QStringLiteral("material"),
                     addMaterial(writer, int(i), mesh.surfaces[i].materialPath, textures));
        primitives.append(entry);
    }
    if (finite.strays > 0) {
        messages.addWarning(
            QCoreApplication::translate("Import",
                                        "[glTF Export] %1 numbers of vertices are none, and are written as 0")
                .arg(finite.strays));
    }
    if (primitives.isEmpty())
        return -1;
    return writer.append("meshes",
                         {{QStringLiteral("name"), name}, {QStringLiteral("primitives"), primitives}});
}
} // namespace

int addSurfaces(GltfWriter &writer, const SkinnedMesh &mesh, const QString &name,
                const std::function<GltfVertex(size_t)> &place, GltfTextures &textures,
                ImportMessages &messages)
{
    return addSurfacesOf(writer, mesh, name, place, textures, messages);
}

int addSurfaces(GltfWriter &writer, const StaticMesh &mesh, const QString &name,
                const std::function<GltfVertex(size_t)> &place, GltfTextures &textures,
                ImportMessages &messages)
{
    return addSurfacesOf(writer, mesh, name, place, textures, messages);
}
