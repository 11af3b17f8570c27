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
    void valueEdited(float value);

protected:
    QString valueText() const override;
    QString widestText() const override;
    QString refusalOf(const QString &text) const override;
    bool read(const QString &text, float &value) const override;
    void tell(float value) override { emit valueEdited(value); }
    bool step(int steps) override;

private:
    double m_step = 1.0;
    int m_decimals = -1; ///< negative: as many as it takes
};
