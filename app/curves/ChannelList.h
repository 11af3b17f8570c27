// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

/// Which channels are shown as curves, each with a piece of its line; the settings keep it.
class ChannelList : public QListWidget
{
    Q_OBJECT

public:
    explicit ChannelList(QWidget *parent = nullptr);

    /// Bits: 1 << int(CurveChannel).
    unsigned channels() const;

signals:
    void channelsChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void paintSamples();
};
