// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonWriter.h"

namespace {
constexpr int PieceBytes = 1 << 16;
} // namespace

void JsonWriter::beginObject(bool isLine)
{
    m_outer.push_back(m_isLine);
    m_isLine = isLine;
    m_isFirst = true;
    ++m_depth;
    put('{');
}

void JsonWriter::endObject()
{
    --m_depth;
    if (!m_isLine && !m_isFirst)
        newLine();
    put('}');
    m_isLine = m_outer.back();
    m_outer.pop_back();
    m_isFirst = false;
}

void JsonWriter::separate()
{
    if (!m_isFirst)
        put(',');
    if (!m_isLine)
        newLine();
    else if (!m_isFirst)
        put(' ');
    m_isFirst = false;
}

void JsonWriter::endLine()
{
    put('\n');
}

void JsonWriter::newLine()
{
    put('\n');
    for (int i = 0; i < m_depth; ++i)
        put(' ');
}

void JsonWriter::write(const JsonField &, const QString &text)
{
    put('"');
    for (const QChar character : text) {
        const ushort code = character.unicode();
        if (code == '"' || code == '\\') {
            put('\\');
            put(char(code));
        } else if (code < 0x20 || (code >= 0x7f && code < 0xa0)) {
            // Controls, some of which end a line for other programs.
            put("\\u00");
            put("0123456789abcdef"[code >> 4]);
            put("0123456789abcdef"[code & 15]);
        } else if (code < 0x80) {
            put(char(code));
        } else if (code < 0x100) {
            put(char(0xc0 | (code >> 6)));
            put(char(0x80 | (code & 0x3f)));
        } else {
            put(QByteArray("\\u" + QByteArray::number(code, 16).rightJustified(4, '0')).constData());
        }
    }
    put('"');
}

void JsonWriter::write(const JsonField &, const QMap<int, QString> &names)
{
    beginObject(false);
    for (auto it = names.constBegin(); it != names.constEnd(); ++it)
        (*this)(JsonField{QByteArray::number(it.key()).constData(), ""}, it.value());
    endObject();
}

void JsonWriter::put(std::string_view text)
{
    m_text.append(text.data(), int(text.size()));
    if (m_text.size() >= PieceBytes)
        flush();
}

void JsonWriter::flush()
{
    m_sink(m_text);
    m_text.clear();
    m_text.reserve(PieceBytes + PieceBytes / 8);
}
