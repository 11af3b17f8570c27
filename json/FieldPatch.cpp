// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FieldPatch.h"

#include "BinaryFileWriter.h"
#include "Expression.h"
#include "JsonReader.h"
#include "ModelNames.h"
#include "NumberRange.h"
#include "NumberText.h"

#include <cstring>

namespace {
/// What is left of words when it does not matter how they are parted: "damage scale" is "damageScale".
QString squashed(const QString &words)
{
    QString text;
    for (const QChar character : words) {
        if (character.isLetterOrNumber())
            text += character.toLower();
    }
    return text;
}

/// The records of a list that one word of a path names.
struct Choice
{
    int first = 0;
    int last = -1;
    int words = 0; ///< so many of the path's; none: it names no records
    bool isAll = false;
};

Choice choiceIn(const QStringList &words, int at, int count)
{
    const QString word = words.value(at);
    if (word == QLatin1String("*") || squashed(word) == QLatin1String("all"))
        return {0, count - 1, 1, true};
    const QStringList ends = word.split(QLatin1Char('-'));
    bool areNumbers = ends.size() <= 2;
    for (const QString &end : ends) {
        bool isNumber = false;
        end.toInt(&isNumber);
        areNumbers = areNumbers && isNumber;
    }
    return areNumbers ? Choice{ends.first().toInt(), ends.last().toInt(), 1} : Choice();
}

class Patch
{
public:
    Patch(const QString &path, const QString &value, std::vector<PatchedField> &changes)
        : m_words(path.simplified().split(QLatin1Char(' ')))
        , m_value(value)
        , m_changes(changes)
    {}

    QString reason;
    /// Whether there was anything to set.
    bool isEmpty() const { return m_place == 0; }

    /// The words from `at` on are about a record, which the words before name as `place`.
    template <typename Record>
    void record(Record &record, int at, const QString &place)
    {
        QStringList keys;
        bool isFound = false;
        const auto tryField = [&](const JsonField &field, auto &value) {
            keys += QLatin1String(field.key);
            if (!isFound && reason.isEmpty())
                isFound = apply(field, value, at, place);
        };
        JsonFields<Record>::visit(tryField, record);
        // Names stand in a file of their own.
        if constexpr (std::is_same_v<Record, SkinnedMeshNode>) {
            keys += QStringLiteral("name");
            isFound = isFound || applyName(record.name, at, place);
        } else if constexpr (std::is_same_v<Record, SkinnedMesh>) {
            keys += QStringLiteral("animation");
            isFound = isFound || applyAnimation(record, at);
        }
        if (!reason.isEmpty())
            return;
        const QString owner =
            place.isEmpty() ? QString(QLatin1String(JsonFields<Record>::name)) : place.trimmed();
        if (!isFound)
            reason = QStringLiteral("There is no '%1' in %2, which has %3.")
                         .arg(m_words.mid(at).join(QLatin1Char(' ')), owner, keys.join(QStringLiteral(", ")));
        else
            JsonFields<Record>::finish(record,
                                       [this](std::string_view, const QString &text) { reason = text; });
    }

private:
    /// The field's own names.
    static QStringList namesOf(const JsonField &field)
    {
        QStringList names{squashed(QLatin1String(field.key))};
        if (*field.also)
            names += squashed(QLatin1String(field.also));
        return names;
    }

    /// What the words from `at` on say behind the field's name; null when they do not begin with it.
    QString behindName(const JsonField &field, int at) const
    {
        const QString words = squashed(m_words.mid(at).join(QLatin1Char(' ')));
        for (const QString &name : namesOf(field)) {
            if (words == name)
                return QStringLiteral("");
        }
        for (const QString &name : namesOf(field)) {
            if (words.startsWith(name))
                return words.mid(name.size());
        }
        return {};
    }

    /// How many words from `at` on are one of these names.
    int wordsThatName(const QStringList &names, int at) const
    {
        for (int count = 1; count <= 3 && at + count < m_words.size(); ++count) {
            if (names.contains(squashed(QStringList(m_words.mid(at, count)).join(QLatin1Char(' ')))))
                return count;
        }
        return 0;
    }

    template <typename Visit>
    void each(const Choice &choice, int count, const QString &place, const Visit &visit)
    {
        if (choice.isAll && count == 0)
            return;
        if (choice.last < choice.first) {
            reason = QStringLiteral("%1-%2 goes from the larger number to the smaller.")
                         .arg(choice.first)
                         .arg(choice.last);
            return;
        }
        if (choice.last >= count) {
            reason = count == 0 ? QStringLiteral("There is no '%1'.").arg(place.trimmed())
                                : QStringLiteral("'%1' is from 0 to %2.").arg(place.trimmed()).arg(count - 1);
            return;
        }
        for (int i = choice.first; i <= choice.last && reason.isEmpty(); ++i)
            visit(i, QStringLiteral("%1%2 ").arg(place).arg(i));
    }

    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0), bool>
    apply(const JsonField &field, std::vector<Record> &records, int at, const QString &place)
    {
        const QString name = QLatin1String(JsonFields<Record>::name);
        const int words = wordsThatName(namesOf(field) << squashed(name), at);
        if (words == 0)
            return false;
        const QString owner = place + name + QLatin1Char(' ');
        const int behind = at + words;
        if constexpr (std::is_same_v<Record, AnimBlock>) {
            if (squashed(m_words.value(behind)) == QLatin1String("id"))
                return applyById(records, behind + 1, owner);
        }
        const Choice choice = choiceIn(m_words, behind, int(records.size()));
        if (choice.words == 0)
            return false;
        each(choice, int(records.size()), owner,
             [&](int i, const QString &path) { record(records[size_t(i)], behind + 1, path); });
        return true;
    }

