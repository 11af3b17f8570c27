// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FuzzModel.h"
#include "KMat.h"

#include <QBuffer>

namespace {
/// Names and paths that the file keeps: a blank or an end of line would end a word, a quote or a carriage
/// return is dropped, and an empty name is no word.
bool survives(const QString &text)
{
    for (QChar c : text) {
        if (c.isSpace() || c == QLatin1Char('"') || c.isSurrogate() || c.isNull())
            return false;
    }
    return true;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = QStringLiteral("fuzz.kmat");
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    QBuffer text(&bytes);
    MaterialTable table;
    text.open(QIODevice::ReadOnly);
    const QString error = readKMat(text, path, table);
    Fuzz::require(error.isEmpty() || table.empty(), "no table beside an error");
    Fuzz::require(error.isEmpty() || error.endsWith(path), "an error names the file");
    for (const auto &[name, texture] : table) {
        if (name.isEmpty() || !survives(name) || !survives(texture))
            return 0;
    }

    QByteArray written;
    QBuffer out(&written);
    out.open(QIODevice::WriteOnly | QIODevice::Text);
    Fuzz::require(!writeKMat(out, table), "a table can be written");
    QBuffer back(&written);
    back.open(QIODevice::ReadOnly);
    MaterialTable again;
    Fuzz::require(readKMat(back, path, again).isEmpty() && again == table, "what was written reads back");
    return 0;
}
