// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"

#include "NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {
/// The decimals of the shortest text of a number.
int decimalsOf(double value)
{
    char buffer[32];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific);
    Q_ASSERT(error == std::errc());
    const QByteArray text(buffer, int(end - buffer));
    const int exponent = text.indexOf('e');
    const int point = text.indexOf('.');
    const int digits = point < 0 ? 0 : exponent - point - 1;
    return std::max(0, digits - text.mid(exponent + 1).toInt());
}

/// A number without the decimals behind its first digits.
QString withFewDecimals(const QString &text)
{
    constexpr int mostDigits = 4;
    if (text.contains(QLatin1Char('e')))
        return text;
    int digits = 0;
    bool isBehindPoint = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        isBehindPoint |= character == QLatin1Char('.');
        digits += character.isDigit() && (digits > 0 || character != QLatin1Char('0')) ? 1 : 0;
        if (isBehindPoint && digits >= mostDigits)
            return text.left(i + 1);
    }
    return text;
}

double roundedTo(double value, int decimals)
{
    // Beyond that a double has no such digits to round away.
    constexpr double mostExact = 9007199254740992.0;
    const double scale = std::pow(10.0, decimals);
    return std::fabs(value) * scale < mostExact ? std::round(value * scale) / scale : value;
}
} // namespace

FloatSpinBox::FloatSpinBox(QWidget *parent)
    : RangeField(parent, std::numeric_limits<float>::lowest(), std::numeric_limits<float>::max())
{
    setValue(0.0f);
}

void FloatSpinBox::setDecimals(int decimals)
{
    m_decimals = decimals;
    showValue();
}

QString FloatSpinBox::textOf(float value) const
{
    return m_decimals < 0 || !std::isfinite(value) ? NumberText::text(value)
                                                   : QString::number(double(value), 'f', m_decimals);
}

QString FloatSpinBox::widestText() const
{
    // All digits of an ordinary value.
    return m_decimals < 0 ? QStringLiteral("-0.0012345678")
                          : QString::number(double(maximum()), 'f', m_decimals);
}

QString FloatSpinBox::narrowestText() const
{
    if (m_decimals >= 0)
        return widestText();
    // Decimals may be cut off, but no exponent and no digit that says how large the number is.
    const QString least = QStringLiteral("-123.4567");
    const QString needed = withFewDecimals(valueText());
    return needed.size() > least.size() ? needed : least;
}

QString FloatSpinBox::read(const QString &text, float &value) const
{
    const bool isNumber = NumberText::parse(text, value);
    if (!isNumber && !Expression::isPlain(text)) {
        double number = 0.0;
        const QString reason = calculate(text, NumberText::written(this->value()),
                                         {double(minimum()), double(maximum()), false}, number);
        if (!reason.isEmpty())
            return tr("'%1' cannot be stored. %2").arg(text, reason);
        value = float(number);
    }
    if (m_decimals >= 0)
        value = float(roundedTo(double(value), m_decimals));
    if ((isNumber || !Expression::isPlain(text)) && isInRange(value))
        return {};
    if (maximum() == std::numeric_limits<float>::max())
        return tr("'%1' is no number that can be stored here.").arg(text);
    return tr("'%1' is no number from %2 to %3.")
        .arg(text, NumberText::text(minimum()), NumberText::text(maximum()));
}

double FloatSpinBox::singleStep() const
{
    if (m_step > 0.0)
        return m_step;
    constexpr double least = 0.01;
    constexpr double ofZero = 0.1;
    const double magnitude = std::fabs(NumberText::written(value()));
    if (magnitude == 0.0 || !std::isfinite(magnitude))
        return ofZero;
    return std::max(least, std::pow(10.0, std::floor(std::log10(magnitude)) - 1.0));
}

float FloatSpinBox::stepped(int steps) const
{
    // In decimals, as a hand would: a float is seldom the number that its text says.
    const double before = NumberText::written(value());
    const double single = singleStep();
    const int decimals = std::isfinite(before) ? std::max(decimalsOf(before), decimalsOf(single)) : 0;
    const auto wanted = float(roundedTo(before + steps * single, decimals));
    return std::isfinite(wanted) ? std::clamp(wanted, minimum(), maximum()) : value();
}

QString FloatSpinBox::addedText(int steps) const
{
    const double single = singleStep();
    const auto added = float(roundedTo(std::abs(steps) * single, decimalsOf(single)));
    return QLatin1String(steps < 0 ? "-=" : "+=") + NumberText::text(added);
}
