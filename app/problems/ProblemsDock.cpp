// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProblemsDock.h"

#include "CheckSign.h"
#include "Document.h"
#include "FileOpener.h"
#include "Icons.h"
#include "Problems.h"
#include "ProblemsList.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMessageBox>
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

    createModActions();
    m_silencedButton = addButton(m_showSilenced);
    addButton(m_whole);
    m_signs = new QHBoxLayout;
    m_buttons->addLayout(m_signs);
    m_buttons->addStretch(1);
    addButton(m_repair);
    addButton(m_repairAll);
}

void ProblemsDock::createModActions()
{
    auto *line = new QAction(m_list);
    line->setSeparator(true);
    m_list->addAction(line);
    m_silenceFile = addAction("actionProblemSilenceFile", tr("Silence This Rule for This F&ile"), "close",
                              &ProblemsDock::silenceForFile);
    m_silenceFile->setToolTip(tr("Write into %1 of the mod that this is as it should be in this file")
                                  .arg(CheckSettings::FileName));
    m_silenceAll = addAction("actionProblemSilenceAll", tr("Silence This Rule &Everywhere"), "close",
                             &ProblemsDock::silenceEverywhere);
    m_silenceAll->setToolTip(
        tr("Write into %1 of the mod that nothing of this kind is to be told").arg(CheckSettings::FileName));
    m_hear = addAction("actionProblemHear", tr("&Hear This Rule Again"), "undo", &ProblemsDock::hear);
    m_hear->setToolTip(tr("Take out of %1 what silences this").arg(CheckSettings::FileName));
    m_showSilenced = addAction("actionProblemShowSilenced", tr("List Si&lenced"), "", &ProblemsDock::fill);
    m_showSilenced->setCheckable(true);
    m_showSilenced->setToolTip(tr("List what %1 of the mod silences, too").arg(CheckSettings::FileName));
    m_whole =
        addAction("actionProblemWholeMod", tr("Check Whole &Mod"), "folder", &ProblemsDock::toggleWhole);
    m_whole->setShortcutContext(Qt::WindowShortcut); // a menu of the window has it, too
    m_whole->setIconText(tr("Whole Mod"));
    m_whole->setCheckable(true);
    m_whole->setToolTip(tr("List what is wrong with all files in the mod's folder, too"));
    m_whole->setStatusTip(m_whole->toolTip());
}

QToolButton *ProblemsDock::addButton(QAction *action)
{
    auto *button = new QToolButton(widget());
    button->setDefaultAction(action);
    button->setObjectName(action->objectName().replace(QLatin1String("action"), QLatin1String("btn")));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    m_buttons->addWidget(button);
    return button;
}

void ProblemsDock::setProblems(Problems *problems, const std::array<Listed, 3> &documents,
                               DocumentFiles &files)
{
    m_problems = problems;
    m_documents = documents;
    m_whole->setChecked(problems->mod().isWhole());
    m_signs->addWidget(new CheckSign(problems->mod()));
    m_opener = new FileOpener(files, this);
    connect(m_opener, &FileOpener::opened, this, &ProblemsDock::activated);
    connect(m_opener, &FileOpener::materialsWanted, this, &ProblemsDock::materialsWanted);
    connect(m_opener, &FileOpener::told, this, &ProblemsDock::told);
    connect(&problems->mod(), &ModProblems::runningChanged, this, &ProblemsDock::fill);
    connect(problems, &Problems::changed, this, &ProblemsDock::fill);
    fill();
}

void ProblemsDock::fill()
{
    const QString counts[] = {tr("Errors: %1"), tr("Warnings: %1"), tr("Notes: %1")};
    for (size_t i = 0; i < m_filters.size(); ++i)
        m_filters[i]->setText(counts[i].arg(m_problems->count(Severity(i))));

    m_showSilenced->setIconText(tr("Silenced: %1").arg(m_problems->silencedCount()));
    m_silencedButton->setVisible(m_problems->silencedCount() > 0 || m_showSilenced->isChecked());

    QList<QTreeWidgetItem *> items;
    bool isHiding = false;
    for (const Problem &problem : m_problems->all()) {
        if (!m_filters[size_t(problem.rule.severity)]->isChecked() ||
            (problem.isSilenced && !m_showSilenced->isChecked())) {
            isHiding = true;
            continue;
        }
        const Listed open = problem.document ? m_documents[size_t(*problem.document)] : Listed{};
        const bool isNamed = m_problems->mod().isWhole() && !problem.name.isEmpty();
        items << new ProblemItem(
            problem, isNamed || !open.document ? problem.name : open.document->fileName(), open.records);
    }
    m_list->setEmptyText(emptyText(isHiding));
    m_list->setProblems(items);
    updateActions();
}

