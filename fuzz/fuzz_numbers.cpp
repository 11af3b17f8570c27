// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Expression.h"
#include "NumberRange.h"
#include "NumberText.h"
#include "Require.h"

#include <cmath>
#include <cstring>

namespace {
bool isSame(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b;
}

const Expression::Names some{2.5, 3.0, Expression::Radian};

/// What was calculated either fits, and then stays what it is, or there is a reason.
void checkRange(double result, const NumberRange &range)
{
    double number = 0.0;
    if (!range.fit(result, number).isEmpty())
        return;
    Fuzz::require(number >= range.least && number <= range.most, "a number that fits is in its range");
    Fuzz::require(!range.isWhole || number == std::floor(number), "a whole number is one");
    double again = 0.0;
    Fuzz::require(range.fit(number, again).isEmpty() && again == number, "what fits, fits again");
}

void checkExpression(const QString &text)
{
    Expression expression;
    const QString reason = expression.read(text);
    const double value = expression.value(some);
    Expression again;
    Fuzz::require(again.read(text) == reason && isSame(again.value(some), value),
                  "a text is read the same each time");
    if (!reason.isEmpty()) {
        Fuzz::require(!expression.isRelative() && value == 0.0, "nothing is left of what is refused");
        return;
    }
    Fuzz::require(!expression.isIncomplete(), "what is understood is complete");
    const QString known = QStringLiteral("0123456789abcdefABCDEFgGiIpPxX.,+-*/=() \t");
    for (const QChar character : text.trimmed())
        Fuzz::require(known.contains(character), "what is understood has characters of a calculation only");
    if (!expression.isRelative())
        Fuzz::require(isSame(expression.value({-1e9, 77.0, Expression::Radian}), value),
                      "without x and i all records get one number");
    checkRange(value, NumberRange::of<quint16>());
    checkRange(value, NumberRange::of<qint32>());
    checkRange(value, NumberRange::ofFloats());

    // Within parentheses it is the same; a change ("+=5") and an equals sign stand before all.
    Expression within;
    if (!text.contains(QLatin1Char('=')) && within.read(QLatin1Char('(') + text + QLatin1Char(')')).isEmpty())
        Fuzz::require(isSame(within.value(some), value), "parentheses around all of it change nothing");
}

void checkNumber(const QString &text)
{
    float value = 0.0f;
    if (!NumberText::parse(text, value))
        return;
    Fuzz::require(std::isfinite(value), "a number is finite");
    float again = 0.0f;
    Fuzz::require(NumberText::parse(NumberText::text(value), again) &&
                      std::memcmp(&value, &again, sizeof value) == 0,
                  "what is shown reads back to the same bits");
    Expression expression;
    if (expression.read(text).isEmpty())
        Fuzz::require(std::fabs(expression.value(some) - double(value)) <=
                          std::fabs(double(value)) * 1e-6 + 1e-44,
                      "a number is the same as a calculation");
}

void checkList(const QString &text)
{
    const QStringList parts = NumberText::split(text);
    Fuzz::require(!parts.isEmpty(), "a list has a part");
    if (parts.size() == 1)
        return Fuzz::require(parts.first() == text, "what is no list stays as it is");
    for (const QString &part : parts) {
        float number = 0.0f;
        Fuzz::require(NumberText::parse(part, number), "each part of a list is a number");
    }
    Fuzz::require(NumberText::split(parts.join(QLatin1Char('\t'))) == parts,
                  "a list is parted the same again");
}
} // namespace

/// Reads a text as a calculation, as a number and as a list of numbers, as it may be typed or pasted into a
/// field.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    checkExpression(text);
    checkNumber(text);
    checkList(text);
    return 0;
}
