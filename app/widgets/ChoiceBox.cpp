// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
    , TypingField(static_cast<QWidget &>(*this))
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int) {
        if (!m_isSearching)
            commitText();
    });
}

bool ChoiceBox::commitText()
{
    const int chosen = currentData().toInt();
    if (chosen != m_value) {
        setValue(chosen);
        emit valueEdited(chosen);
    }
    return false;
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

bool ChoiceBox::event(QEvent *event)
{
    return answer(event) || QComboBox::event(event);
}

void ChoiceBox::keyPressEvent(QKeyEvent *event)
{
    if (giveUp(event))
        return;
    const QString text = event->text();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commitText();
        break;
    case Qt::Key_Escape:
        break;
    default:
        m_isSearching = !text.isEmpty() && text.at(0).isPrint() && event->key() != Qt::Key_Space;
    }
    QComboBox::keyPressEvent(event);
    m_isSearching = false;
}

void ChoiceBox::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        commitText();
    QComboBox::focusOutEvent(event);
}

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    if (isMeant(event))
        QComboBox::wheelEvent(event);
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
