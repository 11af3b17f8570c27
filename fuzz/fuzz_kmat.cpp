// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FuzzModel.h"
#include "KMat.h"
#include "KMatText.h"

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

QString read(QByteArray bytes, const QString &path, MaterialTable &table)
{
    QBuffer text(&bytes);
    text.open(QIODevice::ReadOnly);
    return readKMat(text, path, table);
}

/// What the text says is what was read, and an edit of a value leaves all else as it is.
void checkText(const QByteArray &bytes, const QString &path, const MaterialTable &table, bool isRefused)
{
    KMatText text(bytes);
    Fuzz::require(text.bytes() == bytes, "a text gives its bytes back");
    Fuzz::require(text.problem().isEmpty() != isRefused, "a text and its reader agree");
    const int count = int(text.materials().size());
    if (isRefused || count == 0)
        return;
    MaterialTable told;
    for (const KMatMaterial &each : text.materials())
        told[each.name] = each.texture();
    Fuzz::require(told == table, "a text says what is read of it");
    const int material = int(bytes.size()) % count;
    const KMatMaterial was = text.materials()[size_t(material)];
    const auto check = [&](const TextEdit &edit) {
        const TextEdit back = text.apply(edit);
        MaterialTable edited;
        Fuzz::require(read(text.bytes(), path, edited).isEmpty() && edited == told,
                      "an edit gives the value and changes no other");
        text.apply(back);
        Fuzz::require(text.bytes() == bytes, "an edit can be taken back");
    };
    TextEdit edit;
    const QString texture = QStringLiteral("t/new.png");
    if (!was.samplers.empty() &&
        text.findTextureEdit(material, int(was.samplers.size()) - 1, texture, edit).isEmpty()) {
        told[was.name] = texture;
        check(edit);
        told[was.name] = was.texture();
    }
    const QString name = QStringLiteral("renamed");
    if (text.findRenaming(material, name, edit).isEmpty()) {
        told.erase(was.name);
        told[name] = was.texture();
        check(edit);
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = QStringLiteral("fuzz.kmat");
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MaterialTable table;
    const QString error = read(bytes, path, table);
    Fuzz::require(error.isEmpty() || table.empty(), "no table beside an error");
    Fuzz::require(error.isEmpty() || error.endsWith(path), "an error names the file");
    checkText(bytes, path, table, !error.isEmpty());
    for (const auto &[name, texture] : table) {
        if (name.isEmpty() || !survives(name) || !survives(texture))
            return 0;
    }

    QByteArray written;
    QBuffer out(&written);
    out.open(QIODevice::WriteOnly | QIODevice::Text);
    Fuzz::require(!writeKMat(out, table), "a table can be written");
    MaterialTable again;
    Fuzz::require(read(written, path, again).isEmpty() && again == table, "what was written reads back");
    return 0;
}
