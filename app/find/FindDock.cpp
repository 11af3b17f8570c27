// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FindDock.h"

#include "ConditionEdit.h"
#include "FoundList.h"
#include "KVTreeView.h"
#include "ReplaceBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <numeric>

namespace {
constexpr int PauseMs = 200; ///< in typing, after which is searched
} // namespace

FindDock::FindDock(QWidget *parent)
    : QDockWidget(parent)
    , m_find(new QLabel(tr("Find:"), this))
    , m_condition(new ConditionBox(this))
    , m_scope(new QComboBox(this))
    , m_count(new QLabel(this))
    , m_replacement(new ReplaceBar(this))
{
    m_condition->setObjectName(QStringLiteral("cbFindCondition"));
    m_condition->line().setObjectName(QStringLiteral("txtFindCondition"));
    m_scope->setObjectName(QStringLiteral("cbFindScope"));
    m_count->setObjectName(QStringLiteral("lblFindCount"));
    toggleViewAction()->setObjectName(QStringLiteral("actionFindDock"));
    m_pause.setSingleShot(true);
    m_pause.setInterval(PauseMs);
    auto *contents = new QWidget(this);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(findRow());
    layout->addWidget(m_replacement);
    setWidget(contents);
    // One below the other.
    const int width = std::max(m_find->sizeHint().width(), m_replacement->label()->sizeHint().width());
    m_find->setMinimumWidth(width);
    m_replacement->label()->setMinimumWidth(width);
}

QBoxLayout *FindDock::findRow()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(4, 2, 4, 0);
    m_find->setBuddy(m_condition);
    m_condition->line().setPlaceholderText(
        tr("damage scale > 1, surfaces material ~ tree, sound = 1234, bone in left arm"));
    m_condition->line().setAccessibleName(tr("Condition"));
    m_condition->line().setToolTip(
        tr("Fields as the pages call them, compared by = != < <= > >= ~ (contains) and in (bones below), "
           "joined by commas, and, or, not. Ctrl+Space proposes words."));
    m_condition->setMinimumContentsLength(20);
    m_scope->addItems({tr("This Document"), tr("Selected Records"), tr("All Open Documents")});
    m_scope->setAccessibleName(tr("Where to search"));
    m_scope->setToolTip(tr("Where to search; of selected records, what stands below them, too"));
    row->addWidget(m_find);
    row->addWidget(m_condition, 1);
    row->addWidget(m_scope);
    m_selectAll = addButton(row, "btnFindSelectAll", tr("Select All Hits"),
                            tr("Select the records in their trees, to edit them on their pages"),
                            &FindDock::selectAllHits);
    m_count->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    row->addWidget(m_count);
    return row;
}

QPushButton *FindDock::addButton(QBoxLayout *row, const char *name, const QString &text, const QString &tip,
                                 void (FindDock::*slot)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    row->addWidget(button);
    return button;
}

void FindDock::setDocuments(const std::array<Document *, 3> &documents,
                            const std::array<KVTreeView *, 3> &trees, const Actions &actions)
{
    m_trees = trees;
    m_actions = actions;
    m_finder = new RecordFinder(
        {{{documents[0], trees[0]}, {documents[1], trees[1]}, {documents[2], trees[2]}}}, this);
    m_list = new FoundList(*m_finder, widget());
    static_cast<QBoxLayout *>(widget()->layout())->addWidget(m_list, 1);
    connectParts();
    onChanged();
}

