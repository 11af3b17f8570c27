// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "JsonReader.h"
#include "JsonWriter.h"

/// Records of one kind as a text of their own: an object with their list, under the key that a model has it
/// by.
namespace RecordsJson {
template <typename Record>
QByteArray text(const char *key, const std::vector<Record> &records)
{
    QByteArray text;
    {
        JsonWriter writer([&text](const QByteArray &part) { text += part; });
        writer.beginObject(false);
        writer(JsonField{key, ""}, records);
        writer.endObject();
        writer.endLine();
    }
    return text;
}

/// Reads that, or the list alone, or one record. The problem has no text when there is none.
template <typename Record>
[[nodiscard]] JsonProblem read(const QByteArray &text, const char *key, std::vector<Record> &records)
{
    JsonReader reader({text.constData(), size_t(text.size())});
    JsonReader first = reader;
    const bool isObject = first.accept('{');
    if (isObject && first.key() == key) {
        reader = first;
        reader.read(JsonField{}, records);
        reader.expect('}');
    } else if (!isObject || std::is_integral_v<Record>) {
        reader.read(JsonField{}, records);
    } else {
        reader.read(JsonField{}, records.emplace_back());
    }
    if (!reader.failed())
        reader.expectEnd();
    return reader.problem();
}
} // namespace RecordsJson
