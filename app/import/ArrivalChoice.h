// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReadyChoices.h"

#include <QGroupBox>

class QRadioButton;

/// The choice how a model arrives: a picture and a sentence for each way.
class ArrivalChoice : public QGroupBox
{
    Q_OBJECT

public:
    explicit ArrivalChoice(QWidget *parent = nullptr);

    Arrival arrival() const;
    /// Shows a choice; emits nothing.
    void setArrival(Arrival arrival);

signals:
    /// The user has chosen the other way.
    void chosen(Arrival arrival);

private:
    QRadioButton *m_asStored;
    QRadioButton *m_ready;
};
