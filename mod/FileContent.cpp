// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileContent.h"

#include "BinaryFileReader.h"
#include "Files.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
struct ContentTexts
{
    Q_DECLARE_TR_FUNCTIONS(FileContent)
};

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
        return reader.hasError() ? reader.errorText() : ContentTexts::tr("The file cannot be opened.");
    Model model;
    if (!model.read(reader)) {
        content = std::move(model);
        return {};
    }
    return reader.hasError() ? reader.errorText() : ContentTexts::tr("A count in the file is negative.");
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

QString readFile(const QString &path, FileContent &content)
{
    content = std::monostate();
    const QString problem = Files::archiveProblem(Files::archiveOf(path));
    if (!problem.isEmpty())
        return problem;
    const bool isFile = Files::isFile(path);
    if (!isFile && Files::isFolder(path))
        return ContentTexts::tr("This is a folder.");
    if (!isFile && !QFileInfo::exists(path))
        return ContentTexts::tr("There is no such file.");
    if (!isFile)
        return ContentTexts::tr("This is no regular file.");
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
        return ContentTexts::tr("The name does not end in .%1.")
            .arg(readableSuffixes().join(QStringLiteral(", .")));
    }
}
