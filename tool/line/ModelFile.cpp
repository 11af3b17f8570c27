// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelFile.h"

#include "BinaryFileReader.h"
#include "Files.h"

#include <QDirIterator>
#include <QFileInfo>

namespace {
enum Suffix { SkinnedMeshSuffix, AnimSuffix, StaticMeshSuffix, MaterialSuffix };

int suffixOf(const QString &path)
{
    return readableSuffixes().indexOf(QFileInfo(path).suffix().toLower());
}

template <typename Model>
QString readModel(const QString &path, FileContent &content)
{
    BinaryFileReader reader(path);
    if (!reader.isOpen())
        return reader.hasError() ? reader.errorText() : QStringLiteral("The file cannot be opened.");
    Model model;
    if (!model.read(reader)) {
        content = std::move(model);
        return {};
    }
    return reader.hasError() ? reader.errorText() : QStringLiteral("A count in the file is negative.");
}

QString readMaterials(const QString &path, FileContent &content)
{
    MaterialTable table;
    const QString error = readKMat(path, table);
    if (error.isEmpty())
        content = std::move(table);
    return error;
}
} // namespace

const QStringList &readableSuffixes()
{
    static const QStringList suffixes{QStringLiteral("skinnedmesh"), QStringLiteral("anim"),
                                      QStringLiteral("staticmesh"), QStringLiteral("kmat")};
    return suffixes;
}

bool isReadable(const QString &path)
{
    return suffixOf(path) >= 0;
}

bool isMesh(const QString &path)
{
    const int suffix = suffixOf(path);
    return suffix == SkinnedMeshSuffix || suffix == StaticMeshSuffix;
}

QStringList filesBelow(const QString &path, bool (*wanted)(const QString &path))
{
    if (!Files::isFolder(path))
        return {path};
    QStringList files;
    if (!Files::archiveOf(path).isEmpty()) {
        Files::walk(path, [&](const FolderEntry &entry) {
            if (!entry.isFolder && wanted(entry.path))
                files += entry.path;
            return true;
        });
        files.sort();
        return files;
    }
    QDirIterator walk(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        if (wanted(file))
            files += file;
    }
    files.sort();
    return files;
}

QString readFile(const QString &path, FileContent &content)
{
    content = std::monostate();
    const QString problem = Files::archiveProblem(Files::archiveOf(path));
    if (!problem.isEmpty())
        return problem;
    const bool isFile = Files::isFile(path);
    if (!isFile && Files::isFolder(path))
        return QStringLiteral("This is a folder.");
    if (!isFile && !QFileInfo::exists(path))
        return QStringLiteral("There is no such file.");
    if (!isFile)
        return QStringLiteral("This is no regular file.");
    switch (suffixOf(path)) {
    case SkinnedMeshSuffix:
        return readModel<SkinnedMesh>(path, content);
    case AnimSuffix:
        return readModel<AnimFile>(path, content);
    case StaticMeshSuffix:
        return readModel<StaticMesh>(path, content);
    case MaterialSuffix:
        return readMaterials(path, content);
    default:
        return QStringLiteral("The name does not end in .%1.")
            .arg(readableSuffixes().join(QStringLiteral(", .")));
    }
}
