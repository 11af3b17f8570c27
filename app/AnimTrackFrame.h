// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui_AnimTrackFrame.h"

#include <QFrame>

struct AnimFile;

/// The track controls: play, stop, pose, forced loop, the frame slider and the frame label. They set the
/// process-wide playback state, which the viewport plays.
class AnimTrackFrame : public QFrame
{
    Q_OBJECT

public:
    explicit AnimTrackFrame(QWidget *parent = nullptr);

    /// Another animation file was opened (or none): its first block becomes current.
    void openAnimation(const AnimFile *file);
    /// Makes a block the current one and starts it, or shows its initial pose, as the option says.
    void selectBlock(int blockIndex);
    /// Fits the slider to the current block, whose frames or speed may have changed.
    void updateRange();

    /// Follows the frame that was painted; sets no time.
    void showFrame(int frame);
    void showLabel(const QString &text);

signals:
    /// The playback state was changed here: the picture is stale.
    void playbackChanged();

private slots:
    void OnAnimTrackPlayPressed();
    void OnAnimTrackStopPressed();
    void OnAnimTrackPosePressed();
    void OnAnimTrackLoopToggled(bool on);
    void OnAnimTrackSliderChanged(int frame);

private:
    Ui::AnimTrackFrame m_ui;
};
