// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "JsonReader.h"
#include "JsonWriter.h"

/// Records of one kind as a text of their own: an object with their list, under the key that a model has it
/// by. `List` is a list of records, or a table of tracks.
namespace RecordsJson {
template <typename List>
QByteArray text(const char *key, const List &records)
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

template <typename List, typename = void>
inline constexpr bool isOfRecords = false;
template <typename List>
inline constexpr bool isOfRecords<List, std::void_t<typename List::value_type>> =
    !std::is_integral_v<typename List::value_type>;

/// Reads that, or the list alone, or one record. The problem has no text when there is none.
template <typename List>
[[nodiscard]] JsonProblem read(const QByteArray &text, const char *key, List &records)
{
    JsonReader reader({text.constData(), size_t(text.size())});
    JsonReader first = reader;
    const bool isObject = first.accept('{');
    if (isObject && first.key() == key) {
        reader = first;
        reader.read(JsonField{}, records);
        reader.expect('}');
    } else if constexpr (isOfRecords<List>) {
        if (isObject)
            reader.read(JsonField{}, records.emplace_back());
        else
            reader.read(JsonField{}, records);
    } else {
        reader.read(JsonField{}, records);
    }
    if (!reader.failed())
        reader.expectEnd();
    return reader.problem();
}
} // namespace RecordsJson