QString ProblemsDock::emptyText(bool isHiding) const
{
    const ModProblems &mod = m_problems->mod();
    const bool isOpen = std::any_of(m_documents.begin(), m_documents.end(),
                                    [](const Listed &each) { return each.document->isOpen(); });
    if (isHiding)
        return tr("All problems are hidden by the buttons above.");
    if (mod.isRunning())
        return tr("The mod is being checked.");
    if (mod.isWhole() && mod.isGivenUp())
        return tr("The check of the mod was stopped. Refresh Folders (F5) starts it again.");
    if (mod.isWhole() && mod.folder().isEmpty())
        return tr("The options name no mod folder.");
    return isOpen || mod.isWhole() ? tr("No problems found.") : tr("No file is open.");
}

void ProblemsDock::updateActions()
{
    const QList<ProblemItem *> selected = m_list->selectedProblems();
    const ProblemItem *current = m_list->currentProblem();
    m_show->setEnabled(current);
    m_copy->setEnabled(!selected.isEmpty());
    m_repair->setEnabled(std::any_of(selected.begin(), selected.end(),
                                     [](const ProblemItem *item) { return item->problem().isRepairable; }));
    bool hasKind = false;
    if (current && current->problem().document) {
        const std::vector<Finding> &findings = m_problems->findings(*current->problem().document);
        hasKind = std::any_of(findings.begin(), findings.end(), [current](const Finding &finding) {
            return finding.rule == current->problem().documentRule && finding.repairable;
        });
    }
    m_repairAll->setEnabled(hasKind);
    const bool canSilenceOne = std::any_of(selected.begin(), selected.end(), canSilence);
    m_silenceFile->setEnabled(canSilenceOne);
    m_silenceAll->setEnabled(canSilenceOne);
    m_hear->setEnabled(std::any_of(selected.begin(), selected.end(), canBeHeard));
}

void ProblemsDock::showCurrent()
{
    const ProblemItem *item = m_list->currentProblem();
    if (!item)
        return;
    const Problem &problem = item->problem();
    if (problem.document)
        emit activated(*problem.document, problem.place);
    else if (!problem.path.isEmpty())
        m_opener->open(problem.path, problem.place);
}

void ProblemsDock::repairSelected()
{
    std::map<std::pair<DocumentType, Rule>, QVector<RecordRef>> places;
    for (const ProblemItem *item : m_list->selectedProblems()) {
        const Problem &problem = item->problem();
        if (problem.document)
            places[{*problem.document, problem.documentRule}] << problem.place;
    }
    for (const auto &[kind, records] : places)
        m_problems->repairPlaces(kind.first, kind.second, records);
}

void ProblemsDock::repairAllOfKind()
{
    const ProblemItem *item = m_list->currentProblem();
    if (item && item->problem().document)
        m_problems->repairAll(*item->problem().document, item->problem().documentRule);
}

void ProblemsDock::toggleWhole()
{
    m_problems->mod().setWhole(m_whole->isChecked());
    if (!m_whole->isChecked())
        return;
    show();
    raise();
}

bool ProblemsDock::canSilence(const ProblemItem *item)
{
    const Problem &problem = item->problem();
    return !problem.isSilenced && !problem.name.isEmpty() && canBeSilenced(problem.rule.id);
}

bool ProblemsDock::canBeHeard(const ProblemItem *item)
{
    return item->problem().isSilenced && !item->problem().name.isEmpty();
}

QVector<ModProblems::Silence> ProblemsDock::selectedRules(bool (*takes)(const ProblemItem *)) const
{
    QVector<ModProblems::Silence> rules;
    for (const ProblemItem *item : m_list->selectedProblems()) {
        if (takes(item))
            rules.append({item->problem().rule.id, item->problem().name});
    }
    return rules;
}

void ProblemsDock::silence(bool everywhere)
{
    QVector<ModProblems::Silence> rules = selectedRules(canSilence);
    if (rules.isEmpty())
        return;
    if (everywhere) {
        for (ModProblems::Silence &each : rules)
            each.name.clear();
    }
    const ModProblems::Silence first = rules.first();
    tellDone(m_problems->mod().silence(rules),
             everywhere
                 ? tr("%1 silences '%2' in the whole mod.").arg(CheckSettings::FileName, first.rule)
                 : tr("%1 silences '%2' for '%3'.").arg(CheckSettings::FileName, first.rule, first.name));
}

void ProblemsDock::hear()
{
    const QVector<ModProblems::Silence> rules = selectedRules(canBeHeard);
    if (!rules.isEmpty())
        tellDone(m_problems->mod().hear(rules),
                 tr("%1 silences '%2' for '%3' no more.")
                     .arg(CheckSettings::FileName, rules.first().rule, rules.first().name));
}

void ProblemsDock::tellDone(const QString &failure, const QString &done)
{
    if (failure.isEmpty())
        emit told(done);
    else
        QMessageBox::warning(this, tr("File error"),
                             tr("Failed to write %1").arg(CheckSettings::FileName) + QLatin1String("\n") +
                                 failure);
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
