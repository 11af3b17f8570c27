// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ConditionReader.h"

#include "ComparedValue.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
constexpr int MostWords = 6; ///< that name one field

const char *const reservedWords[] = {
    QT_TRANSLATE_NOOP("Condition", "and"), QT_TRANSLATE_NOOP("Condition", "or"),
    QT_TRANSLATE_NOOP("Condition", "not"), QT_TRANSLATE_NOOP("Condition", "in")};

QString said(const char *text)
{
    return QCoreApplication::translate("Condition", text);
}

QString somethingMissing()
{
    return said(QT_TRANSLATE_NOOP("Condition", "Something is missing at the end."));
}

} // namespace

QString ConditionReader::read()
{
    if (m_text.size() > ConditionProgram::MostCharacters)
        return said(QT_TRANSLATE_NOOP("Condition", "That is too long for a condition."));
    const Reach reach = anyOf();
    if (!failed() && !atEnd())
        fail(m_at, said(QT_TRANSLATE_NOOP("Condition", "'%1' is not understood.")).arg(m_text.mid(m_at)));
    m_program.kinds = reach.possible;
    return m_reason;
}

ConditionReader::Reach ConditionReader::anyOf()
{
    Reach reach = allOf();
    while (!failed() && takeWord("or")) {
        m_program.isPlain = false;
        const Reach other = allOf();
        reach = {reach.defined | other.defined, reach.possible | other.possible};
        add(Part::Or);
    }
    return reach;
}

ConditionReader::Reach ConditionReader::allOf()
{
    Reach reach = term();
    while (!failed() && !atEnd()) {
        if (isWordAt(m_at, "or") || m_text[m_at] == QLatin1Char(')'))
            break;
        const bool isAnd = takeWord("and");
        m_program.isPlain &= !isAnd;
        if (!isAnd)
            take(QLatin1Char(','));
        const Reach other = term();
        reach = {reach.defined & other.defined, reach.possible & other.possible};
        add(Part::And);
    }
    return reach;
}

ConditionReader::Reach ConditionReader::term()
{
    if (++m_depth > ConditionProgram::MostDepth) {
        fail(m_at, said(QT_TRANSLATE_NOOP("Condition", "That has too many parentheses.")));
        return {};
    }
    Reach reach;
    if (take(QLatin1Char('('))) {
        m_program.isPlain = false;
        reach = anyOf();
        if (!failed() && !take(QLatin1Char(')')))
            fail(m_at, said(QT_TRANSLATE_NOOP("Condition", "A parenthesis is not closed.")));
    } else if (takeWord("not")) {
        m_program.isPlain = false;
        reach = term();
        reach.possible = reach.defined;
        add(Part::Not);
    } else {
        reach = wordTerm();
    }
    --m_depth;
    return reach;
}

ConditionReader::Reach ConditionReader::wordTerm()
{
    if (atEnd()) {
        fail(m_at, somethingMissing());
        return {};
    }
    const int begin = m_at;
    QString typed;
    const RecordWord *word = takeRecordWord(typed);
    if (!word) {
        fail(begin, said(QT_TRANSLATE_NOOP("Condition", "'%1' is neither a field nor a kind of records."))
                        .arg(typed));
        return {};
    }
    const Sign sign = takeSign();
    const bool isAtNumber = !atEnd() && ComparedValue::rangeExpression()
                                            .match(m_text, m_at, QRegularExpression::NormalMatch,
                                                   QRegularExpression::AnchoredMatchOption)
                                            .hasMatch();
    const bool isSwitch =
        std::any_of(word->meanings.begin(), word->meanings.end(), [](const WordMeaning &each) {
            return each.field && each.field->type() == RecordField::Type::Switch;
        });
    if (!word->meanings.empty() && (sign != Sign::None || isAtNumber || (isSwitch && word->kinds.isEmpty())))
        return comparison(*word, typed, sign);
    if (sign != Sign::None || word->kinds.isEmpty()) {
        fail(m_at, said(QT_TRANSLATE_NOOP("Condition", "Behind '%1' a comparison is wanted, such as = 1 or "
                                                       "> 1."))
                       .arg(typed));
        return {};
    }
    m_program.named = m_program.named | word->kinds;
    add(Part::Kinds, word->kinds);
    return {KindSet::all(), word->kinds};
}

