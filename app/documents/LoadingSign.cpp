// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "LoadingSign.h"

#include "DocumentFiles.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>

namespace {
constexpr int TickMs = 50;
constexpr int Whole = 1000;    // steps of the bar
constexpr int TextWidth = 240; // pixels; longer names are cut in the middle
constexpr int BarWidth = 120;
} // namespace

LoadingSign::LoadingSign(const QVector<DocumentLoader *> &loaders, QWidget *parent)
    : QFrame(parent)
    , m_loaders(loaders)
    , m_text(new QLabel)
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(tr("Cancel")))
{
    m_text->setObjectName(QStringLiteral("lblLoading"));
    m_bar->setObjectName(QStringLiteral("barLoading"));
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(BarWidth);
    m_bar->setAccessibleName(tr("How much of the file is read"));
    m_cancel->setObjectName(QStringLiteral("btnCancelLoading"));
    m_cancel->setToolTip(tr("Go on with what is open"));
    connect(m_cancel, &QPushButton::clicked, this, &LoadingSign::cancel);
    // Else a status bar gives the button its spare room.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_text);
    row->addWidget(m_bar);
    row->addWidget(m_cancel);
    hide();
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    m_tick.setInterval(TickMs);
    connect(&m_delay, &QTimer::timeout, this, &LoadingSign::follow);
    connect(&m_tick, &QTimer::timeout, this, &LoadingSign::follow);
    for (const DocumentLoader *loader : m_loaders) {
        connect(loader, &DocumentLoader::started, this, [this] {
            if (!m_tick.isActive() && !m_delay.isActive())
                m_delay.start();
        });
        connect(loader, &DocumentLoader::ended, this, [this] {
            if (m_tick.isActive())
                follow();
        });
    }
}

void LoadingSign::follow()
{
    const auto loading = std::find_if(m_loaders.cbegin(), m_loaders.cend(),
                                      [](const DocumentLoader *each) { return each->isLoading(); });
    if (loading == m_loaders.cend()) {
        m_tick.stop();
        hide();
        return;
    }
    const QString path = (*loading)->path();
    m_text->setText(m_text->fontMetrics().elidedText(tr("Opening '%1'…").arg(QFileInfo(path).fileName()),
                                                     Qt::ElideMiddle, TextWidth));
    m_text->setToolTip(QDir::toNativeSeparators(path));
    // What is done with what was read has no measure.
    const int done = int((*loading)->progress() * Whole);
    m_bar->setRange(0, done < Whole ? Whole : 0);
    m_bar->setValue(done);
    m_tick.start();
    show();
    moveToMiddle();
}

void LoadingSign::cancel()
{
    for (DocumentLoader *each : qAsConst(m_loaders))
        each->cancel();
}

void LoadingSign::keepInMiddle()
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    parentWidget()->installEventFilter(this);
}

void LoadingSign::moveToMiddle()
{
    if (!autoFillBackground())
        return;
    adjustSize();
    move(parentWidget()->rect().center() - rect().center());
}

bool LoadingSign::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && isVisible())
        moveToMiddle();
    return QFrame::eventFilter(watched, event);
}

void addLoadingSigns(DocumentFiles &files, QWidget &skinnedView, QWidget &staticView, QStatusBar &statusBar)
{
    DocumentLoader *mesh = &files.loader(DocumentType::SkinnedMesh);
    DocumentLoader *anim = &files.loader(DocumentType::Anim);
    DocumentLoader *rigid = &files.loader(DocumentType::StaticMesh);
    (new LoadingSign({mesh, anim}, &skinnedView))->keepInMiddle();
    (new LoadingSign({rigid}, &staticView))->keepInMiddle();
    auto *inStatusBar = new LoadingSign({mesh, anim, rigid}, &statusBar);
    inStatusBar->layout()->setContentsMargins(0, 0, 0, 0);
    statusBar.insertPermanentWidget(0, inStatusBar);
}
