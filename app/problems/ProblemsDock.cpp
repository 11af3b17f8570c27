// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProblemsDock.h"

#include "Document.h"
#include "Icons.h"
#include "Problems.h"
#include "ProblemsList.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

ProblemsDock::ProblemsDock(QWidget *parent)
    : QDockWidget(parent)
{
    auto *contents = new QWidget(this);
    m_list = new ProblemsList(contents);
    m_buttons = new QHBoxLayout;
    m_buttons->setContentsMargins(4, 2, 4, 2);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(m_buttons);
    layout->addWidget(m_list, 1);
    setWidget(contents);
    createFilters();
    createActions();

    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &ProblemsDock::updateActions);
    connect(m_list, &QTreeWidget::itemActivated, this, &ProblemsDock::showCurrent);
    updateActions();
}

void ProblemsDock::createFilters()
{
    const struct
    {
        const char *name;
        const char *icon;
        QString tip;
    } filters[] = {
        {"btnProblemErrors", "error", tr("List errors: the file cannot be saved or used as it stands")},
        {"btnProblemWarnings", "warning", tr("List warnings: a part of the model does not do what it says")},
        {"btnProblemNotes", "info", tr("List notes: nothing goes wrong")}};
    for (size_t i = 0; i < m_filters.size(); ++i) {
        auto *button = new QToolButton(widget());
        button->setObjectName(QLatin1String(filters[i].name));
        button->setIcon(namedIcon(QLatin1String(filters[i].icon)));
        button->setToolTip(filters[i].tip);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setCheckable(true);
        button->setChecked(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::toggled, this, &ProblemsDock::fill);
        m_buttons->addWidget(button);
        m_filters[i] = button;
    }
    m_buttons->addStretch(1);
}

QAction *ProblemsDock::addAction(const char *name, const QString &text, const char *iconName,
                                 void (ProblemsDock::*slot)())
{
    auto *action = new QAction(namedIcon(QLatin1String(iconName)), text, m_list);
    action->setObjectName(QLatin1String(name));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_list->addAction(action);
    return action;
}

void ProblemsDock::createActions()
{
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_show = addAction("actionProblemShow", tr("&Show"), "search", &ProblemsDock::showCurrent);
    m_repair = addAction("actionProblemFix", tr("&Fix"), "checkmark", &ProblemsDock::repairSelected);
    m_repair->setShortcut(QKeySequence(QStringLiteral("Ctrl+.")));
    m_repair->setToolTip(tr("Repair what is selected, where there is only one way to do it"));
    m_repairAll = addAction("actionProblemFixAll", tr("Fix &All of This Kind"), "checkmark",
                            &ProblemsDock::repairAllOfKind);
    m_repairAll->setToolTip(tr("Repair every problem of this kind in this file"));
    m_copy = addAction("actionProblemCopy", tr("&Copy"), "copy", &ProblemsDock::copySelected);
    m_copy->setShortcut(QKeySequence::Copy);

    for (QAction *action : {m_repair, m_repairAll}) {
        auto *button = new QToolButton(widget());
        button->setDefaultAction(action);
        button->setObjectName(action->objectName().replace(QLatin1String("action"), QLatin1String("btn")));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        m_buttons->addWidget(button);
    }
}

void ProblemsDock::setProblems(Problems *problems, const std::array<Listed, 3> &documents)
{
    m_problems = problems;
    m_documents = documents;
    connect(problems, &Problems::changed, this, &ProblemsDock::fill);
    fill();
}

void ProblemsDock::fill()
{
    const QString counts[] = {tr("Errors: %1"), tr("Warnings: %1"), tr("Notes: %1")};
    for (size_t i = 0; i < m_filters.size(); ++i)
        m_filters[i]->setText(counts[i].arg(m_problems->count(Severity(i))));

    QList<QTreeWidgetItem *> items;
    bool isOpen = false;
    bool isHiding = false;
    for (const DocumentKind &kind : documentKinds()) {
        const auto [document, records] = m_documents[size_t(kind.type)];
        const QString name = document->fileName();
        isOpen |= document->isOpen();
        for (const Finding &finding : m_problems->findings(kind.type)) {
            if (m_filters[size_t(severityOf(finding.rule))]->isChecked())
                items << new ProblemItem(kind.type, finding, name, *records);
            else
                isHiding = true;
        }
    }
    m_list->setEmptyText(!isOpen    ? tr("No file is open.")
                         : isHiding ? tr("All problems are hidden by the buttons above.")
                                    : tr("No problems found."));
    m_list->setProblems(items);
    updateActions();
}

void ProblemsDock::updateActions()
{
    const QList<ProblemItem *> selected = m_list->selectedProblems();
    const ProblemItem *current = m_list->currentProblem();
    m_show->setEnabled(current);
    m_copy->setEnabled(!selected.isEmpty());
    m_repair->setEnabled(std::any_of(selected.begin(), selected.end(),
                                     [](const ProblemItem *item) { return item->finding().repairable; }));
    bool hasKind = false;
    if (current) {
        const std::vector<Finding> &findings = m_problems->findings(current->type());
        hasKind = std::any_of(findings.begin(), findings.end(), [current](const Finding &finding) {
            return finding.rule == current->finding().rule && finding.repairable;
        });
    }
    m_repairAll->setEnabled(hasKind);
}

void ProblemsDock::showCurrent()
{
    if (const ProblemItem *item = m_list->currentProblem())
        emit activated(item->type(), item->finding().place);
}

void ProblemsDock::repairSelected()
{
    std::map<std::pair<DocumentType, Rule>, QVector<RecordRef>> places;
    for (const ProblemItem *item : m_list->selectedProblems())
        places[{item->type(), item->finding().rule}] << item->finding().place;
    for (const auto &[kind, records] : places)
        m_problems->repairPlaces(kind.first, kind.second, records);
}

void ProblemsDock::repairAllOfKind()
{
    if (const ProblemItem *item = m_list->currentProblem())
        m_problems->repairAll(item->type(), item->finding().rule);
}

void ProblemsDock::copySelected()
{
    QStringList lines;
    for (const ProblemItem *item : m_list->selectedProblems()) {
        QStringList cells;
        for (int column = 0; column < ProblemItem::ColumnCount; ++column)
            cells << item->text(column);
        lines << cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
