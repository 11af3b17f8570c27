// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimTrackFrame.h"

#include "ActionTrack.h"
#include "AnimFile.h"
#include "FrameChoice.h"
#include "Icons.h"
#include "ModelNames.h"
#include "Playback.h"
#include "Settings.h"
#include "Shortcuts.h"
#include "SkinnedMesh.h"
#include "Sound.h"
#include "ui_AnimTrackFrame.h"

#include <QAbstractItemView>
#include <QAction>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>

AnimTrackFrame::AnimTrackFrame(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::AnimTrackFrame>())
    , m_sounds([this](const QString &path) { playSoundFile(path, this); })
{
    m_ui->setupUi(this);
    setAutoFillBackground(true); // so that nothing behind it is painted for every frame of an animation
    const struct
    {
        QToolButton *button;
        const char *icon;
        int key;
        std::function<void()> deed; ///< none for what is switched
    } deeds[] = {
        {m_ui->btnAnimTrackPlay, "play", 0, [this] { OnAnimTrackPlayPressed(); }},
        {m_ui->btnAnimTrackStop, "stop", 0, [this] { OnAnimTrackStopPressed(); }},
        {m_ui->btnAnimTrackPose, "pose", 0, [this] { OnAnimTrackPosePressed(); }},
        {m_ui->btnAnimTrackLoop, "loop", 0, {}},
        {m_ui->btnAnimTrackMarkBack, "markback", Qt::Key_BracketLeft, [this] { stepToMark(-1); }},
        {m_ui->btnAnimTrackStepBack, "stepback", Qt::Key_Comma, [this] { step(-1); }},
        {m_ui->btnAnimTrackStepForward, "stepforward", Qt::Key_Period, [this] { step(1); }},
        {m_ui->btnAnimTrackMarkForward, "markforward", Qt::Key_BracketRight, [this] { stepToMark(1); }},
        {m_ui->btnAnimTrackActions, "actions", 0, {}}};
    for (const auto &each : deeds) {
        auto *action = new QAction(namedIcon(QLatin1String(each.icon)), each.button->text(), this);
        action->setToolTip(each.button->toolTip());
        action->setCheckable(each.button->isCheckable());
        addTrackAction(action, each.button->objectName().mid(int(qstrlen("btn"))), each.key);
        each.button->setDefaultAction(action);
        if (each.deed)
            connect(action, &QAction::triggered, this, each.deed);
    }
    auto *playOrPause = new QAction(tr("Play or Pause"), this);
    addTrackAction(playOrPause, QStringLiteral("AnimTrackPlayOrPause"), Qt::Key_Space);
    connect(playOrPause, &QAction::triggered, this, &AnimTrackFrame::playOrPause);
    fitLabel(0);

    connect(m_ui->btnAnimTrackLoop, &QToolButton::toggled, this, &AnimTrackFrame::OnAnimTrackLoopToggled);
    m_ui->btnAnimTrackActions->setChecked(Settings::ShowActionTrack.value());
    connect(m_ui->btnAnimTrackActions, &QToolButton::toggled, this, [this](bool on) {
        Settings::ShowActionTrack.setValue(on);
        m_ui->actionTrack->clearRange(); // which would not be seen
        updateRange();
    });
    connect(m_ui->sliderAnimTrack, &QSlider::valueChanged, this, &AnimTrackFrame::OnAnimTrackSliderChanged);
    connect(m_ui->sliderAnimTrack, &TrackSlider::frameAsked, this, &AnimTrackFrame::OnAnimTrackFrameAsked);
    connect(m_ui->sliderAnimTrack, &TrackSlider::actionChosen, this,
            [this](int action) { emit actionChosen(playback().blockIndex, action); });
    connect(m_ui->actionTrack, &ActionTrack::frameAsked, this, &AnimTrackFrame::goTo);
    connect(m_ui->actionTrack, &ActionTrack::placeAsked, this, &AnimTrackFrame::returnTo);
    connect(m_ui->actionTrack, &ActionTrack::rangeChanged, this, [this](int first, int last) {
        playback().range = {first, last};
        emit playbackChanged();
    });
    connect(m_ui->cbAnimTrackBlock, qOverload<int>(&QComboBox::activated), this,
            &AnimTrackFrame::selectBlock);
    connect(m_ui->sbAnimTrackSpeed, &FloatSpinBox::valueEdited, this,
            [](float factor) { playback().speedFactor = factor; });
    playback().speedFactor = m_ui->sbAnimTrackSpeed->value();
    for (const QToolButton *button : {m_ui->btnAnimTrackPlay, m_ui->btnAnimTrackStop, m_ui->btnAnimTrackPose})
        button->defaultAction()->setCheckable(true);
    connect(this, &AnimTrackFrame::playbackChanged, this, [this] {
        m_sounds.startAnew();
        playback().rounds = 0; // those were of what played before
        showState();
    });
}

