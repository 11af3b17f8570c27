// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "NumberField.h"

/// An editor of one whole number.
class IntSpinBox : public NumberField
{
    Q_OBJECT

public:
    explicit IntSpinBox(QWidget *parent = nullptr);

    int value() const { return m_value; }
    /// Shows a value, within the range or not; emits nothing.
    void setValue(int value);

    // What can be typed, and stepped to.
    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
    void setMinimum(int minimum) { m_minimum = minimum; }
    void setMaximum(int maximum) { m_maximum = maximum; }

signals:
    /// The user has entered another value, or stepped.
    void valueEdited(int value);

protected:
    QString valueText() const override { return QString::number(m_value); }
    QString widestText() const override;
    QString refusalOf(const QString &text) const override;
    void store(const QString &text) override;
    bool step(int steps) override;
    bool canStep(int direction) const override;

private:
    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 65535;
};
