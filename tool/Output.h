// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QString>

class ImportMessages;

/// What the tool says, as UTF-8 whatever the locale: results on standard output, all else on standard error.
namespace Output {
void line(const QString &text);
void json(const QJsonArray &array);
void complain(const QString &text);
/// The account of an import or an export: what went well as results, the rest as complaints.
void tell(const ImportMessages &messages);
} // namespace Output
