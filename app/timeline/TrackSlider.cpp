// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TrackSlider.h"

#include "ActionTexts.h"
#include "AnimFile.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {
constexpr int MarkHeight = 5;
constexpr int Reach = 4; ///< pixels to either side of a mark that belong to it
} // namespace

TrackSlider::TrackSlider(QWidget *parent)
    : QSlider(parent)
{
    const auto ask = [this] { emit frameAsked(sliderPosition()); };
    connect(this, &QSlider::sliderPressed, this, ask);
    connect(this, &QSlider::actionTriggered, this, ask);
}

void TrackSlider::setActions(const AnimBlock *block)
{
    m_marks.clear();
    m_chosen = -1;
    const int count = block ? int(block->actions.size()) : 0;
    for (int i = 0; i < count; ++i) {
        const AnimAction &action = block->actions[size_t(i)];
        if (action.frame < block->frameCount())
            m_marks.append({action.frame, {i}, actionText(i, action)});
    }
    std::stable_sort(m_marks.begin(), m_marks.end(),
                     [](const Mark &a, const Mark &b) { return a.frame < b.frame; });
    // Actions of one frame share a mark.
    QVector<Mark> merged;
    for (const Mark &mark : qAsConst(m_marks)) {
        if (merged.isEmpty() || merged.last().frame != mark.frame) {
            merged.append(mark);
        } else {
            merged.last().actions += mark.actions;
            merged.last().text += QLatin1Char('\n') + mark.text;
        }
    }
    m_marks = merged;
    update();
}

int TrackSlider::markedFrame(int frame, int direction) const
{
    int nearest = -1;
    for (const Mark &mark : m_marks) {
        if (direction < 0 && mark.frame < frame)
            nearest = mark.frame;
        else if (direction > 0 && mark.frame > frame)
            return mark.frame;
    }
    return nearest;
}

QRect TrackSlider::frames() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).width();
    return {groove.x() + handle / 2, 0, groove.width() - handle, height()};
}

int TrackSlider::xOf(int frame) const
{
    const QRect track = frames();
    return track.x() + QStyle::sliderPositionFromValue(minimum(), maximum(), frame, track.width());
}

const TrackSlider::Mark *TrackSlider::markAt(int x) const
{
    const Mark *nearest = nullptr;
    int distance = Reach + 1;
    for (const Mark &mark : m_marks) {
        const int away = std::abs(xOf(mark.frame) - x);
        if (away < distance) {
            nearest = &mark;
            distance = away;
        }
    }
    return nearest;
}

bool TrackSlider::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (const Mark *mark = markAt(help->pos().x())) {
            QToolTip::showText(help->globalPos(), tr("Frame %1\n%2").arg(mark->frame).arg(mark->text), this);
            return true;
        }
    }
    return QSlider::event(event);
}

void TrackSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    QPainter painter(this);
    // The colour of links stands out from the window, as that of a selection need not.
    const QColor color = isEnabled() ? palette().color(QPalette::Link)
                                     : palette().color(QPalette::Disabled, QPalette::WindowText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    // Small triangles that point down to their frames.
    for (const Mark &mark : qAsConst(m_marks)) {
        const double x = xOf(mark.frame) + 0.5;
        painter.drawPolygon(QPolygonF({{x - 3.5, 0.0}, {x + 3.5, 0.0}, {x, double(MarkHeight)}}));
    }
}

void TrackSlider::mousePressEvent(QMouseEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const bool isOther = event->button() != Qt::LeftButton || event->buttons() != Qt::LeftButton;
    if (isOther || minimum() == maximum() ||
        style()->hitTestComplexControl(QStyle::CC_Slider, &option, event->pos(), this) ==
            QStyle::SC_SliderHandle) {
        QSlider::mousePressEvent(event);
        // The toolkit has no use for a slider with a single place, but that frame is asked for all the same.
        if (!isOther && minimum() == maximum())
            emit frameAsked(sliderPosition());
        return;
    }
    const QRect track = frames();
    setSliderPosition(
        QStyle::sliderValueFromPosition(minimum(), maximum(), event->pos().x() - track.x(), track.width()));
    // Takes the handle by its middle, which then follows the mouse: where frames are far apart the mouse may
    // be in the gap beside it.
    initStyleOption(&option);
    const QPoint middle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).center();
    QMouseEvent onHandle(event->type(), middle, mapToGlobal(middle), event->button(), event->buttons(),
                         event->modifiers());
    QSlider::mousePressEvent(&onHandle);
    event->setAccepted(onHandle.isAccepted());
}

void TrackSlider::mouseDoubleClickEvent(QMouseEvent *event)
{
    const Mark *mark = markAt(event->pos().x());
    if (!mark || event->button() != Qt::LeftButton) {
        QSlider::mouseDoubleClickEvent(event);
        return;
    }
    // From -1, of an action elsewhere, to the first.
    const int next = (mark->actions.indexOf(m_chosen) + 1) % mark->actions.size();
    m_chosen = mark->actions[next];
    emit actionChosen(m_chosen);
}
