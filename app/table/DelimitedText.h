// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVector>

/// Tables as text, one row a line, as spreadsheets copy and store them. A cell with the separator, a quote or
/// an end of line in it stands in quotes; a quote in it is doubled.
namespace DelimitedText {

using Rows = QVector<QStringList>;

QString write(const Rows &rows, QChar separator);
/// Whatever the text is: what is odd stays in its cell. A last end of line begins no row.
Rows read(const QString &text, QChar separator);
/// The one that the first line has most of: a tab, a semicolon or a comma.
QChar separatorOf(const QString &text);

} // namespace DelimitedText
