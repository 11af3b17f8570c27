// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"

#include <QLoggingCategory>
#include <QStringList>

#include <assimp/scene.h>

Q_DECLARE_LOGGING_CATEGORY(importLog)

struct AnimFile;
struct SkinnedMesh;
struct TexturesElsewhere;

namespace Assimp {
class Importer;
}

/// What the steps of an import share.
struct SceneSource
{
    const QString &modelPath;
    const QString &kmatPath;
    QStringList &textures;
    ImportMessages &messages;
    const aiScene *scene = nullptr;
    TexturesElsewhere *elsewhere = nullptr; ///< where it may be that not all files can be opened
};

inline QString text(const aiString &name)
{
    return QString::fromUtf8(name.data, int(name.length));
}

/// Reads the file with the properties set on `importer`, which owns the scene. Gives none, after an error
/// line, when the file cannot be read or holds no meshes. `operation` names the import in the debug log.
const aiScene *readScene(Assimp::Importer &importer, const char *operation, const SceneSource &source,
                         quint32 flags);

/// Makes surfaces of the scene's materials, vertices and triangles of its meshes. Returns true, after an
/// error line, when there are more than `vertexLimit` vertices. For SkinnedMesh and StaticMesh.
template <typename Mesh>
[[nodiscard]] bool addSurfaces(const SceneSource &source, quint32 vertexLimit, Mesh &mesh);

/// "3 bones", "1 bone".
QString countText(qint64 count, const char *one, const char *many);
/// "2 surfaces, 24 vertices, 12 triangles"
template <typename Mesh>
QString geometryText(const Mesh &mesh);
/// The same with bones, animations and frames.
QString contentText(const SkinnedMesh &mesh, const AnimFile &anim);