void FindDock::connectParts()
{
    connect(m_finder, &RecordFinder::changed, this, &FindDock::onChanged);
    connect(this, &QDockWidget::visibilityChanged, m_finder, &RecordFinder::setFollowing);
    connect(&m_pause, &QTimer::timeout, this, &FindDock::search);
    connect(m_condition, &QComboBox::editTextChanged, this, [this] {
        if (m_condition->lineEdit()->hasFocus() || m_condition->hasFocus())
            m_pause.start();
    });
    connect(m_condition, qOverload<int>(&QComboBox::activated), this, &FindDock::search);
    connect(&m_condition->line(), &ConditionEdit::entered, this, &FindDock::enter);
    connect(&m_condition->line(), &ConditionEdit::left, this, &FindDock::leave);
    connect(&m_condition->line(), &ConditionEdit::wentDown, this, [this] {
        m_list->setFocus();
        if (m_list->currentRow() < 0)
            m_list->setCurrentRow(0);
    });
    connect(m_scope, qOverload<int>(&QComboBox::activated), this, &FindDock::search);
    connect(m_replacement, &ReplaceBar::oneWanted, this, &FindDock::replaceCurrent);
    connect(m_replacement, &ReplaceBar::allWanted, this, &FindDock::replaceAll);
    connect(m_replacement, &ReplaceBar::told, this, &FindDock::told);
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { showRow(index.row(), true); });
    connect(m_list, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &index) { showRow(index.row(), false); });
    connect(m_actions.find, &QAction::triggered, this, &FindDock::open);
    connect(m_actions.next, &QAction::triggered, this, &FindDock::next);
    connect(m_actions.previous, &QAction::triggered, this, &FindDock::previous);
}

void FindDock::setCurrent(const Document *document)
{
    m_current = document;
    m_finder->setCurrent(document);
    if (m_finder->hits().empty())
        onChanged();
}

void FindDock::open()
{
    show();
    raise();
    m_condition->lineEdit()->setFocus(Qt::ShortcutFocusReason);
    m_condition->lineEdit()->selectAll();
}

void FindDock::leave()
{
    if (m_current)
        m_trees[size_t(m_current->kind().type)]->setFocus();
}

void FindDock::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return leave();
    QDockWidget::keyPressEvent(event);
}

// --- Finding -----------------------------------------------------------------------------------------------

void FindDock::search()
{
    m_pause.stop();
    m_replacement->say({}, false);
    m_finder->search(m_condition->currentText(), RecordFinder::Scope(m_scope->currentIndex()));
}

void FindDock::enter()
{
    // Once for the search, and on to the next hit when it was made.
    const bool isNew = m_pause.isActive() || m_finder->hits().empty();
    if (isNew)
        search();
    if (!m_finder->reason().isEmpty())
        return m_replacement->say(m_finder->reason(), true);
    m_condition->keep();
    if (isNew && !m_finder->hits().empty())
        m_list->setCurrentRow(-1);
    step(1);
}

void FindDock::onChanged()
{
    KindSet roots;
    for (size_t type = 0; type < m_trees.size(); ++type) {
        const Document &document = m_finder->document(DocumentType(type));
        if (document.isOpen())
            roots = roots | KindSet(document.rootKind());
    }
    m_condition->line().setModels(roots, m_finder->document(DocumentType::SkinnedMesh).namedMesh());
    m_list->refill();
    m_list->setEmptyText(emptyText());
    m_replacement->update(*m_finder);
    updateState();
}

QString FindDock::emptyText() const
{
    if (!m_finder->hasDocument())
        return tr("No file is open.");
    if (m_condition->currentText().trimmed().isEmpty())
        return tr("Type what the records are to have, such as %1.").arg(tr("damage scale > 1"));
    if (!m_finder->reason().isEmpty())
        return m_finder->reason();
    return m_finder->isRunning() ? tr("The records are being searched.")
                                 : tr("No record meets the condition.");
}

void FindDock::updateState()
{
    const int count = int(m_finder->hits().size());
    const bool isSearch = !m_finder->condition().isEmpty();
    m_count->setText(m_finder->isRunning() ? tr("Searching\u2026")
                     : isSearch            ? tr("Hits: %1").arg(count)
                                           : QString());
    m_selectAll->setEnabled(count > 0 && !m_finder->isRunning());
    m_actions.next->setEnabled(count > 0);
    m_actions.previous->setEnabled(count > 0);
}

