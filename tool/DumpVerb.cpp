// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "ModelText.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Verbs.h"
#include "WholeFile.h"

namespace {
/// Hands each part of a text to where the options want it: `write` is called with what takes one.
template <typename Write>
int put(const CommandLine &line, const Write &write)
{
    bool failed = false;
    if (!line.isSet(QStringLiteral("output"))) {
        write([&failed](const QByteArray &part) { failed = failed || Output::bytes(part); });
        return failed ? Failed : Fine;
    }
    const QString target = line.value(QStringLiteral("output"));
    const QString reason = wrongName(target, QString());
    if (!reason.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(target, reason));
        return Failed;
    }
    if (!line.isSet(QStringLiteral("force")) && isTaken(target)) {
        Output::refuseToReplace({target});
        return Failed;
    }
    WholeFile file(target);
    write([&](const QByteArray &part) { failed = failed || file.write(part.constData(), part.size()); });
    failed = failed || file.commit();
    return Output::outcome(target, failed, file.reason()) ? Failed : Fine;
}

int putSchema(const CommandLine &line, const QString &kind)
{
    if (!ModelJson::kinds().contains(kind))
        return line.refuse(QStringLiteral("--schema takes %1, not '%2'.")
                               .arg(ModelJson::kinds().join(QStringLiteral(", ")), kind));
    return put(line, [&](const auto &take) { take(ModelJson::schema(kind)); });
}
} // namespace

int dump(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("dump"), QStringLiteral("FILE"),
        QStringLiteral("Writes a skinned mesh, an animation or a static mesh as JSON text, whole: "
                       "'korvane-tool build' makes the same bytes of it again."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("Write into this file instead of standard output."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace that file if it exists."));
    line.flag(QStringLiteral("schema"),
              QStringLiteral("Write the JSON Schema of a kind instead, which stands for FILE: "
                             "skinnedmesh, anim or staticmesh."));
    if (const auto end = line.parse(arguments, false))
        return *end;
    const QString file = line.operands().first();
    if (line.isSet(QStringLiteral("schema")))
        return putSchema(line, file);

    ModelJson::Content content;
    QString note;
    const QString error = readWholeModel(file, content, note);
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(file, error));
        return Failed;
    }
    if (!note.isEmpty())
        Output::complain(QStringLiteral("%1: warning: %2").arg(file, note));
    return put(line, [&](const auto &take) { ModelJson::write(content, take); });
}
