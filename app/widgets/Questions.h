// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVariant>
#include <QWidget>

/// The questions that can be asked about an editor's number ("What sound is this?"): a dynamic property of
/// the editor, a list of their names in order of fit.
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

} // namespace Questions
