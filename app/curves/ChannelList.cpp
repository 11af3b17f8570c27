// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChannelList.h"

#include "CurvePainter.h"
#include "Settings.h"

#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace {
constexpr QSize SampleSize(24, 12);
} // namespace

ChannelList::ChannelList(QWidget *parent)
    : QListWidget(parent)
{
    const int shown = Settings::CurveChannels.value();
    for (int i = 0; i < CurveChannelCount; ++i) {
        auto *item = new QListWidgetItem(channelName(CurveChannel(i)), this);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(shown & 1 << i ? Qt::Checked : Qt::Unchecked);
    }
    setObjectName(QStringLiteral("listCurveChannels"));
    setAccessibleName(tr("Shown curves"));
    setToolTip(tr("Which curves are shown; Space switches one on or off"));
    setIconSize(SampleSize);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    paintSamples();
    connect(this, &QListWidget::itemChanged, this, [this] {
        if (unsigned(Settings::CurveChannels.value()) == channels())
            return;
        Settings::CurveChannels.setValue(int(channels()));
        emit channelsChanged();
    });
}

unsigned ChannelList::channels() const
{
    unsigned shown = 0;
    for (int i = 0; i < count(); ++i)
        shown |= item(i)->checkState() == Qt::Checked ? 1U << i : 0U;
    return shown;
}

void ChannelList::paintSamples()
{
    const QSignalBlocker blocker(this);
    for (int i = 0; i < count(); ++i) {
        QPixmap sample(SampleSize * devicePixelRatioF());
        sample.setDevicePixelRatio(devicePixelRatioF());
        sample.fill(Qt::transparent);
        QPainter painter(&sample);
        paintCurveSample(painter, QRect(QPoint(), SampleSize), CurveChannel(i), palette());
        painter.end();
        QIcon icon(sample);
        icon.addPixmap(sample, QIcon::Selected);
        item(i)->setIcon(icon);
    }
    setFixedWidth(sizeHintForColumn(0) + 2 * frameWidth() + 2 * fontMetrics().averageCharWidth());
}

void ChannelList::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        paintSamples();
}
