// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IntSpinBox.h"

#include <algorithm>

namespace {
/// Digits with a sign or none; false for anything else, and for what no int can hold.
bool parseWhole(const QString &text, int &value)
{
    bool ok = false;
    value = text.toInt(&ok); // in the C locale, whatever the system's
    return ok;
}
} // namespace

IntSpinBox::IntSpinBox(QWidget *parent)
    : NumberField(parent)
{
    showValue();
}

void IntSpinBox::setValue(int value)
{
    const bool isSame = value == m_value;
    m_value = value;
    showValue(isSame);
}

QString IntSpinBox::widestText() const
{
    const QString least = QString::number(m_minimum);
    const QString most = QString::number(m_maximum);
    return least.size() > most.size() ? least : most;
}

QString IntSpinBox::refusalOf(const QString &text) const
{
    int value = 0;
    if (parseWhole(text, value) && value >= m_minimum && value <= m_maximum)
        return {};
    return tr("'%1' is no whole number from %2 to %3.")
        .arg(text, QString::number(m_minimum), QString::number(m_maximum));
}

void IntSpinBox::store(const QString &text)
{
    int typed = 0;
    const bool isOther = parseWhole(text, typed) && typed != m_value;
    m_value = typed;
    showValue();
    if (isOther)
        emit valueEdited(typed);
}

bool IntSpinBox::step(int steps)
{
    const int stepped = int(std::clamp(qint64(m_value) + steps, qint64(m_minimum), qint64(m_maximum)));
    if (stepped == m_value)
        return false;
    m_value = stepped;
    showValue();
    emit valueEdited(stepped);
    return true;
}

bool IntSpinBox::canStep(int direction) const
{
    return direction > 0 ? m_value < m_maximum : m_value > m_minimum;
}
