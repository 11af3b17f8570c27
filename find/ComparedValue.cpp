// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ComparedValue.h"

#include "Expression.h"
#include "NumberText.h"
#include "ValueNames.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
using Way = ConditionProgram::Way;

QString valueText(const char *text)
{
    return QCoreApplication::translate("Condition", text);
}

/// A number that something of this meaning may be compared with; false when the text is none.
bool readNumber(const WordMeaning &meaning, const QString &text, double &number)
{
    const bool isReal = meaning.field && meaning.field->type() == RecordField::Type::Real;
    float plain = 0.0f;
    if (isReal && NumberText::parse(text, plain)) {
        number = double(plain);
        return true;
    }
    Expression expression;
    if (!expression.read(text).isEmpty() || expression.isRelative())
        return false;
    number = expression.value({0.0, 0.0, meaning.field ? meaning.field->degree() : Expression::Radian});
    // As the field would hold it.
    if (isReal && NumberText::narrow(number, plain))
        number = double(plain);
    return !std::isnan(number);
}

bool isWhole(const WordMeaning &meaning)
{
    return !meaning.field || meaning.field->type() != RecordField::Type::Real;
}
} // namespace

const QRegularExpression &ComparedValue::rangeExpression()
{
    static const QString number =
        QStringLiteral("[+-]?(?:0[xX][0-9a-fA-F]+|[0-9]+(?:[.,][0-9]+)?(?:[eE][+-]?[0-9]+)?|[.][0-9]+)");
    static const QRegularExpression range(
        QStringLiteral("(%1)(?:\\s*(?:-|\u2013|\\.\\.)\\s*(%1))?").arg(number));
    return range;
}

bool ComparedValue::fit(Test &test)
{
    if (test.meaning.field && test.meaning.field->type() == RecordField::Type::Text)
        return fitText(test);
    if (m_value.isEmpty())
        return false;
    const bool isBelow = m_sign == Sign::In && test.meaning.isBone;
    return (!m_isQuoted && !isBelow && fitNumber(test)) || fitName(test) || (isBelow && fitNumber(test));
}

bool ComparedValue::fitText(Test &test)
{
    if (!isForSame() && m_sign != Sign::Contains)
        return false;
    test.way = m_sign == Sign::Contains ? Way::PartOfText : Way::SameText;
    test.text = m_value;
    if (test.meaning.kind == RecordKind::AnimBlock)
        fitAnimationName(test);
    return true;
}

/// A block is called what the mesh calls its id, which is asked here: other threads cannot.
void ComparedValue::fitAnimationName(Test &test)
{
    m_hasAskedNames = true;
    test.meaning.field = RecordFields::find(RecordKind::AnimBlock, QStringLiteral("animId"));
    test.way = Way::OneOf;
    if (!m_mesh)
        return;
    for (auto it = m_mesh->animationNames.begin(); it != m_mesh->animationNames.end(); ++it) {
        const bool isSame = it.value().compare(m_value, Qt::CaseInsensitive) == 0;
        if (m_sign == Sign::Contains ? it.value().contains(m_value, Qt::CaseInsensitive) : isSame)
            test.numbers.push_back(it.key());
    }
    std::sort(test.numbers.begin(), test.numbers.end());
}

bool ComparedValue::fitRange(Test &test) const
{
    static const QRegularExpression whole(QRegularExpression::anchoredPattern(rangeExpression().pattern()));
    const QRegularExpressionMatch range = whole.match(m_value);
    double first = 0.0;
    double last = 0.0;
    if (!range.hasMatch() || range.capturedLength(2) == 0 ||
        !readNumber(test.meaning, range.captured(1), first) ||
        !readNumber(test.meaning, range.captured(2), last))
        return false;
    test.first = std::min(first, last);
    test.last = std::max(first, last);
    return true;
}

bool ComparedValue::fitNumber(Test &test) const
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const bool isSame = isForSame() || m_sign == Sign::In;
    if (isSame && m_value.compare(QLatin1String("nan"), Qt::CaseInsensitive) == 0) {
        test.way = Way::NotANumber;
        return !isWhole(test.meaning);
    }
    if (isSame && fitRange(test))
        return true;
    double number = 0.0;
    if (!readNumber(test.meaning, m_value, number))
        return false;
    qint64 whole = 0;
    const bool isNumberOfKind = !isWhole(test.meaning) || Expression::whole(number, whole);
    if (m_sign == Sign::Contains) {
        test.way = Way::HasBits;
        test.first = double(whole);
        return test.meaning.field && test.meaning.field->isFlags() && isNumberOfKind && whole > 0;
    }
    test.first = m_sign == Sign::Less || m_sign == Sign::AtMost ? -infinity : number;
    test.last = m_sign == Sign::More || m_sign == Sign::AtLeast ? infinity : number;
    test.isFirstOut = m_sign == Sign::More;
    test.isLastOut = m_sign == Sign::Less;
    return isNumberOfKind || !isSame;
}

bool ComparedValue::looksLikeName() const
{
    // Names have digits, too, but nobody means one by digits alone.
    return m_isQuoted || m_sign == Sign::In ||
           std::any_of(m_value.begin(), m_value.end(), [](QChar each) { return each.isLetter(); });
}

bool ComparedValue::fitName(Test &test)
{
    if (!looksLikeName())
        return false;
    m_hasAskedNames |= ValueNames::hasNames(test.meaning);
    if (m_sign == Sign::In && test.meaning.isBone)
        test.numbers = ValueNames::bonesBelow(m_value, m_mesh);
    else if (isForSame() || m_sign == Sign::Contains)
        test.numbers = ValueNames::numbersCalled(test.meaning, m_value, m_sign == Sign::Contains, m_mesh);
    test.way = Way::OneOf;
    return !test.numbers.empty();
}

bool ComparedValue::couldBeName() const
{
    const bool isSign = isForSame() || m_sign == Sign::Contains || m_sign == Sign::In;
    double number = 0.0;
    return isSign && !m_value.isEmpty() && looksLikeName() &&
           std::any_of(m_word.meanings.begin(), m_word.meanings.end(), [&](const WordMeaning &each) {
               return ValueNames::hasNames(each) &&
                      (m_sign == Sign::In || !readNumber(each, m_value, number));
           });
}

QString ComparedValue::refusal(const QString &typed) const
{
    if (m_value.isEmpty() && !m_isQuoted)
        return valueText(QT_TRANSLATE_NOOP("Condition", "Something is missing at the end."));
    if (std::any_of(m_word.meanings.begin(), m_word.meanings.end(), [](const WordMeaning &each) {
            return each.field && each.field->type() == RecordField::Type::Text;
        }))
        return valueText(QT_TRANSLATE_NOOP("Condition", "'%1' is a text, which is compared by =, != or ~."))
            .arg(typed);
    double number = 0.0;
    if (readNumber(m_word.meanings.front(), m_value, number))
        return m_sign == Sign::Contains
                   ? valueText(QT_TRANSLATE_NOOP("Condition",
                                                 "~ finds texts and names, and bits of flags, but no '%1'."))
                         .arg(typed)
                   : valueText(QT_TRANSLATE_NOOP("Condition", "'%1' is whole numbers, which %2 is not."))
                         .arg(typed, m_value);
    return couldBeName()
               ? valueText(QT_TRANSLATE_NOOP("Condition",
                                             "'%1' is no number for '%2', and nothing there is called so."))
                     .arg(m_value, typed)
               : valueText(QT_TRANSLATE_NOOP("Condition", "'%1' is no number for '%2'.")).arg(m_value, typed);
}
