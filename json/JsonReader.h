// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "JsonFields.h"
#include "JsonProblem.h"

#include <array>
#include <limits>
#include <string_view>

/// Reads records from JSON by the table of their fields, in any order of keys. It is strict: a key that is
/// not in the table, that stands twice or is missing is refused, as is a number that its field cannot hold.
/// The first refusal ends the read; problem() says where. What is read takes no more memory than a small
/// multiple of the text, and nothing recurses deeper than records do.
class JsonReader
{
public:
    /// The text outlives the reader.
    explicit JsonReader(std::string_view text);

    bool failed() const { return m_problemAt; }
    JsonProblem problem() const;
    /// Only the first is kept.
    void fail(const char *at, const QString &text);

    /// Where the next value, bracket or key begins.
    const char *next();
    /// Takes the character if it comes next.
    bool accept(char character);
    void expect(char character);
    void expectEnd();
    /// Takes a key and its colon.
    std::string_view key();
    /// Takes a value of any kind, whatever is in it.
    void skip() { skip(0); }
    void failTwice(const char *at, std::string_view key);

    template <typename Integer>
    std::enable_if_t<std::is_integral_v<Integer>> read(const JsonField &, Integer &value)
    {
        value = Integer(integer(std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()));
    }
    void read(const JsonField &, float &value);
    void read(const JsonField &, QString &text);
    void read(const JsonField &, QMap<int, QString> &names);
    void read(const JsonField &field, std::vector<quint16> &values)
    {
        values.clear();
        const qint64 most = field.most >= 0 ? field.most : std::numeric_limits<quint16>::max();
        list([&] { values.push_back(quint16(integer(0, most))); });
    }
    void read(const JsonField &field, std::vector<AnimFrame> &frames)
    {
        frames.clear();
        list([&] { read(field, frames.emplace_back().yawOffset); });
    }
    template <typename Value>
    std::enable_if_t<(JsonFloats<Value>::count > 0)> read(const JsonField &field, Value &value)
    {
        const char *at = next();
        size_t count = 0;
        list([&] {
            if (count < JsonFloats<Value>::count)
                read(field, floatsOf(value)[count]);
            else
                skip();
            ++count;
        });
        if (count != JsonFloats<Value>::count)
            failCount(at, JsonFloats<Value>::count, count);
    }
    template <typename Key>
    void read(const JsonField &field, TrackTable<Key> &table)
    {
        std::vector<Key> keys;
        int tracks = 0;
        size_t length = 0;
        list([&] {
            const char *at = next();
            size_t count = 0;
            list([&] {
                read(field, keys.emplace_back());
                ++count;
            });
            if (tracks++ == 0)
                length = count;
            else if (count != length)
                failCount(at, length, count);
        });
        if (failed())
            return;
        table = TrackTable<Key>(tracks, int(length));
        std::copy(keys.begin(), keys.end(), table.data());
    }
    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0)> read(const JsonField &field,
                                                            std::vector<Record> &records)
    {
        records.clear();
        list([&] { read(field, records.emplace_back()); });
    }
    /// A record.
    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0)> read(const JsonField &, Record &record)
    {
        readRecord(record, [](const char *, std::string_view) { return false; });
    }

    /// The same, whose other keys `other(at, key)` reads; it returns false for one that it does not know.
    template <typename Record, typename Other>
    void readRecord(Record &record, const Other &other)
    {
        const char *start = next();
        Places places{};
        expect('{');
        if (!failed() && !accept('}')) {
            do {
                readField(record, places, other);
            } while (!failed() && accept(','));
            expect('}');
        }
        if (!failed())
            finishRecord(record, start, places);
    }

private:
    /// Where the values of a record's fields begin, in the order of the table.
    using Places = std::array<const char *, 16>;

    template <typename Record, typename Other>
    void readField(Record &record, Places &places, const Other &other)
    {
        const char *at = next();
        const std::string_view name = key();
        size_t number = 0;
        bool isKnown = failed();
        const auto readNamed = [&](const JsonField &field, auto &value) {
            const size_t place = number++;
            if (isKnown || name != field.key)
                return;
            isKnown = true;
            if (places[place])
                return failTwice(at, name);
            places[place] = next();
            read(field, value);
        };
        JsonFields<Record>::visit(readNamed, record);
        if (!isKnown && !other(at, name))
            failUnknown(at, name, JsonFields<Record>::name);
    }

    template <typename Record>
    void finishRecord(Record &record, const char *start, const Places &places)
    {
        size_t number = 0;
        const auto needs = [&](const JsonField &field, auto &) {
            if (!places[number++])
                failMissing(start, field.key, JsonFields<Record>::name);
        };
        JsonFields<Record>::visit(needs, record);
        if (failed())
            return;
        JsonFields<Record>::finish(record, [&](std::string_view key, const QString &text) {
            number = 0;
            const auto refuse = [&](const JsonField &field, auto &) {
                if (key == field.key)
                    fail(places[number], text);
                ++number;
            };
            JsonFields<Record>::visit(refuse, record);
        });
    }

    template <typename Entry>
    void list(const Entry &entry)
    {
        expect('[');
        if (failed() || accept(']'))
            return;
        do {
            entry();
        } while (!failed() && accept(','));
        expect(']');
    }

    const char *end() const { return m_text.data() + m_text.size(); }
    std::string_view numberToken();
    std::string_view stringToken();
    QString decoded(std::string_view raw, const char *at);
    QString anyText();
    qint64 integer(qint64 least, qint64 most);
    QString quoted(const char *at) const;
    void failCount(const char *at, size_t wanted, size_t found);
    void skip(int depth);
    void failUnknown(const char *at, std::string_view key, const char *record);
    void failMissing(const char *at, const char *key, const char *record);

    std::string_view m_text;
    const char *m_cursor;
    QByteArray m_key; ///< of a key that is written with escapes
    const char *m_problemAt = nullptr;
    QString m_problem;
};
