// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReplaceBar.h"

#include "Look.h"
#include "RecordTexts.h"
#include "Shortcuts.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

ReplaceBar::ReplaceBar(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(tr("Set:"), this))
    , m_field(new QComboBox(this))
    , m_value(new QLineEdit(this))
    , m_state(new QLabel(this))
{
    m_field->setObjectName(QStringLiteral("cbFindField"));
    m_value->setObjectName(QStringLiteral("txtFindValue"));
    m_state->setObjectName(QStringLiteral("lblFindState"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 2);
    m_label->setBuddy(m_field);
    m_field->setEditable(true);
    m_field->setInsertPolicy(QComboBox::NoInsert);
    m_field->setMinimumContentsLength(16);
    m_field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_field->setToolTip(tr("The field that gets another value: the one of the condition, or any other"));
    m_field->lineEdit()->setAccessibleName(tr("Field to replace"));
    auto *to = new QLabel(tr("to:"), this);
    to->setBuddy(m_value);
    m_value->setPlaceholderText(tr("77, +=5, *=1.5, =x*2+i"));
    m_value->setToolTip(
        tr("A value, a name, or a calculation: x is the old number, i the place among the hits"));
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_state->setTextFormat(Qt::PlainText);
    row->addWidget(m_label);
    row->addWidget(m_field);
    row->addWidget(to);
    row->addWidget(m_value, 2);
    m_one = addButton(row, "btnReplace", tr("Replace"),
                      tr("Give the current hit this value, and go on to the next one"));
    m_all = addButton(row, "btnReplaceAll", tr("Replace All"),
                      tr("Give all hits this value, as one undo step a document"));
    row->addWidget(m_state, 3);
    auto *all = new QAction(m_all->text(), m_value);
    all->setObjectName(QStringLiteral("actionReplaceAll"));
    nameShortcut(all, all->objectName(), tr("Find and Replace"), m_all->text());
    all->setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
    all->setShortcutContext(Qt::WidgetShortcut);
    m_value->addAction(all);
    connect(all, &QAction::triggered, m_all, &QPushButton::click);
    connect(m_value, &QLineEdit::returnPressed, m_one, &QPushButton::click);
    connect(m_one, &QPushButton::clicked, this, &ReplaceBar::oneWanted);
    connect(m_all, &QPushButton::clicked, this, &ReplaceBar::allWanted);
    connect(m_field, &QComboBox::editTextChanged, this, &ReplaceBar::updateButtons);
}

QPushButton *ReplaceBar::addButton(QHBoxLayout *row, const char *name, const QString &text,
                                   const QString &tip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

QString ReplaceBar::field() const
{
    return m_field->currentText();
}

QString ReplaceBar::value() const
{
    return m_value->text();
}

void ReplaceBar::update(const RecordFinder &finder)
{
    KindSet kinds;
    for (const RecordFinder::Hit &hit : finder.hits())
        kinds = kinds | KindSet(hit.record.kind);
    // What somebody chose stays until the condition is about something else.
    const QString word = finder.condition().fieldWord();
    const bool isOther = !word.isEmpty() && word != m_word;
    const QString text = isOther ? word : m_field->currentText();
    if (!word.isEmpty())
        m_word = word;
    {
        const QSignalBlocker blocker(m_field);
        m_field->clear();
        m_field->addItems(RecordWords::fieldProposals(kinds));
        m_field->setEditText(text);
    }
    m_hasHits = !finder.hits().empty() && !finder.isRunning();
    updateButtons();
}

void ReplaceBar::updateButtons()
{
    m_isReady = m_hasHits && !field().trimmed().isEmpty();
    m_one->setEnabled(m_isReady);
    m_all->setEnabled(m_isReady);
}

void ReplaceBar::say(const QString &text, bool isWarning)
{
    QPalette colors = palette();
    if (isWarning)
        colors.setColor(QPalette::WindowText, warningColor(colors));
    m_state->setPalette(colors);
    m_state->setText(text);
    m_state->setToolTip(text);
    if (!text.isEmpty())
        emit told(text);
}

void ReplaceBar::tell(const RecordFinder::Outcome &outcome, const RecordFinder &finder)
{
    if (!outcome.reason.isEmpty()) {
        say(outcome.isAboutHit
                ? tr("Nothing was changed. %1: %2")
                      .arg(recordPlace(finder.selection(outcome.refusing.type), outcome.refusing.record),
                           outcome.reason)
                : outcome.reason,
            true);
        return;
    }
    if (outcome.records == 0)
        return say(tr("Nothing was changed: the value is there already."), false);
    const QString changed = outcome.documents == 1 ? tr("Changed records: %1").arg(outcome.records)
                                                   : tr("Changed records: %1, in %2 documents")
                                                         .arg(QString::number(outcome.records),
                                                              QString::number(outcome.documents));
    say(outcome.note.isEmpty() ? changed : changed + QStringLiteral(". ") + outcome.note, false);
}
