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
    QString widestText() const override;
    QString read(const QString &text, int &value) const override;
    void tell(int value) override { emit valueEdited(value); }
    int stepped(int steps) const override;
    QString textOf(int value) const override { return QString::number(value); }
    QString addedText(int steps) const override;
};