ConditionReader::Reach ConditionReader::comparison(const RecordWord &word, const QString &typed, Sign sign)
{
    QString value;
    bool isQuoted = false;
    skipBlanks();
    const int begin = m_at;
    const bool hasNumber = sign == Sign::None && takeNumberOrRange(value);
    if (sign != Sign::None) {
        m_program.isPlain = false;
        value = takeValue(isQuoted);
    } else if (!hasNumber) {
        m_program.isPlain = false;
        value = QStringLiteral("1"); // a switch that is on
    }
    if (failed())
        return {};
    const Sign asked = sign == Sign::None ? Sign::Equal : sign;
    ComparedValue compared(word, asked, value, isQuoted, m_mesh);
    ConditionProgram::Comparison made;
    made.word = typed;
    made.isNegated = sign == Sign::Different;
    KindSet kinds;
    for (const WordMeaning &meaning : word.meanings) {
        ConditionProgram::Test test;
        test.meaning = meaning;
        if (!compared.fit(test))
            continue;
        kinds = kinds | KindSet(meaning.kind);
        made.tests.push_back(std::move(test));
    }
    m_program.asksNames |= compared.hasAskedNames();
    if (made.tests.empty()) {
        m_lacksName = compared.couldBeName();
        fail(begin, compared.refusal(typed));
        return {};
    }
    m_program.comparisons.push_back(std::move(made));
    add(Part::Compare, {}, int(m_program.comparisons.size()) - 1);
    return {kinds, kinds};
}

// --- Words and signs ---------------------------------------------------------------------------------------

/// The longest run of words that stands for something.
const RecordWord *ConditionReader::takeRecordWord(QString &typed)
{
    std::vector<int> ends;
    int at = m_at;
    const int begin = m_at;
    while (int(ends.size()) < MostWords && at < m_text.size()) {
        const bool isReserved = std::any_of(std::begin(reservedWords), std::end(reservedWords),
                                            [&](const char *each) { return isWordAt(at, each); });
        if (!m_text[at].isLetterOrNumber() || isReserved || (ends.empty() && !m_text[at].isLetter()))
            break;
        while (at < m_text.size() && m_text[at].isLetterOrNumber())
            ++at;
        ends.push_back(at);
        // A hyphen before a number is a sign.
        const bool isHyphen =
            m_text.mid(at, 1) == QLatin1String("-") && at + 1 < m_text.size() && m_text[at + 1].isLetter();
        while (at < m_text.size() &&
               (m_text[at].isSpace() || m_text[at] == QLatin1Char('.') || m_text[at] == QLatin1Char('_')))
            ++at;
        at += isHyphen ? 1 : 0;
    }
    for (auto end = ends.rbegin(); end != ends.rend(); ++end) {
        typed = m_text.mid(begin, *end - begin);
        if (const RecordWord *found = RecordWords::find(typed)) {
            m_at = *end;
            return found;
        }
    }
    if (ends.empty())
        typed = m_text.mid(begin).trimmed();
    return nullptr;
}

bool ConditionReader::isWordAt(int at, const char *english) const
{
    for (const QString &word : {QString::fromUtf8(english), said(english)}) {
        const int end = at + word.size();
        if (m_text.midRef(at, word.size()).compare(word, Qt::CaseInsensitive) == 0 &&
            (end >= m_text.size() || !m_text[end].isLetterOrNumber()) &&
            (at == 0 || !m_text[at - 1].isLetterOrNumber()))
            return true;
    }
    return false;
}

bool ConditionReader::takeWord(const char *english)
{
    if (atEnd() || !isWordAt(m_at, english))
        return false;
    while (m_at < m_text.size() && m_text[m_at].isLetterOrNumber())
        ++m_at;
    return true;
}

