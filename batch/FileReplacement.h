// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FoundRecords.h"

#include <QStringList>

#include <atomic>
#include <optional>

class Companions;
class FileRun;

/// What is replaced in files: of the records that meet a condition, the field that a word stands for gets a
/// value, a name, or what an expression makes of its own.
struct ReplaceRule
{
    QString condition;
    QString field;
    QString value;
};

/// What a rule makes of one file of a model.
struct FileReplacement
{
    QString path;
    std::vector<ReplacedField> changes; ///< the values that differ then; of a file with a reason, none
    QString reason; ///< why the file cannot be read, searched, or changed; empty when it can
    /// Whether the condition names what this file's model has not, so that nothing of it is meant.
    bool isUnmeant = false;
    QByteArray hash; ///< of what the file held when this was found
};

/// The models below a folder, in the order of their names; `path` itself where it is a file. `gaps` gets the
/// folders, with the reason, in which some may have been passed over.
QStringList modelFilesBelow(const QString &path, std::vector<FileReplacement> &gaps);

/// Says what a rule would change in a file; nothing is written.
FileReplacement findReplacement(const QString &path, const ReplaceRule &rule, Companions &companions);

/// Takes a file, as it was found, and the names beside it into a run, with what the rule makes of them.
/// Returns why that cannot be; empty when it is done.
[[nodiscard]] QString addReplacement(FileRun &run, const FileReplacement &found, const ReplaceRule &rule,
                                     Companions &companions);
