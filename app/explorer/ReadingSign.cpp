// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadingSign.h"

#include "Icons.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

ReadingSign::ReadingSign()
{
    auto *bar = new QProgressBar;
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedHeight(10);
    bar->setAccessibleName(tr("Reading the folder"));
    bar->setToolTip(bar->accessibleName());
    auto *stop = new QToolButton;
    stop->setObjectName(QStringLiteral("btnStopReading"));
    stop->setIcon(namedIcon(QStringLiteral("close")));
    stop->setIconSize({12, 12});
    stop->setAutoRaise(true);
    stop->setToolTip(tr("Stop reading the folder"));
    stop->setAccessibleName(stop->toolTip());
    connect(stop, &QToolButton::clicked, this, &ReadingSign::stopped);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 1, 1, 1);
    row->setSpacing(2);
    row->addWidget(bar, 1);
    row->addWidget(stop);
    hide();
    m_delay.setSingleShot(true);
    m_delay.setInterval(200);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
}

void ReadingSign::end()
{
    m_delay.stop();
    hide();
}
