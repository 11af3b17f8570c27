// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "JsonFields.h"
#include "JsonNumbers.h"

#include <QByteArray>

#include <functional>

/// Writes records as JSON: keys in the order of their table, what changes alone in a line of its own.
class JsonWriter
{
public:
    /// Takes the text piece by piece.
    using Sink = std::function<void(const QByteArray &)>;

    explicit JsonWriter(Sink sink)
        : m_sink(std::move(sink))
    {}
    JsonWriter(const JsonWriter &) = delete;
    JsonWriter &operator=(const JsonWriter &) = delete;
    ~JsonWriter() { flush(); }

    /// For a text that is short.
    template <typename Value>
    static QByteArray textOf(const Value &value)
    {
        QByteArray text;
        JsonWriter([&text](const QByteArray &part) { text += part; }).write(JsonField{}, value);
        return text;
    }

    // An object, field by field. One that is a line has no fields that are lists of records.
    void beginObject(bool isLine);
    void endObject();
    template <typename Value>
    void operator()(const JsonField &field, const Value &value)
    {
        separate();
        put('"');
        put(field.key);
        put("\": ");
        write(field, value);
    }
    void endLine();

    template <typename Integer>
    std::enable_if_t<std::is_integral_v<Integer>> write(const JsonField &, Integer value)
    {
        number(qint64(value));
    }
    void write(const JsonField &, float value) { number(value); }
    void write(const JsonField &, const QString &text);

    void write(const JsonField &, const QMap<int, QString> &names);

    template <typename Value>
    std::enable_if_t<(JsonFloats<Value>::count > 0)> write(const JsonField &, const Value &value)
    {
        const float *floats = floatsOf(value);
        for (size_t i = 0; i < JsonFloats<Value>::count; ++i) {
            put(i == 0 ? "[" : ", ");
            number(floats[i]);
        }
        put(']');
    }
    void write(const JsonField &field, const std::vector<quint16> &values)
    {
        numbers(field, values, [](quint16 value) { return qint64(value); });
    }
    void write(const JsonField &field, const std::vector<AnimFrame> &frames)
    {
        numbers(field, frames, [](const AnimFrame &frame) { return frame.yawOffset; });
    }
    template <typename Key>
    void write(const JsonField &field, const TrackTable<Key> &table)
    {
        list(table.trackCount(), [&](int track) {
            list(table.frameCount(), [&](int frame) { write(field, table.at(track, frame)); });
        });
    }
    template <typename Record>
    void write(const JsonField &field, const std::vector<Record> &records)
    {
        list(int(records.size()), [&](int i) { write(field, records[size_t(i)]); });
    }
    /// A record.
    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0)> write(const JsonField &, const Record &record)
    {
        beginObject(JsonFields<Record>::isLine);
        JsonFields<Record>::visit(*this, record);
        endObject();
    }

    /// Entries in lines of their own, each by `entry(number)`.
    template <typename Entry>
    void list(int count, const Entry &entry)
    {
        put('[');
        ++m_depth;
        for (int i = 0; i < count; ++i) {
            if (i > 0)
                put(',');
            newLine();
            entry(i);
        }
        --m_depth;
        if (count > 0)
            newLine();
        put(']');
    }

private:
    template <typename Value, typename Number>
    void numbers(const JsonField &field, const std::vector<Value> &values, const Number &numberOf)
    {
        put('[');
        ++m_depth;
        for (size_t i = 0; i < values.size(); ++i) {
            if (i > 0)
                put(',');
            if (field.perLine > 0 && i % size_t(field.perLine) == 0)
                newLine();
            else if (i > 0)
                put(' ');
            number(numberOf(values[i]));
        }
        --m_depth;
        if (field.perLine > 0 && !values.empty())
            newLine();
        put(']');
    }
    template <typename Number>
    void number(Number value)
    {
        char text[JsonNumbers::MostCharacters];
        put(std::string_view(text, size_t(JsonNumbers::write(text, value) - text)));
    }
    void put(char character) { m_text.append(character); }
    void put(std::string_view text);
    void newLine();
    void separate();
    void flush();

    Sink m_sink;
    QByteArray m_text;
    int m_depth = 0;
    bool m_isLine = false;
    bool m_isFirst = true;
    std::vector<bool> m_outer; ///< whether the objects around are lines
};
