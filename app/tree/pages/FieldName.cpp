// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FieldName.h"

#include "ChoicePopup.h"
#include "NameRow.h"
#include "NumberField.h"
#include "Shortcuts.h"

#include <QAction>
#include <QToolButton>

FieldName::FieldName(NumberField *editor, Choices choices, Target target, bool isBone)
    : QObject(editor)
    , m_editor(editor)
    , m_choices(std::move(choices))
    , m_targetOf(std::move(target))
    , m_hint(new IndexHint(editor->parentWidget()))
    , m_row(NameRow::around(editor, m_hint))
{
    const QString name = editor->objectName().mid(2); // behind "sb"
    m_hint->setObjectName(QStringLiteral("hint") + name);
    m_button = m_row->addButton(QStringLiteral("btnChoose") + name, "search", tr("Choose by Name"));
    connect(m_button, &QToolButton::clicked, this, &FieldName::choose);
    if (isBone) {
        m_pick = m_row->addButton(QStringLiteral("btnPick") + name, "pickbone", tr("Pick in the View"));
        m_pick->setCheckable(true);
        connect(m_pick, &QToolButton::clicked, this, &FieldName::pickWanted);
    }
}

void FieldName::show(double number, const IndexTarget &target, bool isChoice)
{
    m_number = number;
    m_target = target;
    m_hint->setVisible(!target.text.isEmpty());
    m_button->setVisible(isChoice);
    if (m_uses)
        m_uses->setVisible(isChoice && m_canBeNamed());
    setPicking(m_pick && m_pick->isChecked());
}

bool FieldName::canChoose() const
{
    return !m_button->isHidden() && m_editor->isEnabled();
}

void FieldName::choose()
{
    if (!canChoose() || (m_popup && m_popup->isVisible()))
        return;
    m_editor->setFocus(Qt::OtherFocusReason);
    const FieldChoices found = m_choices();
    m_popup = new ChoicePopup(found.title, new ChoiceList(found.choices, true, nullptr), m_number, m_editor);
    connect(m_popup, &ChoicePopup::chosen, this, &FieldName::take);
    m_popup->popUp(m_button->geometry().right() + 1 - m_editor->x());
}

bool FieldName::canPick() const
{
    return m_pick && m_editor->isEnabled();
}

void FieldName::setPicking(bool on)
{
    if (m_pick)
        m_pick->setChecked(on);
    m_hint->setTarget(
        on ? IndexTarget{tr("click a bone"), false, tr("Click a bone in the view; Esc gives that up"), true}
           : m_target);
}

void FieldName::take(int number)
{
    m_editor->discardText();
    emit chosen(number);
}

void FieldName::leave()
{
    if (m_popup)
        m_popup->close();
    if (m_pick && m_pick->isChecked())
        emit pickWanted(false);
}

void FieldName::setActions(const QAction *choose, const QAction *pick)
{
    tellKeys(m_button, choose);
    if (m_pick)
        tellKeys(m_pick, pick);
}

void FieldName::addUses(QAction *uses, std::function<bool()> canBeNamed)
{
    if (m_pick)
        return; // bones are named within their model
    m_canBeNamed = std::move(canBeNamed);
    m_uses =
        m_row->addButton(QStringLiteral("btnUses") + m_editor->objectName().mid(2), "sync", plainText(uses));
    m_uses->hide();
    connect(m_uses, &QToolButton::clicked, this, [this, uses] {
        m_editor->setFocus(Qt::OtherFocusReason);
        uses->trigger();
    });
    tellKeys(m_uses, uses);
}

void FieldName::tellKeys(QToolButton *button, const QAction *action)
{
    const auto show = [button, action] { button->setToolTip(withKeys(button->accessibleName(), action)); };
    connect(action, &QAction::changed, this, show);
    show();
}
