// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>

#include <charconv>
#include <cmath>

FloatSpinBox::FloatSpinBox(QWidget *parent)
    : QAbstractSpinBox(parent)
{
    lineEdit()->setText(textOf(m_value));
    setFocusPolicy(Qt::StrongFocus);
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

void FloatSpinBox::setValue(float value)
{
    m_value = value;
    lineEdit()->setText(textOf(value));
    // A number that does not fit shows its sign and its first digits.
    lineEdit()->setCursorPosition(0);
}

void FloatSpinBox::stepBy(int steps)
{
    commitText();
    const float stepped = m_value + float(steps) * m_step;
    if (!std::isfinite(stepped) || stepped == m_value)
        return;
    setValue(stepped);
    selectAll();
    emit valueEdited(stepped);
}

QValidator::State FloatSpinBox::validate(QString &text, int &) const
{
    float value = 0.0f;
    if (parse(text, value) || text == textOf(m_value))
        return QValidator::Acceptable;
    for (const QChar c : text) {
        if (!c.isDigit() && !QStringLiteral("+-.,eE nafi").contains(c))
            return QValidator::Invalid;
    }
    return QValidator::Intermediate;
}

void FloatSpinBox::fixup(QString &text) const
{
    text = textOf(m_value);
}

void FloatSpinBox::commitText()
{
    float typed = 0.0f;
    const QString text = lineEdit()->text();
    if (text == textOf(m_value))
        return;
    if (!parse(text, typed) || typed == m_value) {
        setValue(m_value);
        return;
    }
    setValue(typed);
    emit valueEdited(typed);
}

QAbstractSpinBox::StepEnabled FloatSpinBox::stepEnabled() const
{
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

void FloatSpinBox::focusOutEvent(QFocusEvent *event)
{
    commitText();
    QAbstractSpinBox::focusOutEvent(event);
}

void FloatSpinBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        commitText();
        selectAll();
        return;
    }
    if (event->key() == Qt::Key_Escape && lineEdit()->text() != textOf(m_value)) {
        setValue(m_value);
        selectAll();
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

QSize FloatSpinBox::sizeHint() const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    // All digits of an ordinary value.
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("-0.0012345678")) + 4;
    const QSize content(width, lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QSize FloatSpinBox::minimumSizeHint() const
{
    return sizeHint();
}
