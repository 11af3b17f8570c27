// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"

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

QString FloatSpinBox::textOf(float value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value > 0 ? QStringLiteral("inf") : QStringLiteral("-inf");
    // The longest: a sign, 9 digits, a point, an exponent; plain notation up to some 50 characters.
    char buffer[64];
    const auto magnitude = std::fabs(value);
    const auto format = magnitude == 0.0f || (magnitude >= 1e-6f && magnitude < 1e9f)
                            ? std::chars_format::fixed
                            : std::chars_format::scientific;
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, format);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(buffer, int(end - buffer));
}

bool FloatSpinBox::parse(const QString &text, float &value)
{
    // Not QString::toFloat(): it goes by way of a double, and refuses the largest floats' shortest texts.
    QByteArray number = text.trimmed().toLatin1().replace(',', '.');
    if (number.startsWith('+'))
        number.remove(0, 1);
    const char *end = number.constData() + number.size();
    const auto [stop, error] = std::from_chars(number.constData(), end, value);
    return error == std::errc() && stop == end && std::isfinite(value);
}

void FloatSpinBox::setDecimals(int decimals)
{
    m_decimals = decimals;
    showValue();
}

QString FloatSpinBox::valueText() const
{
    return m_decimals < 0 || !std::isfinite(value()) ? textOf(value())
                                                     : QString::number(double(value()), 'f', m_decimals);
}

QString FloatSpinBox::widestText() const
{
    // All digits of an ordinary value.
    return m_decimals < 0 ? QStringLiteral("-0.0012345678")
                          : QString::number(double(maximum()), 'f', m_decimals);
}

bool FloatSpinBox::read(const QString &text, float &value) const
{
    if (!parse(text, value))
        return false;
    if (m_decimals >= 0)
        value = float(roundedTo(double(value), m_decimals));
    return isInRange(value);
}

QString FloatSpinBox::refusalOf(const QString &text) const
{
    float value = 0.0f;
    if (read(text, value))
        return {};
    if (maximum() == std::numeric_limits<float>::max())
        return tr("'%1' is no number that can be stored here.").arg(text);
    return tr("'%1' is no number from %2 to %3.").arg(text, textOf(minimum()), textOf(maximum()));
}

bool FloatSpinBox::step(int steps)
{
    // In decimals, as a hand would: a float is seldom the number that its text says.
    const double before = std::isfinite(value()) ? textOf(value()).toDouble() : double(value());
    const int decimals = std::isfinite(before) ? std::max(decimalsOf(before), decimalsOf(m_step)) : 0;
    const auto wanted = float(roundedTo(before + steps * m_step, decimals));
    return std::isfinite(wanted) && change(std::clamp(wanted, minimum(), maximum()));
}
