// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QStringList>

class ImportMessages;

/// What the tool says, as UTF-8 whatever the locale: results on standard output, all else on standard error.
namespace Output {
void line(const QString &text);
/// A part of a text. Returns true when it could not be written, and says so.
[[nodiscard]] bool bytes(const QByteArray &part);
void json(const QJsonArray &array);
void complain(const QString &text);
/// That a file exists already, which is not replaced unasked.
QString takenText(const QString &file);
/// Says so of each of these files. Returns false when there are none.
bool refuseToReplace(const QStringList &files);
/// Says that the file was written, or that it was not and why. Returns `failed`.
bool outcome(const QString &path, bool failed, const QString &reason);
/// Writes a model and says so. Returns true on failure.
template <typename Model>
[[nodiscard]] bool writeModel(const Model &model, const QString &path)
{
    QString reason;
    const bool failed = model.write(path, &reason);
    return outcome(path, failed, reason);
}
/// The account of an import or an export: what went well as results, the rest as complaints.
void tell(const ImportMessages &messages);
} // namespace Output
