// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DelimitedText.h"

#include <algorithm>

QString DelimitedText::write(const Rows &rows, QChar separator)
{
    QString text;
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += separator;
            QString cell = row[i];
            const auto *special = std::find_if(cell.begin(), cell.end(), [&](QChar c) {
                return c == separator || c == QLatin1Char('"') || c == QLatin1Char('\n') ||
                       c == QLatin1Char('\r');
            });
            if (special == cell.end())
                text += cell;
            else
                text += QLatin1Char('"') + cell.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                        QLatin1Char('"');
        }
        text += QLatin1Char('\n');
    }
    return text;
}

DelimitedText::Rows DelimitedText::read(const QString &text, QChar separator)
{
    Rows rows;
    QStringList row;
    QString cell;
    bool isQuoted = false;
    bool isBegun = false; // the row has something in it
    const auto endCell = [&] {
        row.append(cell);
        cell.clear();
    };
    const auto endRow = [&] {
        endCell();
        rows.append(row);
        row.clear();
        isBegun = false;
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isQuoted) {
            if (c != QLatin1Char('"'))
                cell += c;
            else if (i + 1 < text.size() && text[i + 1] == c)
                cell += text[++i];
            else
                isQuoted = false;
            continue;
        }
        if (c == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n'))
            continue;
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) {
            endRow();
            continue;
        }
        isBegun = true;
        if (c == separator)
            endCell();
        else if (c == QLatin1Char('"') && cell.isEmpty())
            isQuoted = true;
        else
            cell += c;
    }
    if (isBegun || isQuoted)
        endRow();
    return rows;
}

QChar DelimitedText::separatorOf(const QString &text)
{
    const QString line = text.section(QLatin1Char('\n'), 0, 0);
    QChar most(',');
    for (const char each : {';', '\t'}) {
        if (line.count(QLatin1Char(each)) > line.count(most))
            most = QLatin1Char(each);
    }
    return most;
}