    bool applyById(std::vector<AnimBlock> &blocks, int at, const QString &place)
    {
        bool isNumber = false;
        const int id = m_words.value(at).toInt(&isNumber);
        bool isFound = false;
        for (size_t i = 0; isNumber && i < blocks.size() && reason.isEmpty(); ++i) {
            if (blocks[i].animId != id)
                continue;
            isFound = true;
            record(blocks[i], at + 1, QStringLiteral("%1%2 ").arg(place).arg(i));
        }
        if (!isFound && reason.isEmpty())
            reason = QStringLiteral("There is no block with the id '%1'.").arg(m_words.value(at));
        return true;
    }

    bool applyName(QString &name, int at, const QString &place)
    {
        if (!reason.isEmpty() || squashed(m_words.mid(at).join(QLatin1Char(' '))) != QLatin1String("name"))
            return false;
        change(name, place + QStringLiteral("name"), [this](QString &to) {
            if (!m_value.isEmpty() && !ModelNames::isName(m_value))
                reason = QStringLiteral("A name is a line of 1 to %1 characters, not '%2'.")
                             .arg(QString::number(ModelNames::LongestName), m_value);
            to = m_value;
        });
        return true;
    }

    /// "animation 12 name": what all animations with that id are called.
    bool applyAnimation(SkinnedMesh &mesh, int at)
    {
        bool isNumber = false;
        const int id = m_words.value(at + 1).toInt(&isNumber);
        QString name = mesh.animationNames.value(id);
        if (!isNumber || squashed(m_words.value(at)) != QLatin1String("animation") ||
            !applyName(name, at + 2, QStringLiteral("animation %1 ").arg(id)))
            return false;
        if (name.isEmpty())
            mesh.animationNames.remove(id);
        else
            mesh.animationNames.insert(id, name);
        return true;
    }

    template <typename Key>
    bool apply(const JsonField &field, TrackTable<Key> &table, int at, const QString &place)
    {
        // "translation 2 5 x", "translation 2 key 5 x".
        QString name = QLatin1String(field.key);
        name.chop(1);
        const int words = wordsThatName(namesOf(field) << squashed(name), at);
        const Choice tracks = choiceIn(m_words, at + words, table.trackCount());
        if (words == 0 || tracks.words == 0)
            return false;
        int behind = at + words + 1;
        if (squashed(m_words.value(behind)) == QLatin1String("key"))
            ++behind;
        const Choice keys = choiceIn(m_words, behind, table.frameCount());
        if (keys.words == 0) {
            reason = QStringLiteral("The number of a key is missing, as in '%1 0 5'.").arg(name);
            return true;
        }
        each(tracks, table.trackCount(), place + name + QLatin1Char(' '),
             [&](int track, const QString &path) {
                 each(keys, table.frameCount(), path + QStringLiteral("key "),
                      [&](int frame, const QString &key) {
                          floats(table.at(track, frame),
                                 squashed(m_words.mid(behind + 1).join(QLatin1Char(' '))), key);
                      });
             });
        return true;
    }

    bool apply(const JsonField &, std::vector<AnimFrame> &frames, int at, const QString &place)
    {
        // "frame 5 yaw", "yaw 5".
        const int words = wordsThatName({QStringLiteral("frame"), QStringLiteral("yaw")}, at);
        const Choice choice = choiceIn(m_words, at + words, int(frames.size()));
        const QString rest = squashed(m_words.mid(at + words + 1).join(QLatin1Char(' ')));
        if (words == 0 || choice.words == 0 || (rest != QLatin1String("yaw") && !rest.isEmpty()))
            return false;
        each(choice, int(frames.size()), place + QStringLiteral("frame "), [&](int i, const QString &path) {
            change(frames[size_t(i)].yawOffset, path + QStringLiteral("yaw"),
                   [this](float &value) { number(value); });
        });
        return true;
    }

    bool apply(const JsonField &field, std::vector<quint16> &values, int at, const QString &place)
    {
        const int words = wordsThatName(namesOf(field), at);
        const Choice choice = choiceIn(m_words, at + words, int(values.size()));
        if (words > 0 && choice.words > 0 && at + words + 1 == m_words.size()) {
            each(choice, int(values.size()), place + QLatin1String(field.key) + QLatin1Char(' '),
                 [&](int i, const QString &path) {
                     change(values[size_t(i)], path.trimmed(),
                            [&](quint16 &value) { integer(value, field.most); });
                 });
            return true;
        }
        const QString rest = behindName(field, at);
        if (rest.isNull() || !rest.isEmpty())
            return false;
        change(values, place + QLatin1String(field.key), [&](std::vector<quint16> &list) {
            QByteArray text = m_value.trimmed().toUtf8();
            if (!text.startsWith('['))
                text = '[' + text + ']';
            read(field, list, text);
        });
        return true;
    }

