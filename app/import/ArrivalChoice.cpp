// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ArrivalChoice.h"

#include "Icons.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

namespace {
constexpr int PictureSide = 48;
}

ArrivalChoice::ArrivalChoice(QWidget *parent)
    : QGroupBox(tr("Arrives"), parent)
{
    auto *layout = new QGridLayout(this);
    const auto add = [&](const char *name, const char *picture, const QString &text, const QString &outcome) {
        auto *button = new QRadioButton(text, this);
        button->setObjectName(QLatin1String(name));
        button->setIcon(namedIcon(QLatin1String(picture)));
        button->setIconSize({PictureSide, PictureSide});
        button->setAccessibleDescription(outcome);
        auto *sentence = new QLabel(outcome, this);
        sentence->setWordWrap(true);
        sentence->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        const int column = layout->columnCount() - (layout->isEmpty() ? 1 : 0);
        layout->addWidget(button, 0, column);
        layout->addWidget(sentence, 1, column);
        layout->setColumnStretch(column, 1);
        return button;
    };
    m_asStored = add("rbAsStored", "arrivestored", tr("As store&d"),
                     tr("Its numbers as they are, turned and scaled as you say below."));
    m_ready = add("rbReady", "arriveready", tr("Read&y for the game"),
                  tr("Upright and in one piece, with the bones and animations that it has in its program."));
    layout->setRowStretch(1, 1);
    m_asStored->setChecked(true);
    connect(m_ready, &QRadioButton::toggled, this, [this] { emit chosen(arrival()); });
}

Arrival ArrivalChoice::arrival() const
{
    return m_ready->isChecked() ? Arrival::Ready : Arrival::AsStored;
}

void ArrivalChoice::setArrival(Arrival arrival)
{
    const QSignalBlocker blocker(m_ready);
    (arrival == Arrival::Ready ? m_ready : m_asStored)->setChecked(true);
}
