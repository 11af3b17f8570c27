// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonReader.h"

#include "BinaryFileWriter.h"
#include "JsonNumbers.h"
#include "ModelNames.h"

#include <QTextCodec>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {
/// Deeper than any record goes.
constexpr int MostNested = 32;
constexpr int MostQuoted = 24;

QString say(const char *text)
{
    return QCoreApplication::translate("ModelJson", text);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The end of the number that JSON's grammar finds at `at`; `at` itself where there is none.
const char *numberEnd(const char *at, const char *end)
{
    const auto digits = [end](const char *from) {
        while (from != end && isDigit(*from))
            ++from;
        return from;
    };
    const char *whole = at != end && *at == '-' ? at + 1 : at;
    const char *cursor = whole != end && *whole == '0' ? whole + 1 : digits(whole);
    if (cursor == whole)
        return at;
    if (cursor != end && *cursor == '.') {
        const char *fraction = digits(cursor + 1);
        if (fraction == cursor + 1)
            return at;
        cursor = fraction;
    }
    if (cursor != end && (*cursor == 'e' || *cursor == 'E')) {
        const char *exponent = cursor + 1;
        if (exponent != end && (*exponent == '+' || *exponent == '-'))
            ++exponent;
        cursor = digits(exponent);
        if (cursor == exponent)
            return at;
    }
    return cursor;
}
} // namespace

JsonReader::JsonReader(std::string_view text)
    : m_text(text)
    , m_cursor(text.data())
{
    // Some editors mark their files.
    if (text.substr(0, 3) == "\xef\xbb\xbf")
        m_cursor += 3;
}

void JsonReader::fail(const char *at, const QString &text)
{
    if (failed())
        return;
    m_problemAt = at;
    m_problem = text;
}

JsonProblem JsonReader::problem() const
{
    if (!failed())
        return {};
    JsonProblem problem{m_problem, 1, 1};
    const char *from = m_text.data();
    if (m_text.substr(0, 3) == "\xef\xbb\xbf" && m_problemAt >= from + 3)
        from += 3;
    for (; from < m_problemAt; ++from) {
        if (*from == '\n') {
            ++problem.line;
            problem.column = 1;
        } else if ((uchar(*from) & 0xc0) != 0x80) {
            ++problem.column;
        }
    }
    return problem;
}

const char *JsonReader::next()
{
    while (m_cursor != end() &&
           (*m_cursor == ' ' || *m_cursor == '\n' || *m_cursor == '\r' || *m_cursor == '\t'))
        ++m_cursor;
    return m_cursor;
}

bool JsonReader::accept(char character)
{
    if (failed() || next() == end() || *m_cursor != character)
        return false;
    ++m_cursor;
    return true;
}

void JsonReader::expect(char character)
{
    if (failed() || accept(character))
        return;
    fail(m_cursor,
         say(QT_TRANSLATE_NOOP("ModelJson", "%1 is wanted here, not %2."))
             .arg(QString(QLatin1Char('\'')) + QLatin1Char(character) + QLatin1Char('\''), quoted(m_cursor)));
}

void JsonReader::expectEnd()
{
    if (next() != end())
        fail(m_cursor, say(QT_TRANSLATE_NOOP("ModelJson", "The text should end here, but goes on with %1."))
                           .arg(quoted(m_cursor)));
}

QString JsonReader::quoted(const char *at) const
{
    if (at == end())
        return say(QT_TRANSLATE_NOOP("ModelJson", "the end of the text"));
    // A word or number whole, else the one character.
    const char *last = at;
    while (last != end() && last - at < MostQuoted && !std::strchr(" \t\r\n,:[]{}\"", *last))
        ++last;
    if (last == at)
        ++last;
    return QLatin1Char('\'') + QString::fromUtf8(at, int(last - at)) + QLatin1Char('\'');
}

std::string_view JsonReader::numberToken()
{
    const char *at = next();
    const char *last = numberEnd(at, end());
    m_cursor = last;
    return {at, size_t(last - at)};
}

std::string_view JsonReader::stringToken()
{
    const char *at = next();
    const char *cursor = at + 1;
    for (; cursor < end() && *cursor != '"'; ++cursor) {
        if (uchar(*cursor) < 0x20) {
            fail(cursor, say(QT_TRANSLATE_NOOP("ModelJson", "A control character stands in a text.")));
            return {};
        }
        if (*cursor == '\\')
            ++cursor;
    }
    if (cursor >= end()) {
        fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "This text does not end.")));
        return {};
    }
    m_cursor = cursor + 1;
    return {at + 1, size_t(cursor - at - 1)};
}

QString JsonReader::decoded(std::string_view raw, const char *at)
{
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    QString text;
    const char *cursor = raw.data();
    const char *const last = cursor + raw.size();
    while (cursor != last && !failed()) {
        const char *part = std::find(cursor, last, '\\');
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        text += utf8->toUnicode(cursor, int(part - cursor), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0)
            fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "This text is no UTF-8.")));
        cursor = part;
        if (cursor == last)
            break;
        // stringToken() has seen that a character follows.
        static const char names[] = "\"\\/bfnrt";
        static const char characters[] = "\"\\/\b\f\n\r\t";
        if (const char *found = std::strchr(names, cursor[1])) {
            text += QLatin1Char(characters[found - names]);
            cursor += 2;
            continue;
        }
        const QByteArray digits = QByteArray(cursor, int(std::min<qint64>(6, last - cursor))).mid(2);
        const auto isDigit = [](char each) { return std::isxdigit(uchar(each)) != 0; };
        if (cursor[1] != 'u' || digits.size() != 4 || !std::all_of(digits.begin(), digits.end(), isDigit))
            fail(cursor, say(QT_TRANSLATE_NOOP("ModelJson", "There is no such escape: %1."))
                             .arg(QString::fromUtf8(cursor, int(std::min<qint64>(6, last - cursor)))));
        text += QChar(digits.toUShort(nullptr, 16));
        cursor += std::min<qint64>(6, last - cursor);
    }
    return text;
}

