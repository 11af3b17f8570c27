// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FindingCollector.h"
#include "Transform.h"
#include "Validation.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

/// What the checks of several kinds of models share.
namespace Validation {
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Validation)
};

template <typename Number>
QString number(Number value)
{
    return QString::number(value);
}

/// "there are 0 to 16", for lists of any length.
inline QString range(size_t count)
{
    return count == 0 ? Texts::tr("there are none") : Texts::tr("there are 0 to %1").arg(qint64(count) - 1);
}

inline bool isFinite(float value)
{
    return std::isfinite(value);
}
inline bool isFinite(const std::array<float, 8> &values)
{
    return std::all_of(values.begin(), values.end(), [](float value) { return isFinite(value); });
}
inline bool isFinite(const QVector2D &value)
{
    return isFinite(value.x()) && isFinite(value.y());
}
inline bool isFinite(const QVector4D &value)
{
    return isFinite(value.toVector3D()) && isFinite(value.w());
}

template <typename Vector>
double lengthSquared(const Vector &vector)
{
    double squared = 0;
    for (int i = 0; i < int(sizeof(Vector) / sizeof(float)); ++i)
        squared += double(vector[i]) * double(vector[i]);
    return squared;
}

/// At or below it a vector is too short to be given the length 1; QQuaternion::normalized() has the same.
constexpr double ZeroLengthSquared = 1e-12;

/// The names of fields in findings.
namespace Field {
inline constexpr const char *position = QT_TRANSLATE_NOOP("Validation", "position");
inline constexpr const char *uv = QT_TRANSLATE_NOOP("Validation", "UV");
inline constexpr const char *normal = QT_TRANSLATE_NOOP("Validation", "normal");
inline constexpr const char *boundingBox = QT_TRANSLATE_NOOP("Validation", "bounding box");
inline constexpr const char *origin = QT_TRANSLATE_NOOP("Validation", "origin");
inline constexpr const char *damageScale = QT_TRANSLATE_NOOP("Validation", "damage scale");
inline constexpr const char *frameScale = QT_TRANSLATE_NOOP("Validation", "frame scale");
inline constexpr const char *speed = QT_TRANSLATE_NOOP("Validation", "speed");
inline constexpr const char *yawOffset = QT_TRANSLATE_NOOP("Validation", "yaw offset");
inline constexpr const char *initialPosition = QT_TRANSLATE_NOOP("Validation", "initial position");
inline constexpr const char *initialRotation = QT_TRANSLATE_NOOP("Validation", "initial rotation");
inline constexpr const char *translation = QT_TRANSLATE_NOOP("Validation", "translation");
inline constexpr const char *rotation = QT_TRANSLATE_NOOP("Validation", "rotation");
inline constexpr const char *offset = QT_TRANSLATE_NOOP("Validation", "offset");
inline constexpr const char *arguments = QT_TRANSLATE_NOOP("Validation", "arguments");
} // namespace Field

/// How a sentence begins that is about the record: "Vertex 12".
QString recordName(const RecordRef &place);

/// Adds a finding for what the file of a model holds behind its end.
void checkEnd(FindingCollector &found, const RecordRef &root, qint64 bytesBehind);

/// Adds a finding for a record some of whose fields (name, value) hold what is no number.
template <typename... Fields>
void checkFinite(FindingCollector &found, const RecordRef &place, const Fields &...fields)
{
    if ((isFinite(fields.second) && ...))
        return;
    found.add(Rule::NotFinite, place, [&] {
        QStringList names;
        ((isFinite(fields.second) ? void() : void(names << Texts::tr(fields.first))), ...);
        return Texts::tr(
                   "%1 holds what is no number, or infinite, as %2. Whatever is computed from it is lost: "
                   "the part vanishes or tears. Enter a proper number.")
            .arg(recordName(place), names.join(QLatin1String(", ")));
    });
}

/// Whether the minimum of a box is above its maximum.
inline bool isInverted(const QVector3D &min, const QVector3D &max)
{
    return min.x() > max.x() || min.y() > max.y() || min.z() > max.z();
}
/// What a fix makes of such a box.
enum class BoxRepair { None, AroundVertices, InOrder };
inline BoxRepair aroundVertices(bool hasVertices)
{
    return hasVertices ? BoxRepair::AroundVertices : BoxRepair::None;
}
inline void addInvertedBox(FindingCollector &found, const RecordRef &place, BoxRepair repair)
{
    found.add(Rule::BoxInverted, place, repair != BoxRepair::None, [&] {
        const QString text =
            Texts::tr("%1 has a bounding box whose minimum is above its maximum: the game may "
                      "take it for empty, hide the model at the edge of the screen, or miss it.")
                .arg(recordName(place));
        return text + QLatin1Char(' ') +
               (repair == BoxRepair::AroundVertices
                    ? Texts::tr("Fixing it makes it the box around the vertices.")
                : repair == BoxRepair::InOrder
                    ? Texts::tr("Fixing it exchanges the numbers that are the wrong way round.")
                    : Texts::tr("Exchange the numbers that are the wrong way round."));
    });
}

