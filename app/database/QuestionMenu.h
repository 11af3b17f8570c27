// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>

class QAction;
class QMenu;

/// The context menu of number fields whose value names something: "What Actor is this?" and the like.
///
/// It serves the spin boxes that carry Questions. They are read when the menu opens, so they may change with
/// what the field means. Each question is an action too, about the field with the focus.
class QuestionMenu : public QObject
{
    Q_OBJECT

public:
    /// For the spin boxes in `fields`, which owns the menu.
    explicit QuestionMenu(QWidget *fields);

    /// An action that the menus have, too, below the questions.
    void addToMenus(QAction *action) { m_more.append(action); }

    /// The menu of an editor: what every number field offers, with its questions in it. Null, after an error
    /// in the log, for an object that is no spin box. The caller owns it.
    QMenu *createMenu(QObject *editor);

    /// "64 damage" and what it does to each part of a body; `value` as stored, 256 times the damage.
    static QString damageText(float value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ask(int question, QObject *editor) const;
    void askFocused(int question) const;

    QList<QAction *> m_actions; ///< one for each question, for those who give it keys
    QList<QAction *> m_more;
};
