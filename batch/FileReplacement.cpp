// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileReplacement.h"

#include "BinaryFileReader.h"
#include "FileRun.h"
#include "FolderWalk.h"
#include "ModelJson.h"
#include "ModelNames.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {
QString replacing(const char *text)
{
    return QCoreApplication::translate("FileReplacement", text);
}

/// A model with all that its files hold.
struct StoredModel
{
    ModelJson::Content content;
    QByteArray bytes;
    std::optional<QByteArray> nameBytes; ///< of the names beside it
    ModelNames names;                    ///< of what the model has
};

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

template <typename Model>
QString readModel(StoredModel &stored)
{
    BinaryFileReader reader(reinterpret_cast<const uchar *>(stored.bytes.constData()), stored.bytes.size());
    Model model;
    if (model.read(reader))
        return reader.hasError()
                   ? reader.errorText()
                   : replacing(QT_TRANSLATE_NOOP("FileReplacement", "A count in the file is negative."));
    stored.content.behind = stored.bytes.right(int(model.bytesBehind));
    stored.content.model = std::move(model);
    return {};
}

QString readNames(const QString &path, StoredModel &stored)
{
    auto *mesh = std::get_if<SkinnedMesh>(&stored.content.model);
    if (!mesh)
        return {};
    QFile file(ModelNames::pathFor(path));
    if (!file.exists())
        return {};
    QString reason;
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    stored.nameBytes = file.readAll();
    ModelNames names;
    if (names.read(file.fileName(), &reason))
        return reason;
    names.giveTo(*mesh);
    stored.names = ModelNames::of(*mesh);
    return {};
}

QString readStored(const QString &path, StoredModel &stored)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    constexpr qint64 Most = qint64(1) << 31;
    if (file.size() >= Most)
        return replacing(QT_TRANSLATE_NOOP("FileReplacement", "The file is too large."));
    stored.bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return file.errorString();
    const QString kind = QFileInfo(path).suffix().toLower();
    const int index = ModelJson::kinds().indexOf(kind);
    QString reason = index == 0   ? readModel<SkinnedMesh>(stored)
                     : index == 1 ? readModel<AnimFile>(stored)
                                  : readModel<StaticMesh>(stored);
    if (reason.isEmpty() && ModelJson::storedBytes(stored.content) != stored.bytes)
        reason =
            replacing(QT_TRANSLATE_NOOP("FileReplacement", "Writing it would change more than the values."));
    return reason.isEmpty() ? readNames(path, stored) : reason;
}

/// Changes the model that was read.
FileReplacement replaceIn(StoredModel &stored, const QString &path, const ReplaceRule &rule,
                          Companions &companions)
{
    FileReplacement replacement;
    replacement.path = path;
    replacement.reason = readStored(path, stored);
    if (!replacement.reason.isEmpty())
        return replacement;
    replacement.hash = digestOf(stored.bytes);
    FoundRecords found;
    ModelJson::Model &model = stored.content.model;
    replacement.reason = found.find(rule.condition, path, model, companions);
    replacement.isUnmeant = !replacement.reason.isEmpty() && found.condition.lacksName();
    if (!replacement.reason.isEmpty() || found.records.empty())
        return replacement;
    // Values may be names, too.
    if (!found.mesh && !std::holds_alternative<StaticMesh>(model))
        found.mesh = namedMesh(path, model, companions);
    replacement.reason = found.replace(model, rule.field, rule.value, replacement.changes);
    if (replacement.reason.isEmpty())
        replacement.reason = std::visit([](const auto &its) { return its.refusal(); }, model);
    if (!replacement.reason.isEmpty())
        replacement.changes.clear();
    return replacement;
}
} // namespace

QStringList modelFilesBelow(const QString &path, std::vector<FileReplacement> &gaps)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    const auto lookForGaps = [&gaps](const QString &folder) {
        const QString reason = reasonOfGaps(folder);
        if (!reason.isEmpty())
            gaps.push_back({folder, {}, reason, false, {}});
    };
    lookForGaps(path);
    QDirIterator walk(path, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QFileInfo info = walk.fileInfo();
        if (!info.isDir() && ModelJson::kinds().contains(info.suffix().toLower()))
            files += walk.filePath();
        else if (info.isDir() && !info.isSymLink()) // links are not followed
            lookForGaps(walk.filePath());
    }
    files.sort();
    std::sort(gaps.begin(), gaps.end(),
              [](const FileReplacement &a, const FileReplacement &b) { return a.path < b.path; });
    return files;
}

FileReplacement findReplacement(const QString &path, const ReplaceRule &rule, Companions &companions)
{
    StoredModel stored;
    return replaceIn(stored, path, rule, companions);
}

QString addReplacement(FileRun &run, const FileReplacement &found, const ReplaceRule &rule,
                       Companions &companions)
{
    StoredModel stored;
    const FileReplacement now = replaceIn(stored, found.path, rule, companions);
    if (!now.reason.isEmpty())
        return now.reason;
    if (now.hash != found.hash)
        return replacing(QT_TRANSLATE_NOOP("FileReplacement", "The file was changed since."));
    const QByteArray bytes = ModelJson::storedBytes(stored.content);
    QString reason = bytes == stored.bytes ? QString() : run.add(found.path, stored.bytes, bytes);
    const auto *mesh = std::get_if<SkinnedMesh>(&stored.content.model);
    const ModelNames names = mesh ? ModelNames::of(*mesh) : ModelNames();
    if (reason.isEmpty() && mesh && !(names == stored.names))
        reason = run.add(ModelNames::pathFor(found.path), stored.nameBytes, names.toJson());
    return reason;
}
