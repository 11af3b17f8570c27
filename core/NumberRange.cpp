// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NumberRange.h"

#include "Expression.h"
#include "NumberText.h"

#include <QCoreApplication>

#include <cmath>

namespace {
QString numberShown(double number)
{
    return QString::number(number, 'g', 10);
}
} // namespace

NumberRange NumberRange::ofFloats()
{
    return {double(std::numeric_limits<float>::lowest()), double(std::numeric_limits<float>::max()), false};
}

QString NumberRange::fit(double result, double &number) const
{
    const auto because = [&](const char *reason) {
        return QCoreApplication::translate("NumberRange", reason)
            .replace(QLatin1String("%1"), numberShown(result));
    };
    if (std::isnan(result))
        return because(QT_TRANSLATE_NOOP("NumberRange", "That is no number."));
    if (std::isinf(result))
        return because(QT_TRANSLATE_NOOP("NumberRange", "That divides by 0 or is too large."));
    if (isWhole) {
        qint64 whole = 0;
        constexpr double mostExact = 9007199254740992.0; // beyond that all are whole
        if (!Expression::whole(result, whole) && std::fabs(result) < mostExact)
            return because(QT_TRANSLATE_NOOP("NumberRange", "%1 is no whole number."));
        number = std::round(result);
    } else {
        float narrowed = 0.0f;
        if (!NumberText::narrow(result, narrowed))
            return because(QT_TRANSLATE_NOOP("NumberRange", "%1 is too large to be stored."));
        number = double(narrowed);
    }
    // Bounds that are no floats, such as 0.1, are as near as floats come.
    const auto bound = [this](double each) { return isWhole ? each : double(float(each)); };
    if (number >= bound(least) && number <= bound(most))
        return {};
    return because(QT_TRANSLATE_NOOP("NumberRange", "%1 is not from %2 to %3."))
        .replace(QLatin1String("%2"), numberShown(least))
        .replace(QLatin1String("%3"), numberShown(most));
}
