// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"

#include <QSignalBlocker>
#include <QStylePainter>

#include <algorithm>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
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
    // A very long name must not widen the page; the list shows it whole.
    constexpr int most = 18;
    int longest = 0;
    for (const QString &name : names)
        longest = std::max(longest, name.size());
    setMinimumContentsLength(std::min(longest, most));
    fill();
}

void ChoiceBox::setValue(int value)
{
    m_value = value;
    fill();
}

void ChoiceBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect text =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, text.width() - 2);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
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
