// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileWriter.h"
#include "CommandLine.h"
#include "Files.h"
#include "ModelFile.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Verbs.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {
/// What the model would be saved as.
template <typename Model>
QByteArray bytesOf(const Model &model)
{
    BinaryFileWriter writer;
    if (model.write(writer))
        return {};
    const std::vector<uchar> &bytes = writer.bytes();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

struct Resaved
{
    QString error;
    bool changed = false;
};

template <typename Model>
Resaved resaveModel(const Model &model, const QString &from, const QString &to)
{
    if (!model.refusal().isEmpty())
        return {model.refusal()};
    std::unique_ptr<QIODevice> file = Files::open(from);
    if (!file)
        return {QStringLiteral("The file cannot be opened.")};
    const QByteArray before = file->readAll();
    file.reset();
    const QByteArray after = bytesOf(model);
    if (after.size() < before.size())
        return {QStringLiteral(
                    "The last %1 bytes belong to no record and would be lost; the file was not written.")
                    .arg(before.size() - after.size())};
    QString reason;
    if (model.write(to, &reason))
        return {QStringLiteral("'%1' cannot be written: %2").arg(to, reason)};
    return {{}, before != after};
}

Resaved resaveFile(const QString &from, const QString &to)
{
    FileContent content;
    const QString error = readFile(from, content);
    if (!error.isEmpty())
        return {error};
    return std::visit(
        [&](const auto &model) -> Resaved {
            using Content = std::decay_t<decltype(model)>;
            if constexpr (std::is_same_v<Content, SkinnedMesh> || std::is_same_v<Content, AnimFile> ||
                          std::is_same_v<Content, StaticMesh>)
                return resaveModel(model, from, to);
            else
                return {
                    QStringLiteral("A material file holds more than is read of it, and would lose that.")};
        },
        content);
}

} // namespace

int resave(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("resave"), QStringLiteral("FILE..."),
        QStringLiteral(
            "Reads skinned meshes, animations and static meshes and writes them back as the editor does, "
            "each in one step. A file that was not read whole is left as it is."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("folder"),
                QStringLiteral("Write into this folder instead, under the files' own names."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace other files that stand in that folder."));
    if (const auto end = line.parse(arguments, true))
        return *end;
    const QString folder = line.value(QStringLiteral("output"));
    if (line.isSet(QStringLiteral("output")) && !QFileInfo(folder).isDir())
        return line.refuseFolder(folder);

    int exitCode = Fine;
    QSet<QString> written;
    for (const QString &file : line.operands()) {
        const QString target = folder.isEmpty() ? file : QDir(folder).filePath(QFileInfo(file).fileName());
        Resaved result;
        if (written.contains(target))
            result.error = QStringLiteral("Another file was written to '%1' already.").arg(target);
        else if (!line.isSet(QStringLiteral("force")) && isTaken(target) && !isOneFile(file, target))
            result.error = QStringLiteral("'%1' exists already; --force replaces it.").arg(target);
        else
            result = resaveFile(file, target);
        if (!result.error.isEmpty()) {
            exitCode = Failed;
            Output::complain(QStringLiteral("%1: %2").arg(file, result.error));
            continue;
        }
        written.insert(target);
        Output::line(QStringLiteral("%1: %2").arg(target, result.changed ? QStringLiteral("changed")
                                                                         : QStringLiteral("the same bytes")));
    }
    return exitCode;
}
