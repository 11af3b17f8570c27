// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NumberText.h"

#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

QString NumberText::text(float value)
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

bool NumberText::parse(const QString &text, float &value)
{
    // Not QString::toFloat(): it goes by way of a double, and refuses the largest floats' shortest texts.
    QByteArray number = text.trimmed().toLatin1().replace(',', '.');
    if (number.startsWith('+'))
        number.remove(0, 1);
    const char *end = number.constData() + number.size();
    float parsed = 0.0f;
    const auto [stop, error] = std::from_chars(number.constData(), end, parsed);
    if (error != std::errc() || stop != end || !std::isfinite(parsed))
        return false;
    value = parsed;
    return true;
}

double NumberText::written(float value)
{
    if (!std::isfinite(value))
        return double(value);
    char buffer[64];
    double number = 0.0;
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    Q_ASSERT(error == std::errc());
    std::from_chars(buffer, end, number);
    return number;
}

bool NumberText::narrow(double number, float &value)
{
    // From half a step above the largest float on, the next one would be infinite.
    constexpr double largest = std::numeric_limits<float>::max();
    constexpr double tooLarge = largest + 0x1p103;
    if (!(std::fabs(number) < tooLarge))
        return false;
    value = std::fabs(number) > largest
                ? std::copysign(std::numeric_limits<float>::max(), float(std::copysign(1.0, number)))
                : float(number);
    return true;
}

QStringList NumberText::split(const QString &text)
{
    QString list = text.trimmed();
    if (list.size() > 1 && QLatin1String("([{").contains(list.front()) &&
        QLatin1String(")]}").contains(list.back()))
        list = list.mid(1, list.size() - 2).trimmed();
    // The first of these that stands in the text separates.
    for (const char *separator : {"[\\t\\n\\r;]+", ",\\s+", "\\s+", ","}) {
        const QRegularExpression each(QString::fromLatin1(separator));
        QStringList parts = list.split(each, Qt::SkipEmptyParts);
        for (QString &part : parts)
            part = part.trimmed();
        const bool isDecimal = *separator == ',' && separator[1] == '\0' && parts.size() < 3;
        if (parts.size() < 2 || isDecimal)
            continue;
        float number = 0.0f;
        const auto isNumber = [&](const QString &part) { return parse(part, number); };
        return std::all_of(parts.begin(), parts.end(), isNumber) ? parts : QStringList(text);
    }
    return {text};
}
