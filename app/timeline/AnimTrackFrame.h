// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EventSounds.h"

#include <QFrame>

#include <memory>

class ActionTrack;
class QAction;
struct AnimBlock;
struct AnimFile;
struct PlayPlace;

namespace Ui {
class AnimTrackFrame;
}

/// The track controls: the block, play, stop, pose, forced loop, single steps, the frame slider with the
/// marks of the actions, the frame label and the playing speed. They set the process-wide playback state,
/// which the viewport plays.
class AnimTrackFrame : public QFrame
{
    Q_OBJECT

public:
    explicit AnimTrackFrame(QWidget *parent = nullptr);
    ~AnimTrackFrame() override;

    /// Another animation file was opened (or none): its first block becomes current.
    void openAnimation(const AnimFile *file);
    /// Makes a block the current one and starts it, or shows its initial pose, as the option says.
    void selectBlock(int blockIndex);
    /// Fits slider, marks and the list of blocks to the file, which may have changed, and to what its numbers
    /// are called.
    void updateRange();
    /// Other frames stand in the block's places: what was selected of them is not kept.
    void forgetFrames();

    /// Follows the frame that was painted; sets no time.
    void showFrame(int frame);
    void showLabel(const QString &text);

    /// Who plays the sounds of actions.
    void setSoundPlayer(EventSounds::Player player) { m_sounds.setPlayer(std::move(player)); }

    /// What it asks for about records is up to whoever can edit them.
    ActionTrack &actionTrack();

    /// Gives a panel the keys of the buttons, and those that play or pause. Its buttons and lists keep Space
    /// for themselves.
    void serve(QWidget &panel);

    /// Of the two rows that there are where one has no room.
    QSize minimumSizeHint() const override;

signals:
    /// An action of the current block was chosen here.
    void actionChosen(int block, int action);
    /// Another block is shown.
    void blockChanged();
    /// Other frames stand in the places of those that the block had.
    void framesReplaced();
    /// The playback state was changed here: the picture is stale.
    void playbackChanged();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void OnAnimTrackPlayPressed();
    void OnAnimTrackStopPressed();
    void OnAnimTrackPosePressed();
    void OnAnimTrackLoopToggled(bool on);
    void OnAnimTrackSliderChanged(int frame);
    void OnAnimTrackFrameAsked(int frame);

private:
    void addTrackAction(QAction *action, const QString &name, int key);
    void playOrPause();
    void play(float time);
    void showState();
    void moveTo(int frame);
    void returnTo(const PlayPlace &place);
    void goTo(int frame);
    void step(int direction);
    void stepToMark(int direction);
    void listBlocks();
    const AnimBlock *currentBlock() const;
    /// A label of a fixed size can show another frame without the whole window being laid out anew.
    void fitLabel(int narrowest);

    std::unique_ptr<Ui::AnimTrackFrame> m_ui;
    /// What is edited; while a command is asked for the view may play what would come of it.
    const AnimFile *m_file = nullptr;
    QList<QAction *> m_actions;
    EventSounds m_sounds;
};
