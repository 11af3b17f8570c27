// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ObjExport.h"

#include "SceneReading.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <assimp/Exporter.hpp>
#include <assimp/IOStream.hpp>
#include <assimp/IOSystem.hpp>

#include <algorithm>
#include <map>
#include <memory>

namespace {
/// The library drops a longer text whole.
aiString libraryText(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.truncate(int(sizeof(aiString::data)) - 1);
    return aiString(std::string(bytes.constData(), size_t(bytes.size())));
}

/// `texture` is empty for the material of surfaces without one. `names` are those of the other materials.
std::unique_ptr<aiMaterial> makeMaterial(const QString &texture, QStringList &names)
{
    auto material = std::make_unique<aiMaterial>();
    const QString base = texture.isEmpty() ? QStringLiteral("_white") : QFileInfo(texture).completeBaseName();
    // Of "steel.png" and "steel.tga" it is the same.
    QString wanted = base;
    for (int number = 2; names.contains(wanted); ++number)
        wanted = base + QLatin1Char('_') + QString::number(number);
    names += wanted;
    const aiString name = libraryText(wanted);
    material->AddProperty(&name, AI_MATKEY_NAME);
    const aiColor3D white(1.0f, 1.0f, 1.0f);
    material->AddProperty(&white, 1, AI_MATKEY_COLOR_DIFFUSE);
    if (!texture.isEmpty()) {
        const aiString file = libraryText(QFileInfo(texture).fileName());
        material->AddProperty(&file, AI_MATKEY_TEXTURE_DIFFUSE(0));
    }
    return material;
}

/// The triangles of one surface with the vertices that they use; none when there is no whole triangle.
std::unique_ptr<aiMesh> makeMesh(const StaticMesh &from, const StaticMeshSurface &surface)
{
    constexpr unsigned Unused = ~0U;
    std::vector<unsigned> newIndex(from.vertices.size(), Unused);
    std::vector<quint16> used;
    std::vector<unsigned> corners;
    const std::vector<quint16> &indexes = surface.triangleIndexes;
    for (size_t i = 0; i + 2 < indexes.size(); i += 3) {
        const auto triangle = indexes.begin() + std::ptrdiff_t(i);
        if (std::any_of(triangle, triangle + 3, [&from](quint16 v) { return v >= from.vertices.size(); }))
            continue;
        for (int corner = 0; corner < 3; ++corner) {
            unsigned &index = newIndex[triangle[corner]];
            if (index == Unused) {
                index = unsigned(used.size());
                used.push_back(triangle[corner]);
            }
            corners.push_back(index);
        }
    }
    if (corners.empty())
        return nullptr;

    auto mesh = std::make_unique<aiMesh>();
    mesh->mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
    mesh->mNumVertices = unsigned(used.size());
    mesh->mVertices = new aiVector3D[used.size()];
    mesh->mNormals = new aiVector3D[used.size()];
    mesh->mTextureCoords[0] = new aiVector3D[used.size()];
    mesh->mNumUVComponents[0] = 2;
    for (size_t i = 0; i < used.size(); ++i) {
        const StaticMeshVertex &vertex = from.vertices[used[i]];
        mesh->mVertices[i] = {vertex.position.x(), vertex.position.y(), vertex.position.z()};
        mesh->mNormals[i] = {vertex.normal.x(), vertex.normal.y(), vertex.normal.z()};
        mesh->mTextureCoords[0][i] = {vertex.uv.x(), vertex.uv.y(), 0.0f};
    }
    mesh->mNumFaces = unsigned(corners.size() / 3);
    mesh->mFaces = new aiFace[mesh->mNumFaces];
    for (unsigned f = 0; f < mesh->mNumFaces; ++f) {
        aiFace &face = mesh->mFaces[f];
        face.mNumIndices = 3;
        face.mIndices = new unsigned[3];
        // Clockwise is front in the game, and the normals point there; elsewhere counter-clockwise is.
        std::reverse_copy(corners.begin() + std::ptrdiff_t(f) * 3,
                          corners.begin() + std::ptrdiff_t(f + 1) * 3, face.mIndices);
    }
    return mesh;
}

/// Keeps what the library writes: its own files do not miss what a full disk has no room for.
class KeptFile : public Assimp::IOStream
{
public:
    explicit KeptFile(QByteArray &bytes)
        : m_bytes(bytes)
    {}
    size_t Write(const void *bytes, size_t size, size_t count) override
    {
        m_bytes.append(static_cast<const char *>(bytes), int(size * count));
        return count;
    }
    size_t Read(void *, size_t, size_t) override { return 0; }
    aiReturn Seek(size_t, aiOrigin) override { return aiReturn_FAILURE; }
    size_t Tell() const override { return FileSize(); }
    size_t FileSize() const override { return size_t(m_bytes.size()); }
    void Flush() override {}

private:
    QByteArray &m_bytes;
};

class KeptFiles : public Assimp::IOSystem
{
public:
    explicit KeptFiles(std::map<QString, QByteArray> &files)
        : m_files(files)
    {}
    bool Exists(const char *) const override { return false; }
    char getOsSeparator() const override { return '/'; }
    Assimp::IOStream *Open(const char *path, const char *) override
    {
        return new KeptFile(m_files[QString::fromUtf8(path)]);
    }
    void Close(Assimp::IOStream *file) override { delete file; }

private:
    std::map<QString, QByteArray> &m_files; ///< by their paths
};

/// An array as the library frees it, of what the scene takes over.
template <typename T>
T **released(std::vector<std::unique_ptr<T>> &owned)
{
    auto **array = new T *[owned.size()];
    std::transform(owned.begin(), owned.end(), array, [](auto &each) { return each.release(); });
    return array;
}
} // namespace

