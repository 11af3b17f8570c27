// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "NumberField.h"

#include <limits>

/// An editor of one single-precision value that never changes what it only shows: every finite value appears
/// as the shortest text that reads back the same, NaN and infinities appear as such and stay until a number
/// is typed. Decimals are written with a point in every locale; a typed comma is understood.
class FloatSpinBox : public NumberField
{
    Q_OBJECT

public:
    explicit FloatSpinBox(QWidget *parent = nullptr);

    float value() const { return m_value; }
    /// Shows a value, within the range or not; emits nothing.
    void setValue(float value);

    // What can be typed, and stepped to; everything that a float can hold, unless set.
    float minimum() const { return m_minimum; }
    float maximum() const { return m_maximum; }
    void setMinimum(double minimum) { m_minimum = float(minimum); }
    void setMaximum(double maximum) { m_maximum = float(maximum); }

    /// What one step of the arrows adds; ten steps with Page Up and Page Down. A result is written with as
    /// many decimals as the step or the value before has, whichever has more.
    void setSingleStep(double step) { m_step = step; }
    /// How many decimals are shown and stored, rather than as many as it takes.
    void setDecimals(int decimals);

    /// The shortest text that parse() reads back as the same value.
    static QString textOf(float value);
    /// A finite value from a text, correctly rounded; false when it is none.
    static bool parse(const QString &text, float &value);

signals:
    /// The user has entered another value, or stepped.
    void valueEdited(float value);

protected:
    QString valueText() const override;
    QString widestText() const override;
    QString refusalOf(const QString &text) const override;
    void store(const QString &text) override;
    bool step(int steps) override;
    bool canStep(int direction) const override;

private:
    bool read(const QString &text, float &value) const;
    void change(float value);

    float m_value = 0.0f;
    float m_minimum = std::numeric_limits<float>::lowest();
    float m_maximum = std::numeric_limits<float>::max();
    double m_step = 1.0;
    int m_decimals = -1; ///< negative: as many as it takes
};
