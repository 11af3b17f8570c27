// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"

#include <QSignalBlocker>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // A long name must not widen the page; the list shows it whole.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int) {
        const int chosen = currentData().toInt();
        if (chosen == m_value)
            return;
        setValue(chosen);
        emit valueEdited(chosen);
    });
}

void ChoiceBox::setNames(const QStringList &names)
{
    m_names = names;
    fill();
}

void ChoiceBox::setValue(int value)
{
    m_value = value;
    fill();
}

void ChoiceBox::fill()
{
    const QSignalBlocker blocker(this);
    const bool named = m_value >= 0 && m_value < m_names.size();
    if (count() != m_names.size() + (named ? 0 : 1) || !named || itemText(m_value) != m_names.at(m_value)) {
        clear();
        for (int i = 0; i < m_names.size(); ++i)
            addItem(m_names.at(i), i);
        if (!named)
            addItem(QString::number(m_value), m_value);
    }
    setCurrentIndex(findData(m_value));
}