    template <typename Value>
    bool apply(const JsonField &field, Value &value, int at, const QString &place)
    {
        const QString rest = behindName(field, at);
        if (rest.isNull())
            return false;
        if constexpr (JsonFloats<Value>::count > 0)
            return floats(value, rest, place + QLatin1String(field.key));
        if (!rest.isEmpty())
            return false;
        change(value, place + QLatin1String(field.key), [&](Value &to) {
            if constexpr (std::is_integral_v<Value>)
                integer(to, field.most);
            else if constexpr (std::is_same_v<Value, float>)
                number(to);
            else if constexpr (std::is_same_v<Value, QString>)
                text(to);
        });
        return true;
    }

    /// All components of a value, or the one that `component` names: x, y, z, w, or a number from 1.
    template <typename Value>
    bool floats(Value &value, const QString &component, const QString &place)
    {
        constexpr int Count = int(JsonFloats<Value>::count);
        if (component.isEmpty()) {
            change(value, place.trimmed(), [this](Value &to) {
                const QStringList parts = NumberText::split(m_value);
                if (parts.size() != 1 && parts.size() != Count) {
                    reason = QStringLiteral("%1 numbers are wanted, not '%2'.")
                                 .arg(QString::number(Count), m_value);
                    return;
                }
                for (int i = 0; i < Count && reason.isEmpty(); ++i)
                    number(floatsOf(to)[i], parts.size() == 1 ? m_value : parts[i]);
            });
            return true;
        }
        int at = Count > 4 ? component.toInt() - 1
                           : QStringLiteral("xyzw").indexOf(component.size() == 1 ? component
                                                                                  : QStringLiteral("?"));
        if (at < 0 || at >= Count)
            return false;
        change(floatsOf(value)[at], place.trimmed() + QLatin1Char(' ') + component,
               [this](float &to) { number(to); });
        return true;
    }

    /// Changes one value by `set(value)` and tells of it.
    template <typename Value, typename Set>
    void change(Value &value, const QString &place, const Set &set)
    {
        const QByteArray before = JsonWriter::textOf(value);
        set(value);
        ++m_place;
        if (!reason.isEmpty()) {
            reason = QStringLiteral("%1: %2").arg(place, reason);
            return;
        }
        const QByteArray after = JsonWriter::textOf(value);
        if (after != before)
            m_changes.push_back({place, before, after});
    }

    /// A JSON value.
    template <typename Value>
    void read(const JsonField &field, Value &value, const QByteArray &text)
    {
        JsonReader reader({text.constData(), size_t(text.size())});
        reader.read(field, value);
        reader.expectEnd();
        reason = reader.problem().text;
    }

    /// The result of the value as an expression, within a range.
    double calculated(const QString &text, double old, const NumberRange &range)
    {
        Expression expression;
        reason = expression.read(text);
        double result = 0.0;
        if (reason.isEmpty()) {
            Expression::Names names;
            names.x = old;
            names.i = m_place;
            reason = range.fit(expression.value(names), result);
        }
        return result;
    }

    template <typename Integer>
    void integer(Integer &value, qint64 most)
    {
        NumberRange range = NumberRange::of<Integer>();
        if (most >= 0)
            range.most = double(most);
        // Flags are bits, the highest of which is the sign.
        if (std::is_signed_v<Integer> &&
            m_value.trimmed().startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            range.most = double(std::numeric_limits<std::make_unsigned_t<Integer>>::max());
        const double result = calculated(m_value, double(value), range);
        if (reason.isEmpty())
            value = Integer(qint64(result));
    }

    void number(float &value) { number(value, m_value); }
    void number(float &value, const QString &text)
    {
        if (text.startsWith(QLatin1Char('"')))
            return read(JsonField{}, value, text.toUtf8());
        if (NumberText::parse(text, value))
            return;
        const double result = calculated(text, NumberText::written(value), NumberRange::ofFloats());
        if (reason.isEmpty())
            value = float(result);
    }

    void text(QString &value)
    {
        value = m_value;
        if (!BinaryFileWriter::canWrite(value))
            reason = QStringLiteral("The files hold texts of Latin-1 characters only.");
    }

    QStringList m_words;
    QString m_value;
    std::vector<PatchedField> &m_changes;
    int m_place = 0; ///< how many values were changed before
};
} // namespace

QString patchModel(ModelJson::Model &model, const QString &path, const QString &value,
                   std::vector<PatchedField> &changes)
{
    Patch patch(path, value, changes);
    std::visit([&patch](auto &each) { patch.record(each, 0, QString()); }, model);
    if (patch.reason.isEmpty() && patch.isEmpty())
        return QStringLiteral("There is no '%1'.").arg(path.simplified());
    return patch.reason;
}