/// The index lists of the surfaces. A skinned mesh ends each list in its file by `terminator`, which a
/// static mesh does not have: -1.
template <typename Mesh>
void checkTriangles(FindingCollector &found, const Mesh &mesh, RecordKind surfaceKind, RecordKind indexKind,
                    int terminator)
{
    const size_t vertexCount = mesh.vertices.size();
    for (size_t s = 0; s < mesh.surfaces.size(); ++s) {
        const std::vector<quint16> &indexes = mesh.surfaces[s].triangleIndexes;
        const RecordRef surface{surfaceKind, {int(s), 0, 0}};
        if (indexes.empty()) {
            found.add(Rule::SurfaceEmpty, surface, [&] {
                return Texts::tr("Surface %1 has no triangles: nothing of it is drawn. If it is not needed, "
                                 "leave its object out when you import the model again.")
                    .arg(s);
            });
        }
        if (indexes.size() % 3 != 0) {
            found.add(Rule::TriangleIncomplete, surface, [&] {
                return Texts::tr("Surface %1 has %2 triangle indexes, which is not a multiple of three: the "
                                 "last triangle lacks a corner, and whoever counts in triangles reads on "
                                 "behind the list. Import the model again.")
                    .arg(number(s), number(indexes.size()));
            });
        }
        for (size_t i = 0; i < indexes.size(); ++i) {
            const quint16 index = indexes[i];
            const RecordRef place{indexKind, {int(s), int(i), 0}};
            if (index == terminator) {
                found.add(Rule::TriangleIndexReserved, place, [&] {
                    return Texts::tr("Triangle index %1 of surface %2 is 65535, the value that ends the list "
                                     "in the file: the model cannot be saved. Enter the index of a vertex.")
                        .arg(number(i), number(s));
                });
            } else if (index >= vertexCount) {
                found.add(Rule::TriangleIndexOutOfRange, place, [&] {
                    return Texts::tr("Triangle index %1 of surface %2 names vertex %3, which does not exist "
                                     "(%4). The view leaves the triangle out; the game may crash. "
                                     "Enter the index of a vertex.")
                        .arg(number(i), number(s), number(index), range(vertexCount));
                });
            }
        }
    }
}

template <typename Mesh>
void checkVertices(FindingCollector &found, const Mesh &mesh, RecordKind vertexKind)
{
    for (size_t v = 0; v < mesh.vertices.size(); ++v) {
        const auto &vertex = mesh.vertices[v];
        // Nearly all are in order, which a sum tells: it is finite only if all of them are.
        const QVector3D sum = vertex.position + vertex.normal;
        if (std::isfinite(sum.x() + sum.y() + sum.z() + vertex.uv.x() + vertex.uv.y()) &&
            lengthSquared(vertex.normal) > ZeroLengthSquared)
            continue;
        const RecordRef place{vertexKind, {int(v), 0, 0}};
        checkFinite(found, place, std::pair(Field::position, vertex.position),
                    std::pair(Field::uv, vertex.uv), std::pair(Field::normal, vertex.normal));
        if (lengthSquared(vertex.normal) <= ZeroLengthSquared) {
            found.add(Rule::NormalZero, place, [&] {
                return Texts::tr("The normal of vertex %1 is zero: it points nowhere, so light falls on the "
                                 "vertex from no side. Enter its direction, or import the model again with "
                                 "\"Generate Normals\".")
                    .arg(v);
            });
        }
    }
}

/// Whether the file can hold the paths of the surfaces' materials.
void checkTexts(FindingCollector &found, const QStringList &materialPaths, RecordKind surfaceKind);

/// The materials that the surfaces name, and their textures.
void checkMaterials(FindingCollector &found, const QStringList &materialPaths, RecordKind surfaceKind,
                    MaterialFaults &materials);

template <typename Mesh>
QStringList materialPaths(const Mesh &mesh)
{
    QStringList paths;
    for (const auto &surface : mesh.surfaces)
        paths << surface.materialPath;
    return paths;
}
} // namespace Validation
