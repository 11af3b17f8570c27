// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimTrackFrame.h"

#include "AnimFile.h"
#include "FrameChoice.h"
#include "Playback.h"
#include "Settings.h"

#include <QSignalBlocker>

#include <algorithm>

namespace {
const AnimBlock *currentBlock()
{
    const Playback &state = playback();
    const int count = state.anim ? int(state.anim->blocks.size()) : 0;
    return state.blockIndex >= 0 && state.blockIndex < count ? &state.anim->blocks[size_t(state.blockIndex)]
                                                             : nullptr;
}
} // namespace

AnimTrackFrame::AnimTrackFrame(QWidget *parent)
    : QFrame(parent)
{
    m_ui.setupUi(this);
    const std::pair<QToolButton *, const char *> icons[] = {{m_ui.btnAnimTrackPlay, "play"},
                                                            {m_ui.btnAnimTrackStop, "stop"},
                                                            {m_ui.btnAnimTrackPose, "pose"},
                                                            {m_ui.btnAnimTrackLoop, "loop"}};
    for (const auto &[button, icon] : icons)
        button->setIcon(QIcon(QStringLiteral(":/Images/Icons/%1.png").arg(QLatin1String(icon))));
    // Wide enough for four digits, so that the slider does not move under the mouse while playing.
    m_ui.lblAnimTrackFrames->setMinimumWidth(
        fontMetrics().horizontalAdvance(tr("Frame: %1 / %2").arg(8888).arg(8888)));

    connect(m_ui.btnAnimTrackPlay, &QToolButton::clicked, this, &AnimTrackFrame::OnAnimTrackPlayPressed);
    connect(m_ui.btnAnimTrackStop, &QToolButton::clicked, this, &AnimTrackFrame::OnAnimTrackStopPressed);
    connect(m_ui.btnAnimTrackPose, &QToolButton::clicked, this, &AnimTrackFrame::OnAnimTrackPosePressed);
    connect(m_ui.btnAnimTrackLoop, &QToolButton::toggled, this, &AnimTrackFrame::OnAnimTrackLoopToggled);
    connect(m_ui.sliderAnimTrack, &QSlider::valueChanged, this, &AnimTrackFrame::OnAnimTrackSliderChanged);
}

void AnimTrackFrame::openAnimation(const AnimFile *file)
{
    playback().anim = file;
    selectBlock(0);
}

void AnimTrackFrame::selectBlock(int blockIndex)
{
    Playback &state = playback();
    state.blockIndex = blockIndex;
    state.playState = Settings::AnimationAutoPlay.value() ? PlayState::Playing : PlayState::InitialPose;
    updateRange();
    showFrame(0);
    state.time = 0.0f;
    emit playbackChanged();
}

void AnimTrackFrame::updateRange()
{
    // A clamped slider must not set a play time.
    const QSignalBlocker blocker(m_ui.sliderAnimTrack);
    const AnimBlock *block = currentBlock();
    m_ui.sliderAnimTrack->setMaximum(block ? std::max(0, block->frameCount() - 1) : 0);
    setEnabled(playback().anim != nullptr);
}

void AnimTrackFrame::showFrame(int frame)
{
    const QSignalBlocker blocker(m_ui.sliderAnimTrack);
    m_ui.sliderAnimTrack->setValue(frame);
}

void AnimTrackFrame::showLabel(const QString &text)
{
    m_ui.lblAnimTrackFrames->setText(text);
}

void AnimTrackFrame::OnAnimTrackPlayPressed()
{
    playback().playState = PlayState::Playing;
    playback().time = 0.0f;
    emit playbackChanged();
}

void AnimTrackFrame::OnAnimTrackStopPressed()
{
    playback().playState = PlayState::Paused;
    emit playbackChanged();
}

void AnimTrackFrame::OnAnimTrackPosePressed()
{
    playback().playState = PlayState::InitialPose;
    m_ui.sliderAnimTrack->setValue(0);
    playback().time = 0.0f;
    emit playbackChanged();
}

void AnimTrackFrame::OnAnimTrackLoopToggled(bool on)
{
    playback().forceLoop = on;
    emit playbackChanged();
}

void AnimTrackFrame::OnAnimTrackSliderChanged(int frame)
{
    const AnimBlock *block = currentBlock();
    if (!block || frame >= block->frameCount())
        return;
    playback().time = float(frame) / playRate(block->speed);
    emit playbackChanged();
}