ConditionReader::Sign ConditionReader::takeSign()
{
    static const std::pair<QString, Sign> signs[] = {
        {QStringLiteral("=="), Sign::Equal},         {QStringLiteral("="), Sign::Equal},
        {QStringLiteral("!="), Sign::Different},     {QStringLiteral("<>"), Sign::Different},
        {QStringLiteral("\u2260"), Sign::Different}, {QStringLiteral("<="), Sign::AtMost},
        {QStringLiteral("\u2264"), Sign::AtMost},    {QStringLiteral("<"), Sign::Less},
        {QStringLiteral(">="), Sign::AtLeast},       {QStringLiteral("\u2265"), Sign::AtLeast},
        {QStringLiteral(">"), Sign::More},           {QStringLiteral("~"), Sign::Contains}};
    if (atEnd())
        return Sign::None;
    for (const auto &[text, sign] : signs) {
        if (m_text.midRef(m_at).startsWith(text)) {
            m_at += text.size();
            return sign;
        }
    }
    return takeWord("in") ? Sign::In : Sign::None;
}

bool ConditionReader::takeNumberOrRange(QString &text)
{
    const QRegularExpressionMatch match = ComparedValue::rangeExpression().match(
        m_text, m_at, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    if (!match.hasMatch())
        return false;
    text = match.captured();
    m_at += text.size();
    return true;
}

/// Where a value ends: before a comma that is none of decimals, a parenthesis that was not opened in it, or
/// a word that joins.
bool ConditionReader::isJunctionAt(int at) const
{
    if (m_text[at] == QLatin1Char(','))
        return at == 0 || at + 1 >= m_text.size() || !m_text[at - 1].isDigit() || !m_text[at + 1].isDigit();
    return isWordAt(at, "and") || isWordAt(at, "or");
}

QString ConditionReader::takeValue(bool &isQuoted)
{
    if (atEnd())
        return {};
    const QChar quote = m_text[m_at];
    isQuoted = quote == QLatin1Char('"') || quote == QLatin1Char('\'') || quote == QChar(0x201c) ||
               quote == QChar(0x201e);
    const int begin = m_at;
    if (isQuoted) {
        const bool isPlainQuote = quote.unicode() < 0x80;
        int end = begin + 1;
        while (end < m_text.size() && m_text[end] != quote &&
               (isPlainQuote || (m_text[end] != QChar(0x201d) && m_text[end] != QChar(0x201c))))
            ++end;
        if (end >= m_text.size()) {
            fail(begin, said(QT_TRANSLATE_NOOP("Condition", "A quotation mark is not closed.")));
            return {};
        }
        m_at = end + 1;
        return m_text.mid(begin + 1, end - begin - 1);
    }
    int open = 0;
    while (m_at < m_text.size()) {
        const QChar character = m_text[m_at];
        if (open == 0 && (character == QLatin1Char(')') || isJunctionAt(m_at)))
            break;
        open += character == QLatin1Char('(') ? 1 : character == QLatin1Char(')') ? -1 : 0;
        ++m_at;
    }
    return m_text.mid(begin, m_at - begin).trimmed();
}

// --- Steps -------------------------------------------------------------------------------------------------

void ConditionReader::add(Part part, KindSet kinds, int comparison)
{
    if (!failed())
        m_program.steps.push_back({part, kinds, comparison});
}

void ConditionReader::skipBlanks()
{
    while (m_at < m_text.size() && m_text[m_at].isSpace())
        ++m_at;
}

bool ConditionReader::take(QChar character)
{
    if (atEnd() || m_text[m_at] != character)
        return false;
    ++m_at;
    return true;
}

bool ConditionReader::atEnd()
{
    skipBlanks();
    return m_at >= m_text.size();
}

void ConditionReader::fail(int place, const QString &reason)
{
    if (m_reason.isEmpty())
        m_reason =
            said(QT_TRANSLATE_NOOP("Condition", "Character %1: %2")).arg(QString::number(place + 1), reason);
}
