// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EventArguments.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

/// The questions that can be asked about an editor's number ("What sound is this?"): a dynamic property of
/// the editor, a list of Question in order of fit.
namespace Questions {

inline constexpr const char *Property = "questions";

inline void set(QWidget *editor, const QStringList &questions)
{
    editor->setProperty(Property, questions);
}

inline QStringList of(const QObject *editor)
{
    return editor->property(Property).toStringList();
}

/// Every question, the fitting one (if any) first.
inline QStringList allAfter(QLatin1String fitting)
{
    QStringList questions{Question::Actor,    Question::Animation, Question::Sound, Question::Voice,
                          Question::Particle, Question::Impact,    Question::Damage};
    if (!fitting.isNull()) {
        questions.removeOne(fitting);
        questions.prepend(fitting);
    }
    return questions;
}

} // namespace Questions