void exportObj(const StaticMesh &mesh, const QStringList &textures,
               const std::vector<qint32> &textureOfSurface, const QString &objPath, ImportMessages &messages)
{
    std::vector<std::unique_ptr<aiMaterial>> materials;
    QStringList names;
    for (const QString &texture : textures)
        materials.push_back(makeMaterial(texture, names));
    const auto white = unsigned(materials.size());

    std::vector<std::unique_ptr<aiMesh>> meshes;
    for (size_t i = 0; i < mesh.surfaces.size(); ++i) {
        std::unique_ptr<aiMesh> part = makeMesh(mesh, mesh.surfaces[i]);
        if (!part)
            continue;
        const qint32 texture = i < textureOfSurface.size() ? textureOfSurface[i] : -1;
        part->mMaterialIndex = texture >= 0 && texture < textures.size() ? unsigned(texture) : white;
        if (part->mMaterialIndex == materials.size())
            materials.push_back(makeMaterial({}, names));
        part->mName = libraryText(QStringLiteral("surface_%1").arg(i));
        meshes.push_back(std::move(part));
    }
    if (meshes.empty()) {
        messages.addError(
            QCoreApplication::translate("Import", "[Static Mesh Export] Mesh has no triangles"));
        return;
    }

    aiScene scene;
    scene.mRootNode = new aiNode;
    scene.mRootNode->mName = libraryText(QFileInfo(objPath).completeBaseName());
    scene.mRootNode->mNumMeshes = unsigned(meshes.size());
    scene.mRootNode->mMeshes = new unsigned[meshes.size()];
    for (unsigned i = 0; i < meshes.size(); ++i)
        scene.mRootNode->mMeshes[i] = i;
    scene.mNumMaterials = unsigned(materials.size());
    scene.mMaterials = released(materials);
    scene.mNumMeshes = unsigned(meshes.size());
    scene.mMeshes = released(meshes);

    std::map<QString, QByteArray> files;
    Assimp::Exporter exporter;
    exporter.SetIOHandler(new KeptFiles(files)); // which is the exporter's now
    QString reason;
    if (exporter.Export(&scene, "obj", objPath.toUtf8().constData()) != aiReturn_SUCCESS)
        reason = QString::fromUtf8(exporter.GetErrorString());
    for (auto file = files.begin(); reason.isEmpty() && file != files.end(); ++file)
        reason = writeWholeFile(file->first, file->second);
    if (!reason.isEmpty()) {
        messages.addError(
            QCoreApplication::translate("Import", "[Static Mesh Export] %1 Could not write file. %2")
                .arg(objPath, reason));
    }
}
