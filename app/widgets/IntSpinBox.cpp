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

bool IntSpinBox::read(const QString &text, int &value) const
{
    bool ok = false;
    value = text.toInt(&ok); // in the C locale, whatever the system's
    return ok && isInRange(value);
}

QString IntSpinBox::refusalOf(const QString &text) const
{
    int value = 0;
    if (read(text, value))
        return {};
    return tr("'%1' is no whole number from %2 to %3.")
        .arg(text, QString::number(minimum()), QString::number(maximum()));
}

bool IntSpinBox::step(int steps)
{
    return change(int(std::clamp(qint64(value()) + steps, qint64(minimum()), qint64(maximum()))));
}
