// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NumberField.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

#include <algorithm>

NumberField::NumberField(QWidget *parent)
    : QAbstractSpinBox(parent)
    , TypingField(static_cast<QWidget &>(*this))
{
    // Not by the wheel.
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textEdited, this, &NumberField::onTextEdited);
}

QString NumberField::typedText() const
{
    QString text = lineEdit()->text();
    if (!m_prefix.isEmpty() && text.startsWith(m_prefix))
        text.remove(0, m_prefix.size());
    if (!m_suffix.isEmpty() && text.endsWith(m_suffix))
        text.chop(m_suffix.size());
    return text.trimmed();
}

bool NumberField::isTyping() const
{
    return lineEdit()->text() != shownText();
}

bool NumberField::commitText()
{
    if (isTyping()) {
        const QString text = typedText();
        refuse(text);
        if (!isRefused())
            store(text);
    }
    return isRefused();
}

void NumberField::discardText()
{
    if (isTyping())
        showValue();
}

void NumberField::setPrefix(const QString &prefix)
{
    m_prefix = prefix;
    showValue();
}

void NumberField::setSuffix(const QString &suffix)
{
    m_suffix = suffix;
    showValue();
}

void NumberField::showValue(bool isSame)
{
    if (isSame && isRefused())
        return;
    setRefusal({});
    // Forgets the typing that led here, too: Ctrl+Z is to undo the edit, not the keys.
    lineEdit()->setText(shownText());
    // A number that does not fit shows its sign and its first digits.
    lineEdit()->setCursorPosition(0);
}

void NumberField::stepBy(int steps)
{
    if (commitText())
        tellRefusal();
    else if (step(steps))
        selectAll();
}

QValidator::State NumberField::validate(QString &, int &) const
{
    // A key that is refused would make another number of those that are not.
    return QValidator::Acceptable;
}

NumberField::StepEnabled NumberField::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    return (canStep(1) ? StepUpEnabled : StepNone) | (canStep(-1) ? StepDownEnabled : StepNone);
}

void NumberField::refuse(const QString &text)
{
    setRefusal(refusalOf(text), tr("It is not stored; Esc brings %1 back.").arg(valueText()));
}

bool NumberField::canBecomeValue(const QString &text) const
{
    // As far as what may follow: a sign, a point or an exponent that a digit still misses.
    const QLatin1String ends[] = {QLatin1String(""), QLatin1String("0"), QLatin1String("9"),
                                  QLatin1String(".9")};
    return text.isEmpty() || std::any_of(std::begin(ends), std::end(ends),
                                         [&](QLatin1String end) { return refusalOf(text + end).isEmpty(); });
}

void NumberField::onTextEdited()
{
    const QString text = typedText();
    if (canBecomeValue(text))
        setRefusal({});
    else
        refuse(text);
}

bool NumberField::event(QEvent *event)
{
    return answer(event) || QAbstractSpinBox::event(event);
}

void NumberField::focusOutEvent(QFocusEvent *event)
{
    // The field's own menu is no way out.
    if (event->reason() != Qt::PopupFocusReason)
        commitText();
    QAbstractSpinBox::focusOutEvent(event);
}

void NumberField::keyPressEvent(QKeyEvent *event)
{
    if (giveUp(event))
        return;
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractSpinBox::keyPressEvent(event);
    } else if (commitText()) {
        tellRefusal();
    } else {
        selectAll();
        event->ignore(); // for the default button of a dialog
    }
}

void NumberField::wheelEvent(QWheelEvent *event)
{
    if (!isMeant(event))
        return;
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel %= QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        stepBy(steps);
}

void NumberField::paintEvent(QPaintEvent *event)
{
    QAbstractSpinBox::paintEvent(event);
    paintRefusal();
}

QSize NumberField::sizeHint() const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int width = fontMetrics().horizontalAdvance(m_prefix + widestText() + m_suffix) + 4;
    const QSize content(width, lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}
