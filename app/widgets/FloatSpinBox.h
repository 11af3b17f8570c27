// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

/// An editor of one single-precision value that never changes what it only shows: every finite value appears
/// as the shortest text that reads back the same, NaN and infinities appear as such and stay until a number
/// is typed. Decimals are written with a point in every locale; a typed comma is understood.
class FloatSpinBox : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit FloatSpinBox(QWidget *parent = nullptr);

    float value() const { return m_value; }
    /// Shows a value; emits nothing.
    void setValue(float value);
    /// What one step of the arrows adds; ten steps with Page Up and Page Down.
    void setSingleStep(float step) { m_step = step; }

    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The shortest text that parse() reads back as the same value.
    static QString textOf(float value);
    /// A finite value from a text, correctly rounded; false when it is none.
    static bool parse(const QString &text, float &value);

signals:
    /// The user has entered another value, or stepped.
    void valueEdited(float value);

protected:
    StepEnabled stepEnabled() const override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void commitText();

    float m_value = 0.0f;
    float m_step = 1.0f;
};
