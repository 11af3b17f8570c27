// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NumberField.h"

#include "NumberText.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionSpinBox>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

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
        Expression expression;
        if (m_records.calculate && !Expression::isPlain(text) && expression.read(text).isEmpty() &&
            expression.isRelative()) {
            refuse(m_records.calculate(expression));
            if (!isRefused())
                showValue();
        } else {
            refuse(refusalOf(text));
            if (!isRefused())
                store(text);
        }
    }
    return isRefused();
}

QString NumberField::calculate(const QString &text, double x, const NumberRange &range, double &number) const
{
    Expression expression;
    const QString reason = expression.read(text);
    return reason.isEmpty() ? range.fit(expression.value({x, 0.0, m_degree}), number) : reason;
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
    const int least = minimumSizeHint().width();
    if (std::exchange(m_leastWidth, least) != least)
        updateGeometry(); // so that it may stand in a line of its own
}

bool NumberField::tellCut(QEvent *event)
{
    const QString text = lineEdit()->text();
    constexpr int margins = 4; // around the text, as the toolkit has it
    if (event->type() != QEvent::ToolTip ||
        fontMetrics().horizontalAdvance(text) + margins <= lineEdit()->contentsRect().width())
        return false;
    const QString tip = toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       tip.isEmpty() ? text : text + QLatin1Char('\n') + tip, this);
    return true;
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

void NumberField::typeSteps(int steps)
{
    const bool differ = m_records.differ && m_records.differ();
    const QString text = steps == 0 ? valueText() : differ ? addedText(steps) : steppedText(steps);
    lineEdit()->setText(m_prefix + text + m_suffix);
}

void NumberField::refuse(const QString &reason)
{
    setRefusal(reason, tr("It is not stored; Esc brings %1 back.").arg(valueText()));
}

bool NumberField::canBecomeValue(const QString &text) const
{
    Expression expression;
    if (!Expression::isPlain(text) && !expression.read(text).isEmpty() && expression.isIncomplete())
        return true;
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
        refuse(refusalOf(text));
}

// The whole number, unless a part of it is selected.
void NumberField::copy() const
{
    const QString selected = lineEdit()->selectedText();
    QGuiApplication::clipboard()->setText(selected.isEmpty() ? typedText() : selected);
}

void NumberField::paste()
{
    const QStringList numbers = NumberText::split(QGuiApplication::clipboard()->text());
    if (!m_records.paste || numbers.size() < 2 || isReadOnly())
        return lineEdit()->paste();
    discardText();
    const QString reason = m_records.paste(numbers);
    if (!reason.isEmpty())
        QToolTip::showText(mapToGlobal(rect().bottomLeft()), reason, this);
}

QMenu *NumberField::createMenu()
{
    QMenu *menu = lineEdit()->createStandardContextMenu();
    QAction *first = menu->actions().value(0);
    const auto insert = [&](const QString &name, const QString &text, bool enabled, auto slot) {
        auto *action = new QAction(text, menu);
        action->setObjectName(name);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, slot);
        menu->insertAction(first, action);
    };
    if (m_records.setAll) {
        insert(QStringLiteral("actionFieldSetAll"), tr("Set &All to This"),
               !isReadOnly() && (isTyping() || m_records.differ()), [this] {
                   if (commitText())
                       tellRefusal();
                   else if (m_records.differ())
                       m_records.setAll();
               });
        menu->insertSeparator(first);
    }
    if (m_records.choose && m_records.canChoose()) {
        insert(QStringLiteral("actionFieldChooseHere"), tr("C&hoose by Name…"), !isReadOnly(),
               m_records.choose);
        menu->insertSeparator(first);
    }
    for (QAction *action : menu->actions()) {
        const QString text = action->text().section(QLatin1Char('\t'), 0, 0); // its keys follow
        for (const char *replaced : {"&Copy", "&Paste"}) {
            if (text == QCoreApplication::translate("QLineEdit", replaced))
                menu->removeAction(action);
        }
    }
    insert(QStringLiteral("actionFieldCopy"), tr("&Copy"), true, [this] { copy(); });
    insert(QStringLiteral("actionFieldPaste"), tr("&Paste"),
           !isReadOnly() && !QGuiApplication::clipboard()->text().isEmpty(), [this] { paste(); });
    menu->insertSeparator(first)->setObjectName(QLatin1String(ActionBehind));
    menu->addSeparator();
    const auto addStep = [this, menu](const QString &title, int steps) {
        QAction *action = menu->addAction(title);
        action->setEnabled(!isReadOnly());
        connect(action, &QAction::triggered, this, [this, steps] { stepBy(steps); });
    };
    addStep(tr("&Step up"), 1);
    addStep(tr("Step &down"), -1);
    return menu;
}

bool NumberField::event(QEvent *event)
{
    return answer(event) || tellCut(event) || QAbstractSpinBox::event(event);
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
    if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractSpinBox::keyPressEvent(event);
    } else if (commitText()) {
        tellRefusal();
    } else {
        selectAll();
        event->ignore(); // for the default button of a dialog
    }
}

void NumberField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    event->accept();
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

QSize NumberField::sizeOf(const QString &text) const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int width = fontMetrics().horizontalAdvance(m_prefix + text + m_suffix) + 4;
    const QSize content(width, lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}
