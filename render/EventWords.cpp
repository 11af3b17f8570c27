// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventWords.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "NameTables.h"
#include "Playback.h"
#include "SceneMarks.h"

#include <QLabel>
#include <QOpenGLWidget>

namespace {
constexpr int Aside = 12; // from the mark, in pixels

/// "00: Play Sound: Ambient Explosion 1": with what its arguments are called, or how much damage it does.
QString wordsOf(const MarkedEvent &event)
{
    QString words = eventTypeNames().value(event.type, QString::number(event.type));
    const Playback &state = playback();
    const AnimBlock *block = playableBlock(state);
    if (!block || event.action >= int(block->actions.size()))
        return words;
    const AnimAction &action = block->actions[size_t(event.action)];
    for (int i = 0; i < int(action.args.size()); ++i) {
        const float value = action.args[size_t(i)];
        const QString called = eventArgument(event.type, i).question == Question::Damage
                                   ? QString::number(double(value) / 256.0)
                                   : argumentName(event.type, i, value);
        if (!called.isEmpty())
            words += QStringLiteral(" · ") + called;
    }
    return words;
}
} // namespace

EventWords::EventWords(QOpenGLWidget &view, std::function<const SceneMarks *()> marks)
    : QObject(&view)
    , m_view(view)
    , m_marks(std::move(marks))
{
    connect(&view, &QOpenGLWidget::frameSwapped, this, &EventWords::follow);
}

void EventWords::follow()
{
    const SceneMarks *marks = m_marks();
    int shown = 0;
    for (int i = 0; marks && i < int(marks->events().size()) && shown < Most; ++i) {
        const SceneMarks::EventPlace &place = marks->events()[size_t(i)];
        QLabel *words = label(shown++);
        const QString text = wordsOf(place.event);
        if (words->text() != text) {
            words->setText(text);
            words->adjustSize();
        }
        // Those of one place stand below one another.
        QPoint corner = place.pixel.toPoint() + QPoint(Aside, -words->height() / 2);
        // Where the picture ends they stand before their mark.
        if (corner.x() + words->width() > m_view.width())
            corner.rx() -= 2 * Aside + words->width();
        for (int other = 0; other + 1 < shown; ++other) {
            if (m_labels[other]->geometry().intersects(QRect(corner, words->size())))
                corner.setY(m_labels[other]->geometry().bottom() + 2);
        }
        words->move(corner);
        words->show();
    }
    for (int i = shown; i < m_labels.size(); ++i)
        m_labels[i]->hide();
}

QLabel *EventWords::label(int number)
{
    if (number == m_labels.size()) {
        auto *made = new QLabel(&m_view);
        made->setObjectName(QStringLiteral("lblEventWords"));
        made->setTextFormat(Qt::PlainText);
        made->setAttribute(Qt::WA_TransparentForMouseEvents);
        made->setStyleSheet(QStringLiteral(
            "color: white; background-color: rgba(0, 0, 0, 140); border-radius: 3px; padding: 1px 5px;"));
        m_labels.append(made);
    }
    return m_labels[number];
}
