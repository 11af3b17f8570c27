// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QStringList>

class ImportMessages;

/// What the tool says, as UTF-8 whatever the locale: results on standard output, all else on standard error.
namespace Output {
void line(const QString &text);
void json(const QJsonArray &array);
void complain(const QString &text);
/// Says of each of these files that it exists already. Returns false when there are none.
bool refuseToReplace(const QStringList &files);
/// The account of an import or an export: what went well as results, the rest as complaints.
void tell(const ImportMessages &messages);
} // namespace Output