void FindDock::step(int by)
{
    m_finder->refresh();
    const int count = int(m_finder->hits().size());
    if (count == 0)
        return;
    const int row = m_list->currentRow();
    showRow(row < 0 ? (by > 0 ? 0 : count - 1) : (row + by + count) % count, false);
}

void FindDock::showRow(int row, bool withKeys)
{
    if (row < 0 || row >= int(m_finder->hits().size()))
        return;
    m_list->setCurrentRow(row);
    const RecordFinder::Hit hit = m_finder->hits()[size_t(row)];
    m_finder->noteShown(hit);
    withKeys ? emit activated(hit.type, hit.record) : emit shown(hit.type, hit.record);
}

void FindDock::selectAllHits()
{
    if (!isReady())
        return;
    const std::vector<RecordFinder::Hit> hits = m_finder->hits();
    int left = 0;
    bool isInFront = false;
    int first = -1;
    for (size_t type = 0; type < m_trees.size(); ++type) {
        KVTreeView &tree = *m_trees[type];
        QVector<RecordRef> records;
        for (const RecordFinder::Hit &hit : hits) {
            if (size_t(hit.type) != type)
                continue;
            const bool isThere = tree.isShown(hit.record);
            left += isThere ? 0 : 1;
            if (isThere)
                records.append(hit.record);
        }
        if (records.isEmpty())
            continue;
        tree.selectRecords(records, records.first());
        isInFront |= m_current && size_t(m_current->kind().type) == type;
        first = first < 0 ? int(type) : first;
    }
    if (!isInFront && first >= 0)
        emit documentWanted(DocumentType(first));
    if (left > 0)
        return m_replacement->say(
            tr("Not in the trees, and so not selected: %1. The filter or the options hide them.").arg(left),
            true);
    leave();
}

// --- Replacing ---------------------------------------------------------------------------------------------

/// Sees to it that what is listed is what the line asks for, of records as they are; says why it is not yet.
bool FindDock::isReady()
{
    for (size_t type = 0; type < m_trees.size(); ++type) {
        // What is typed elsewhere is stored first, and what is refused dealt with.
        if (m_finder->document(DocumentType(type)).returnToTyping())
            return false;
    }
    if (m_pause.isActive())
        search();
    m_finder->refresh();
    if (m_finder->isRunning())
        m_replacement->say(tr("The records are being searched."), false);
    return !m_finder->isRunning();
}

RecordFinder::Outcome FindDock::replaceThese(const std::vector<int> &hits)
{
    const RecordFinder::Outcome outcome =
        m_finder->replace(hits, m_replacement->field(), m_replacement->value());
    m_replacement->tell(outcome, *m_finder);
    if (outcome.records > 0)
        m_condition->keep();
    return outcome;
}

void FindDock::replaceCurrent()
{
    if (!isReady() || !m_replacement->isReady())
        return;
    const int row = std::max(m_list->currentRow(), 0);
    const RecordFinder::Hit hit = m_finder->hits()[size_t(row)];
    if (!replaceThese({row}).reason.isEmpty())
        return showRow(row, false);
    // What is still found is gone on from; else another one has come into its row.
    const auto &hits = m_finder->hits();
    const bool isStill = row < int(hits.size()) && hits[size_t(row)].type == hit.type &&
                         hits[size_t(row)].record == hit.record;
    if (!hits.empty())
        showRow((isStill ? row + 1 : row) % int(hits.size()), false);
}

void FindDock::replaceAll()
{
    if (!isReady() || !m_replacement->isReady())
        return;
    std::vector<int> all(m_finder->hits().size());
    std::iota(all.begin(), all.end(), 0);
    const RecordFinder::Outcome outcome = replaceThese(all);
    if (outcome.isAboutHit) {
        const auto &hits = m_finder->hits();
        for (size_t i = 0; i < hits.size(); ++i) {
            if (hits[i].type == outcome.refusing.type && hits[i].record == outcome.refusing.record)
                m_list->setCurrentRow(int(i));
        }
    }
}
