// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelText.h"

#include "Files.h"
#include "ModelFile.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "WholeFile.h"

#include <QFileInfo>

QString wrongName(const QString &path, const QString &kind)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (kind.isEmpty() && ModelJson::kinds().contains(suffix))
        return QStringLiteral("The name ends in .%1, and this is a text.").arg(suffix);
    if (!kind.isEmpty() && suffix != kind)
        return QStringLiteral("The name does not end in .%1, as what this makes.").arg(kind);
    return {};
}

QString readWholeModel(const QString &path, ModelJson::Content &content, QString &note)
{
    FileContent read;
    const QString error = readFile(path, read);
    if (!error.isEmpty())
        return error;
    qint64 bytesBehind = 0;
    const bool isModel = std::visit(
        [&](auto &model) {
            using Read = std::decay_t<decltype(model)>;
            if constexpr (std::is_constructible_v<ModelJson::Model, Read>) {
                bytesBehind = model.bytesBehind;
                content.model = std::move(model);
                return true;
            } else {
                return false;
            }
        },
        read);
    if (!isModel)
        return QStringLiteral("A material file is a text already.");
    if (auto *mesh = std::get_if<SkinnedMesh>(&content.model)) {
        ModelNames names;
        static_cast<void>(names.read(ModelNames::pathFor(path), &note));
        names.giveTo(*mesh);
    }
    const std::unique_ptr<QIODevice> file = Files::open(path);
    if (!file)
        return QStringLiteral("The file cannot be opened.");
    const QByteArray before = file->readAll();
    content.behind = before.right(int(bytesBehind));
    const QByteArray after = ModelJson::storedBytes(content);
    if (!after.isEmpty() && after != before)
        note += QStringLiteral("%1A count below zero is read as none, and is written so.")
                    .arg(note.isEmpty() ? QString() : QStringLiteral(" "));
    return {};
}

ModelNames namesOf(const ModelJson::Content &content)
{
    const auto *mesh = std::get_if<SkinnedMesh>(&content.model);
    return mesh ? ModelNames::of(*mesh) : ModelNames();
}

QString replacedNames(const QString &path, const ModelJson::Content &content, const ModelNames &known)
{
    const ModelNames names = namesOf(content);
    ModelNames there;
    if (!there.read(ModelNames::pathFor(path)) && there == known)
        return {};
    const QString file = ModelNames::pathFor(path);
    return !names.isEmpty() && wouldReplace(names.toJson(), file) ? file : QString();
}

bool writeWholeModel(const QString &path, const ModelJson::Content &content, bool withNames)
{
    const QString refusal = std::visit([](const auto &model) { return model.refusal(); }, content.model);
    if (!refusal.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(path, refusal));
        return true;
    }
    const QString reason = writeWholeFile(path, ModelJson::storedBytes(content));
    if (!reason.isEmpty() || !withNames)
        return Output::outcome(path, !reason.isEmpty(), reason);
    const QString namesPath = ModelNames::pathFor(path);
    const QString lost = writeWholeFile(namesPath, namesOf(content).toJson());
    return lost.isEmpty() ? Output::outcome(path, false, {}) : Output::outcome(namesPath, true, lost);
}
