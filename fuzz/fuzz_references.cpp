// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceTable.h"
#include "Require.h"

#include <QBuffer>

#include <cstdint>

namespace {
ReferenceTable tableOf(QByteArray bytes)
{
    QBuffer text(&bytes);
    text.open(QIODevice::ReadOnly | QIODevice::Text);
    ReferenceTable table;
    table.append(text);
    return table;
}
} // namespace

/// A table written line by line reads back to the same rows.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ReferenceTable table =
        tableOf(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));
    QByteArray written;
    for (const ReferenceRow &row : table.rows) {
        Fuzz::require(!row.id.isEmpty() && !row.id.contains(QLatin1Char(' ')), "an id is one word");
        Fuzz::require(row.number == row.id.toInt(), "the number is that of the id");
        Fuzz::require(row.name.isEmpty() || row.name.startsWith(QLatin1Char(' ')),
                      "a blank stands before every word");
        written += row.id.toUtf8() + row.name.toUtf8() + '\n';
    }

    const ReferenceTable again = tableOf(written);
    Fuzz::require(again.rows.size() == table.rows.size(), "as many rows are read back");
    for (size_t i = 0; i < table.rows.size(); ++i) {
        Fuzz::require(again.rows[i].id == table.rows[i].id && again.rows[i].name == table.rows[i].name,
                      "a row reads back to the same");
    }
    return 0;
}
