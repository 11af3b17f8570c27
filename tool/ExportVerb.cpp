// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "GameFolders.h"
#include "MaterialFiles.h"
#include "ModelFile.h"
#include "Output.h"
#include "StaticMeshExport.h"
#include "Verbs.h"
#include "WorkerRun.h"

#include <QDir>
#include <QFileInfo>

namespace {
constexpr int TimeLimit = 600; // seconds

/// A name in a folder, or in the folder the file itself, when the target is a folder.
QString objPath(const QString &target, const QString &meshPath)
{
    return QFileInfo(target).isDir()
               ? QDir(target).filePath(QFileInfo(meshPath).completeBaseName() + QStringLiteral(".obj"))
               : target;
}
} // namespace

int exportModel(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("export"), QStringLiteral("FILE.staticmesh"),
        QStringLiteral("Writes a static mesh as OBJ, with an MTL file and the textures beside it."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The OBJ file, or a folder for it."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace files that exist, textures too."));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, false))
        return *end;
    const QString file = line.operands().constFirst();
    if (!line.isSet(QStringLiteral("output")))
        return line.refuse(QStringLiteral("-o FILE.obj is missing."));
    const QString target = objPath(line.value(QStringLiteral("output")), file);
    if (QFileInfo(target).suffix().compare(QLatin1String("obj"), Qt::CaseInsensitive) != 0)
        return line.refuse(QStringLiteral("'%1' does not end in .obj.").arg(target));
    const QDir folder = QFileInfo(target).dir();
    if (!folder.exists())
        return line.refuse(QStringLiteral("There is no folder '%1'.").arg(folder.path()));

    FileContent content;
    QString error = readFile(file, content);
    const auto *mesh = std::get_if<StaticMesh>(&content);
    if (error.isEmpty() && !mesh)
        error = QStringLiteral("Only static meshes can be exported.");
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(file, error));
        return Failed;
    }

    const MaterialFolders folders = foldersAround(file, line);
    MaterialFiles materials(folders.gamePath, folders.outputDir);
    ImportMessages messages;
    const ExportedFiles files(staticMeshExport(*mesh, target, materials, messages), folder.path());
    if (!line.isSet(QStringLiteral("force")) && Output::refuseToReplace(files.replaced()))
        return Failed;
    if (!messages.hasError()) {
        ImportWorker worker;
        runJob(worker, TimeLimit, {}, files.job(), *mesh);
        messages.lines += worker.messages().lines;
        if (!messages.hasError() && !files.place(worker, messages))
            Output::line(files.objPath());
    }
    Output::tell(messages);
    return messages.hasError() ? Failed : Fine;
}
