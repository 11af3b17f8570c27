// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "NumberField.h"

#include <type_traits>

/// What editors of one number have in common that may be anything between two bounds.
template <typename Value>
class RangeField : public NumberField
{
public:
    /// As forms give bounds.
    using Bound = std::conditional_t<std::is_floating_point_v<Value>, double, Value>;

    Value value() const { return m_value; }
    /// Shows a value, within the range or not; emits nothing.
    void setValue(Value value)
    {
        const bool isSame = value == m_value;
        m_value = value;
        showValue(isSame);
    }

    // What can be typed, and stepped to.
    Value minimum() const { return m_minimum; }
    Value maximum() const { return m_maximum; }
    void setMinimum(Bound minimum) { m_minimum = Value(minimum); }
    void setMaximum(Bound maximum) { m_maximum = Value(maximum); }

protected:
    RangeField(QWidget *parent, Value minimum, Value maximum)
        : NumberField(parent)
        , m_minimum(minimum)
        , m_maximum(maximum)
    {}

    /// The number that a text says or calculates. Gives the reason why it makes none; empty when it does.
    virtual QString read(const QString &text, Value &value) const = 0;
    /// The value that is so many steps away, and its text.
    virtual Value stepped(int steps) const = 0;
    virtual QString textOf(Value value) const = 0;
    /// The user has entered another value, or stepped.
    virtual void tell(Value value) = 0;

    /// Takes over a value, and tells of it when it is another one: a NaN differs from everything, so that it
    /// can be typed away.
    bool change(Value value)
    {
        const bool isOther = value != m_value;
        if (isOther)
            m_value = value;
        showValue();
        if (isOther)
            tell(value);
        return isOther;
    }
    bool isInRange(Value value) const { return value >= m_minimum && value <= m_maximum; }

    QString refusalOf(const QString &text) const override
    {
        Value value{};
        return read(text, value);
    }
    void store(const QString &text) override
    {
        Value typed{};
        if (read(text, typed).isEmpty())
            change(typed);
    }
    QString valueText() const override { return textOf(m_value); }
    bool step(int steps) override { return change(stepped(steps)); }
    QString steppedText(int steps) const override { return textOf(stepped(steps)); }
    bool canStep(int direction) const override
    {
        return direction > 0 ? !(m_value >= m_maximum) : !(m_value <= m_minimum);
    }

private:
    Value m_value{};
    Value m_minimum;
    Value m_maximum;
};
