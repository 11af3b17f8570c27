// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class NumberField;
class QLabel;
class QMouseEvent;
class QWidget;

/// Lets a label change its field's number by being dragged sideways: a step every few pixels, ten with Shift.
/// The number is stored when the mouse lets go; Esc gives it up.
class LabelDrag : public QObject
{
    Q_OBJECT

public:
    /// Once for each label; the label owns it.
    static void install(QLabel *label, NumberField *field);
    /// For every label in there whose buddy is a number field.
    static void installAll(const QWidget &fields);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class State { Idle, Pressed, Dragging, GivenUp };

    LabelDrag(QLabel *label, NumberField *field);
    void drag(const QMouseEvent *event);
    bool begin();
    void end(bool store);

    QPointer<NumberField> m_field;
    State m_state = State::Idle;
    QPoint m_from;
};
