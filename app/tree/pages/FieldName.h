// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldChoices.h"
#include "IndexHint.h"

#include <QObject>
#include <QPointer>

#include <functional>

class ChoicePopup;
class NameRow;
class NumberField;
class QAction;
class QToolButton;

/// What belongs beside the editor of a number that stands for something: its name, a button that lets another
/// be chosen by its name, one that lets a bone be picked in the view, and one that asks who else names it.
class FieldName : public QObject
{
    Q_OBJECT

public:
    using Choices = std::function<FieldChoices()>;
    using Target = std::function<IndexTarget(double number)>;

    /// The editor stands in a form alone; it shares its place there from now on. What can be chosen is asked
    /// when it is, and what a number stands for when it is one that the record does not have. `isBone`: it
    /// can be picked.
    FieldName(NumberField *editor, Choices choices, Target target, bool isBone);

    /// The number and what it stands for; an empty text: it stands for nothing. `isChoice`: for something
    /// that can be chosen.
    void show(double number, const IndexTarget &target, bool isChoice);
    /// What the record would get, until it is shown again.
    void preview(double number) { m_hint->setTarget(m_targetOf(number)); }
    bool canChoose() const;
    void choose();
    /// Whether a bone is waited for, which the name says meanwhile.
    void setPicking(bool on);
    bool canPick() const;
    /// Gives the field a number that was not typed there.
    void take(int number);
    /// Another record is shown.
    void leave();
    /// Tells the keys of choosing and of picking.
    void setActions(const QAction *choose, const QAction *pick);
    /// Adds a button for what asks who names the number of the field with the keys, unless that is a bone's.
    /// It is shown while the number can be chosen and `canBeNamed` says that files name such ones.
    void addUses(QAction *uses, std::function<bool()> canBeNamed);

    NumberField *editor() const { return m_editor; }

signals:
    /// The field is to get this number, in all selected records.
    void chosen(int number);
    /// A bone is to be picked for it, or not any more.
    void pickWanted(bool on);

private:
    void tellKeys(QToolButton *button, const QAction *action);

    NumberField *m_editor;
    const Choices m_choices;
    const Target m_targetOf;
    IndexHint *m_hint;
    NameRow *m_row;
    QToolButton *m_button;
    QToolButton *m_pick = nullptr; ///< null where there is nothing to pick
    QToolButton *m_uses = nullptr;
    std::function<bool()> m_canBeNamed;
    IndexTarget m_target;
    QPointer<ChoicePopup> m_popup;
    double m_number = 0.0;
};
