// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RangeField.h"

/// An editor of one whole number, from 0 to 65535 unless set.
class IntSpinBox : public RangeField<int>
{
    Q_OBJECT

public:
    explicit IntSpinBox(QWidget *parent = nullptr);

signals:
    void valueEdited(int value);

protected:
    QString valueText() const override { return QString::number(value()); }
    QString widestText() const override;
    QString refusalOf(const QString &text) const override;
    bool read(const QString &text, int &value) const override;
    void tell(int value) override { emit valueEdited(value); }
    bool step(int steps) override;
};