std::string_view JsonReader::key()
{
    const char *at = next();
    if (failed())
        return {};
    if (at == end() || *at != '"') {
        fail(at,
             say(QT_TRANSLATE_NOOP("ModelJson", "A key in quotes is wanted here, not %1.")).arg(quoted(at)));
        return {};
    }
    std::string_view name = stringToken();
    if (name.find('\\') != name.npos) {
        m_key = decoded(name, at).toUtf8();
        name = {m_key.constData(), size_t(m_key.size())};
    }
    expect(':');
    return name;
}

void JsonReader::skip(int depth)
{
    const char *at = next();
    if (failed())
        return;
    if (depth > MostNested)
        return fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "Nothing is nested as deeply as this.")));
    if (accept('{')) {
        if (accept('}'))
            return;
        do {
            key();
            skip(depth + 1);
        } while (accept(','));
        expect('}');
    } else if (accept('[')) {
        if (accept(']'))
            return;
        do {
            skip(depth + 1);
        } while (accept(','));
        expect(']');
    } else if (at != end() && *at == '"') {
        decoded(stringToken(), at);
    } else if (numberToken().empty()) {
        for (const std::string_view word : {"true", "false", "null"}) {
            if (std::string_view(at, size_t(end() - at)).substr(0, word.size()) == word) {
                m_cursor = at + word.size();
                return;
            }
        }
        fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "%1 is no value.")).arg(quoted(at)));
    }
}

void JsonReader::read(const JsonField &, float &value)
{
    const char *at = next();
    if (failed())
        return;
    const std::string_view number = numberToken();
    if (!number.empty()) {
        if (!JsonNumbers::read(number, value))
            fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "%1 is too large for a float.")).arg(quoted(at)));
    } else if (at == end() || *at != '"') {
        fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "A number is wanted here, not %1.")).arg(quoted(at)));
    } else if (!JsonNumbers::readBits(stringToken(), value)) {
        fail(at,
             say(QT_TRANSLATE_NOOP(
                 "ModelJson", "A float that is no number is \"0x\" with the eight hexadecimal digits of its "
                              "bits, such as \"0x7fc00000\".")));
    }
}

qint64 JsonReader::integer(qint64 least, qint64 most)
{
    const char *at = next();
    if (failed())
        return 0;
    qint64 value = 0;
    const std::string_view number = numberToken();
    if (number.empty() || !JsonNumbers::read(number, value) || value < least || value > most) {
        fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "A whole number from %1 to %2 is wanted here, not %3."))
                     .arg(QString::number(least), QString::number(most), quoted(at)));
        return 0;
    }
    return value;
}

QString JsonReader::anyText()
{
    const char *at = next();
    if (failed())
        return {};
    if (at != end() && *at == '"')
        return decoded(stringToken(), at);
    fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "A text in quotes is wanted here, not %1.")).arg(quoted(at)));
    return {};
}

void JsonReader::read(const JsonField &, QMap<int, QString> &names)
{
    expect('{');
    if (failed() || accept('}'))
        return;
    do {
        const char *at = next();
        const QByteArray number = [this] {
            const std::string_view name = key();
            return QByteArray(name.data(), int(name.size()));
        }();
        const char *valueAt = next();
        const QString name = anyText();
        if (failed())
            return;
        if (number != QByteArray::number(number.toInt()))
            return fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "The key of a name is a number.")));
        if (names.contains(number.toInt()))
            return failTwice(at, {number.constData(), size_t(number.size())});
        if (!ModelNames::isName(name))
            return fail(valueAt,
                        say(QT_TRANSLATE_NOOP("ModelJson", "A name is a line of 1 to %1 characters."))
                            .arg(ModelNames::LongestName));
        names.insert(number.toInt(), name);
    } while (accept(','));
    expect('}');
}

void JsonReader::read(const JsonField &, QString &text)
{
    const char *at = next();
    text = anyText();
    if (!failed() && !BinaryFileWriter::canWrite(text))
        fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "The files hold texts of Latin-1 characters only.")));
}

void JsonReader::failCount(const char *at, size_t wanted, size_t found)
{
    fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "%1 entries are wanted here, not %2."))
                 .arg(QString::number(wanted), QString::number(found)));
}

void JsonReader::failTwice(const char *at, std::string_view key)
{
    fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "\"%1\" stands here twice."))
                 .arg(QString::fromUtf8(key.data(), int(key.size()))));
}

void JsonReader::failUnknown(const char *at, std::string_view key, const char *record)
{
    fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "There is no \"%1\" in a record of this kind (%2)."))
                 .arg(QString::fromUtf8(key.data(), int(std::min<size_t>(key.size(), 40))),
                      QLatin1String(record)));
}

void JsonReader::failMissing(const char *at, const char *key, const char *record)
{
    fail(at, say(QT_TRANSLATE_NOOP("ModelJson", "\"%1\" is missing in this record (%2)."))
                 .arg(QLatin1String(key), QLatin1String(record)));
}
