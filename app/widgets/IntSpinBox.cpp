// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IntSpinBox.h"

#include <algorithm>

IntSpinBox::IntSpinBox(QWidget *parent)
    : RangeField(parent, 0, 65535)
{
    setValue(0);
}

QString IntSpinBox::widestText() const
{
    const QString least = QString::number(minimum());
    const QString most = QString::number(maximum());
    return least.size() > most.size() ? least : most;
}

QString IntSpinBox::read(const QString &text, int &value) const
{
    bool ok = false;
    value = text.toInt(&ok); // in the C locale, whatever the system's
    if (ok && isInRange(value))
        return {};
    if (ok || Expression::isPlain(text))
        return tr("'%1' is no whole number from %2 to %3.")
            .arg(text, QString::number(minimum()), QString::number(maximum()));
    double number = 0.0;
    const QString reason =
        calculate(text, this->value(), {double(minimum()), double(maximum()), true}, number);
    if (!reason.isEmpty())
        return tr("'%1' cannot be stored. %2").arg(text, reason);
    value = int(number);
    return {};
}

int IntSpinBox::stepped(int steps) const
{
    return int(std::clamp(qint64(value()) + steps, qint64(minimum()), qint64(maximum())));
}

QString IntSpinBox::addedText(int steps) const
{
    return QLatin1String(steps < 0 ? "-=" : "+=") + QString::number(std::abs(steps));
}
