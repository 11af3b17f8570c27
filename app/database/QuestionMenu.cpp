// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "QuestionMenu.h"

#include "EventArguments.h"
#include "FloatSpinBox.h"
#include "IntSpinBox.h"
#include "Log.h"
#include "Questions.h"
#include "ReferenceTables.h"
#include "Shortcuts.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>

#include <optional>

namespace {
struct QuestionText
{
    QLatin1String key;
    const char *text;
    const char *title;
};

const QuestionText questions[] = {
    {Question::Actor, QT_TRANSLATE_NOOP("QuestionMenu", "What Actor is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Actor")},
    {Question::Animation, QT_TRANSLATE_NOOP("QuestionMenu", "What Animation is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Animation")},
    {Question::Sound, QT_TRANSLATE_NOOP("QuestionMenu", "What Sound is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Sound")},
    {Question::Voice, QT_TRANSLATE_NOOP("QuestionMenu", "What Voice is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Voice")},
    {Question::Particle, QT_TRANSLATE_NOOP("QuestionMenu", "What Particle is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Particle")},
    {Question::Impact, QT_TRANSLATE_NOOP("QuestionMenu", "What Impact Type is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Impact Types")},
    {Question::Damage, QT_TRANSLATE_NOOP("QuestionMenu", "How much damage is this?"),
     QT_TRANSLATE_NOOP("QuestionMenu", "Actual Damage")},
};

/// The value of either kind of spin box.
std::optional<double> valueOf(const QObject *editor)
{
    if (const auto *whole = qobject_cast<const IntSpinBox *>(editor))
        return whole->value();
    if (const auto *real = qobject_cast<const FloatSpinBox *>(editor))
        return double(real->value());
    return std::nullopt;
}
} // namespace

QuestionMenu::QuestionMenu(QWidget *fields)
    : QObject(fields)
{
    for (QAbstractSpinBox *editor : fields->findChildren<QAbstractSpinBox *>())
        editor->installEventFilter(this);
    for (int i = 0; i < int(std::size(questions)); ++i) {
        auto *action = new QAction(tr(questions[i].text), fields);
        nameShortcut(action, QLatin1String("actionAsk_") + questions[i].key, tr("Number Fields"), {});
        fields->addAction(action);
        connect(action, &QAction::triggered, this, [this, i] { askFocused(i); });
        m_actions.append(action);
    }
}

bool QuestionMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu || Questions::of(watched).isEmpty())
        return QObject::eventFilter(watched, event);
    QMenu *menu = createMenu(watched);
    if (!menu)
        return false;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(static_cast<QContextMenuEvent *>(event)->globalPos());
    event->accept();
    return true;
}

QMenu *QuestionMenu::createMenu(QObject *editor)
{
    auto *field = qobject_cast<NumberField *>(editor);
    if (!field) {
        Log::error(tr("QObject is not a spinbox or DoubleSpinbox "));
        return nullptr;
    }
    QMenu *menu = field->createMenu();
    const auto *behind = menu->findChild<QAction *>(QLatin1String(NumberField::ActionBehind));
    QAction *next = menu->actions().value(menu->actions().indexOf(const_cast<QAction *>(behind)) + 1);
    const bool isWhole = qobject_cast<IntSpinBox *>(editor);
    const QStringList keys = Questions::of(editor);
    for (const QString &key : keys) {
        for (int i = 0; i < int(std::size(questions)); ++i) {
            if (key != questions[i].key)
                continue;
            // Shown with the keys, but without having them: they would be ambiguous while the menu is up.
            const QString shown = keysText(m_actions[i]->shortcuts());
            auto *action = new QAction(tr(questions[i].text), menu);
            if (!shown.isEmpty())
                action->setText(action->text() + QLatin1Char('\t') + shown);
            menu->insertAction(next, action);
            // Queued, so that the answer's box does not run from within the menu. The menu is no part of the
            // field and may outlive it.
            const auto answer = [this, i, isWhole, asked = QPointer<QObject>(editor)] {
                if (asked)
                    ask(i, asked);
                else
                    Log::error(isWhole ? tr("Failed to check Spinbox ID")
                                       : tr("Failed to check DoubleSpinbox ID"));
            };
            connect(action, &QAction::triggered, this, answer, Qt::QueuedConnection);
        }
    }
    menu->insertActions(next, m_more);
    menu->insertSeparator(next);
    return menu;
}

void QuestionMenu::askFocused(int question) const
{
    QWidget *editor = QApplication::focusWidget();
    while (editor && !Questions::of(editor).contains(questions[question].key))
        editor = editor->parentWidget();
    if (editor && valueOf(editor))
        ask(question, editor);
}

void QuestionMenu::ask(int question, QObject *editor) const
{
    const QuestionText &asked = questions[question];
    const double value = *valueOf(editor);
    const auto table = referenceOf(asked.key);
    const QString answer = table ? ReferenceTables::shared().answer(*table, value) : damageText(float(value));
    QMessageBox::information(static_cast<QWidget *>(editor)->window(), tr(asked.title), answer);
}

QString QuestionMenu::damageText(float value)
{
    constexpr float unit = 0.00390625f;
    const float damage = value * unit;
    const auto number = [](float each) { return QString::number(double(each)); };
    return tr("%1 is %2 damage (Value is divided by 256)\n\nHead (x10): %3\nNeck (x5): %4\nBody (x1): "
              "%2\nArms and Legs(x0.5): %5\nHands and Feet(x0.25): %6")
        .arg(number(value), number(damage), number(damage * 10.0f), number(damage * 5.0f),
             number(damage * 0.5f), number(damage * 0.25f));
}