AnimTrackFrame::~AnimTrackFrame() = default;

void AnimTrackFrame::addTrackAction(QAction *action, const QString &name, int key)
{
    action->setObjectName(QLatin1String("action") + name);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, action->objectName(), tr("Timeline"), {});
    m_actions.append(action);
}

void AnimTrackFrame::serve(QWidget &panel)
{
    panel.addActions(m_actions);
    for (QWidget *each : panel.findChildren<QWidget *>()) {
        if (qobject_cast<QAbstractButton *>(each) || qobject_cast<QComboBox *>(each))
            each->installEventFilter(this);
    }
}

bool AnimTrackFrame::eventFilter(QObject *watched, QEvent *event)
{
    // Space presses what has the focus, rather than to play.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        event->accept();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

QSize AnimTrackFrame::minimumSizeHint() const
{
    const QMargins margins = m_ui->vlAnimTrack->contentsMargins();
    const int widest = std::max(m_ui->hlAnimTrackButtons->minimumSize().width(),
                                m_ui->hlAnimTrackFrames->minimumSize().width());
    return {widest + margins.left() + margins.right(), m_ui->vlAnimTrack->minimumSize().height()};
}

void AnimTrackFrame::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const QMargins margins = m_ui->vlAnimTrack->contentsMargins();
    const int oneRow = m_ui->hlAnimTrackButtons->sizeHint().width() + m_ui->hlAnimTrack->spacing() +
                       m_ui->hlAnimTrackFrames->sizeHint().width() + margins.left() + margins.right();
    const auto direction = width() < oneRow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direction == m_ui->hlAnimTrack->direction())
        return;
    m_ui->hlAnimTrack->setDirection(direction);
    // The layout around it, and that around this, do not hear of it by themselves.
    m_ui->vlAnimTrack->invalidate();
    updateGeometry();
}

void AnimTrackFrame::openAnimation(const AnimFile *file)
{
    m_file = file;
    playback().anim = file;
    m_ui->actionTrack->forgetHeight();
    selectBlock(0);
}

const AnimBlock *AnimTrackFrame::currentBlock() const
{
    const int index = playback().blockIndex;
    const int count = m_file ? int(m_file->blocks.size()) : 0;
    return index >= 0 && index < count ? &m_file->blocks[size_t(index)] : nullptr;
}

void AnimTrackFrame::selectBlock(int blockIndex)
{
    Playback &state = playback();
    state.blockIndex = blockIndex;
    state.range = {};
    state.playState = Settings::AnimationAutoPlay.value() ? PlayState::Playing : PlayState::InitialPose;
    m_ui->actionTrack->setBlock(nullptr, true);
    updateRange();
    moveTo(0);
    state.time = 0.0f;
    emit playbackChanged();
    emit blockChanged();
}

void AnimTrackFrame::updateRange()
{
    // A clamped slider must not set a play time.
    const QSignalBlocker blocker(m_ui->sliderAnimTrack);
    const AnimBlock *block = currentBlock();
    m_ui->sliderAnimTrack->setMaximum(block ? std::max(0, block->frameCount() - 1) : 0);
    m_ui->sliderAnimTrack->setActions(block);
    m_ui->actionTrack->setBlock(block, false);
    m_ui->actionTrack->setVisible(m_file && m_ui->btnAnimTrackActions->isChecked());
    const bool hasActions = block && !block->actions.empty();
    for (const QToolButton *button : {m_ui->btnAnimTrackMarkBack, m_ui->btnAnimTrackMarkForward})
        button->defaultAction()->setEnabled(hasActions);
    listBlocks();
    setEnabled(m_file != nullptr);
}

