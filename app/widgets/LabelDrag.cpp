// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "LabelDrag.h"

#include "NumberField.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

namespace {
constexpr int PixelsOfStep = 3;
constexpr int FastSteps = 10;
} // namespace

void LabelDrag::install(QLabel *label, NumberField *field)
{
    if (!label->findChild<LabelDrag *>(QString(), Qt::FindDirectChildrenOnly))
        new LabelDrag(label, field);
}

void LabelDrag::installAll(const QWidget &fields)
{
    for (QLabel *label : fields.findChildren<QLabel *>()) {
        if (auto *field = qobject_cast<NumberField *>(label->buddy()))
            install(label, field);
    }
}

LabelDrag::LabelDrag(QLabel *label, NumberField *field)
    : QObject(label)
    , m_field(field)
{
    label->setCursor(Qt::SizeHorCursor);
    label->installEventFilter(this);
    field->installEventFilter(this);
}

bool LabelDrag::begin()
{
    // What is typed in another field is stored by its losing the keys, what is typed here as if it did.
    m_field->setFocus(Qt::MouseFocusReason);
    return m_field->hasFocus() && !m_field->commitText();
}

void LabelDrag::drag(const QMouseEvent *event)
{
    const int distance = event->globalX() - m_from.x();
    if (m_state == State::Pressed) {
        if (std::abs(distance) < QApplication::startDragDistance())
            return;
        m_state = begin() ? State::Dragging : State::GivenUp;
    }
    if (m_state == State::Dragging)
        m_field->typeSteps(distance / PixelsOfStep *
                           (event->modifiers().testFlag(Qt::ShiftModifier) ? FastSteps : 1));
}

void LabelDrag::end(bool store)
{
    if (m_state == State::Dragging && m_field) {
        if (store)
            m_field->commitText();
        else
            m_field->discardText();
    }
    m_state = store ? State::Idle : State::GivenUp;
}

bool LabelDrag::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_field || !m_field->isEnabled() || m_field->isReadOnly())
        return false;
    if (watched == m_field) {
        const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
        if (m_state != State::Dragging || !isKey || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
            return false;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            end(false);
        return true;
    }
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    switch (type) {
    case QEvent::MouseButtonPress:
        if (mouse->button() != Qt::LeftButton)
            return false;
        m_state = State::Pressed;
        m_from = mouse->globalPos();
        return true;
    case QEvent::MouseMove:
        drag(mouse);
        return m_state != State::Idle;
    default:
        if (mouse->button() == Qt::LeftButton)
            end(true);
        return false;
    }
}
