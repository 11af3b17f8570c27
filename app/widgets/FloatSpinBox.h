// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RangeField.h"

/// An editor of one single-precision value that never changes what it only shows: every finite value appears
/// as the shortest text that reads back the same, NaN and infinities appear as such and stay until a number
/// is typed. Decimals are written with a point in every locale; a typed comma is understood. Everything that
/// a float can hold is taken, unless set.
class FloatSpinBox : public RangeField<float>
{
    Q_OBJECT

public:
    explicit FloatSpinBox(QWidget *parent = nullptr);

    /// What one step of the arrows adds; ten steps with Page Up and Page Down. Unless it is set, a step
    /// changes the second digit of the number, and is 0.01 at least. A result is written with as many
    /// decimals as the step or the value before has, whichever has more.
    void setSingleStep(double step) { m_step = step; }
    /// How many decimals are shown and stored, rather than as many as it takes.
    void setDecimals(int decimals);

signals:
    void valueEdited(float value);

protected:
    QString widestText() const override;
    QString narrowestText() const override;
    QString read(const QString &text, float &value) const override;
    void tell(float value) override { emit valueEdited(value); }
    float stepped(int steps) const override;
    QString textOf(float value) const override;
    QString addedText(int steps) const override;

private:
    double singleStep() const;

    double m_step = 0.0; ///< 0: by the magnitude
    int m_decimals = -1; ///< negative: as many as it takes
};