void AnimTrackFrame::listBlocks()
{
    const SkinnedMesh nameless;
    const SkinnedMesh &mesh = playback().mesh ? *playback().mesh : nameless;
    QStringList names;
    const int count = m_file ? int(m_file->blocks.size()) : 0;
    for (int i = 0; i < count; ++i) {
        const QString name = animationName(mesh, m_file->blocks[size_t(i)].animId);
        names << (name.isEmpty() ? QString::number(i) : tr("%1: %2").arg(i).arg(name));
    }
    QComboBox *box = m_ui->cbAnimTrackBlock;
    QStringList shown;
    for (int i = 0; i < box->count(); ++i)
        shown << box->itemText(i);
    if (shown != names) {
        box->clear();
        box->addItems(names);
        box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) + box->view()->frameWidth() * 2);
    }
    box->setCurrentIndex(playback().blockIndex);
}

void AnimTrackFrame::showFrame(int frame)
{
    moveTo(frame);
    m_sounds.showFrame(frame);
}

void AnimTrackFrame::moveTo(int frame)
{
    const QSignalBlocker blocker(m_ui->sliderAnimTrack);
    m_ui->sliderAnimTrack->setValue(frame);
    m_ui->actionTrack->setFrame(frame);
}

ActionTrack &AnimTrackFrame::actionTrack()
{
    return *m_ui->actionTrack;
}

void AnimTrackFrame::showState()
{
    const PlayState state = playback().playState;
    const bool isOpen = m_file != nullptr;
    m_ui->btnAnimTrackPlay->defaultAction()->setChecked(isOpen && state == PlayState::Playing);
    m_ui->btnAnimTrackStop->defaultAction()->setChecked(isOpen && state == PlayState::Paused);
    m_ui->btnAnimTrackPose->defaultAction()->setChecked(isOpen && state == PlayState::InitialPose);
}

void AnimTrackFrame::showLabel(const QString &text)
{
    m_ui->lblAnimTrackFrames->setText(text);
    fitLabel(m_ui->lblAnimTrackFrames->minimumWidth());
}

void AnimTrackFrame::fitLabel(int narrowest)
{
    // For four digits from the begin, so that the slider does not move under the mouse while playing.
    QLabel &label = *m_ui->lblAnimTrackFrames;
    const int usual = label.fontMetrics().horizontalAdvance(tr("Frame: %1 / %2").arg(8888).arg(8888));
    const QSize hint = label.sizeHint();
    label.setFixedSize(std::max({narrowest, usual, hint.width()}), hint.height());
}

void AnimTrackFrame::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitLabel(0);
}

void AnimTrackFrame::playOrPause()
{
    switch (playback().playState) {
    case PlayState::InitialPose:
        return OnAnimTrackPlayPressed();
    case PlayState::Playing:
        return OnAnimTrackStopPressed();
    case PlayState::Paused:
        play(playback().time);
    }
}

void AnimTrackFrame::play(float time)
{
    playback().playState = PlayState::Playing;
    playback().time = time;
    emit playbackChanged();
}

void AnimTrackFrame::returnTo(const PlayPlace &place)
{
    moveTo(place.frame);
    playback().playState = place.state;
    playback().time = place.time;
    emit playbackChanged();
}

void AnimTrackFrame::forgetFrames()
{
    m_ui->actionTrack->clearRange();
    emit framesReplaced();
}

void AnimTrackFrame::goTo(int frame)
{
    if (frame < 0 || frame > m_ui->sliderAnimTrack->maximum())
        return;
    m_ui->sliderAnimTrack->setValue(frame);
    OnAnimTrackFrameAsked(frame);
}

void AnimTrackFrame::step(int direction)
{
    goTo(m_ui->sliderAnimTrack->value() + direction);
}

void AnimTrackFrame::stepToMark(int direction)
{
    goTo(m_ui->sliderAnimTrack->markedFrame(m_ui->sliderAnimTrack->value(), direction));
}

void AnimTrackFrame::OnAnimTrackPlayPressed()
{
    play(0.0f);
}

void AnimTrackFrame::OnAnimTrackStopPressed()
{
    playback().playState = PlayState::Paused;
    emit playbackChanged();
}

void AnimTrackFrame::OnAnimTrackPosePressed()
{
    playback().playState = PlayState::InitialPose;
    moveTo(0); // the initial pose tells no frame
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

void AnimTrackFrame::OnAnimTrackFrameAsked(int frame)
{
    // What plays would go on from there, and the initial pose would hide it.
    playback().playState = PlayState::Paused;
    m_ui->actionTrack->setFrame(frame);
    // The slider says nothing where it stands already.
    OnAnimTrackSliderChanged(frame);
}
