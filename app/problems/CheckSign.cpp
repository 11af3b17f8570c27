// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CheckSign.h"

#include "Icons.h"
#include "ModProblems.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

CheckSign::CheckSign(ModProblems &mod)
    : m_mod(mod)
    , m_label(new QLabel)
    , m_bar(new QProgressBar)
{
    constexpr int TickMs = 100;
    m_bar->setTextVisible(false);
    m_bar->setFixedSize(120, 10);
    m_bar->setAccessibleName(tr("Checking the mod"));
    auto *cancel = new QToolButton;
    cancel->setObjectName(QStringLiteral("btnCancelModCheck"));
    cancel->setIcon(namedIcon(QStringLiteral("close")));
    cancel->setIconSize({12, 12});
    cancel->setAutoRaise(true);
    cancel->setToolTip(tr("Stop checking the mod"));
    cancel->setAccessibleName(cancel->toolTip());
    cancel->setFocusPolicy(Qt::StrongFocus);
    connect(cancel, &QToolButton::clicked, &mod, &ModProblems::cancel);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(4);
    row->addWidget(m_label);
    row->addWidget(m_bar);
    row->addWidget(cancel);
    hide();
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    m_tick.setInterval(TickMs);
    connect(&m_delay, &QTimer::timeout, this, [this] {
        showProgress();
        show();
        m_tick.start();
    });
    connect(&m_tick, &QTimer::timeout, this, &CheckSign::showProgress);
    connect(&mod, &ModProblems::runningChanged, this, &CheckSign::follow);
    follow();
}

void CheckSign::follow()
{
    if (m_mod.isRunning()) {
        if (!isVisible() && !m_delay.isActive())
            m_delay.start();
        return;
    }
    m_delay.stop();
    m_tick.stop();
    hide();
}

void CheckSign::showProgress()
{
    const qint64 all = m_mod.all();
    m_label->setText(
        all > 0 ? tr("Checking the mod: %1 of %2").arg(QString::number(m_mod.done()), QString::number(all))
                : tr("Reading the mod's folder…"));
    m_bar->setRange(0, int(all));
    m_bar->setValue(int(m_mod.done()));
}
