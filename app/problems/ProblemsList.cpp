// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProblemsList.h"

#include "EmptyText.h"
#include "Icons.h"
#include "RecordSelection.h"
#include "RecordTable.h"
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <algorithm>
#include <vector>

namespace {
/// Views measure their rows without minding a column's width.
class SentenceDelegate : public QStyledItemDelegate
{
public:
    explicit SentenceDelegate(QTreeView *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const int margin = 1 + m_view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_view);
        const QRect space(0, 0, m_view->columnWidth(index.column()) - 2 * margin, 10000);
        const QRect text = option.fontMetrics.boundingRect(space, Qt::TextWordWrap, index.data().toString());
        return {text.width(), text.height() + 4};
    }

private:
    QTreeView *m_view;
};

/// The end of a path says most of it.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features &= ~QStyleOptionViewItem::WrapText;
        option->textElideMode = Qt::ElideLeft;
    }
};

const char *iconOf(Severity severity)
{
    static const char *const names[] = {"error", "warning", "info"};
    return names[size_t(severity)];
}

QString nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return ProblemsList::tr("Error");
    case Severity::Warning:
        return ProblemsList::tr("Warning");
    case Severity::Note:
        break;
    }
    return ProblemsList::tr("Note");
}

/// Open documents first, then the files of the mod.
int documentOrder(const Problem &problem)
{
    return problem.document ? int(*problem.document) : int(documentKinds().size());
}

/// The order in which the checks put findings, the worst first.
auto orderOf(const Problem &problem)
{
    return std::tuple(problem.isSilenced, problem.rule.severity, documentOrder(problem), problem.name,
                      problem.rule.order, problem.notListed > 0, problem.place.kind, problem.place.index);
}
} // namespace

ProblemItem::ProblemItem(const Problem &problem, const QString &file, const RecordSelection *records)
    : m_problem(problem)
    , m_file(file)
    , m_place(records ? recordPlace(*records, problem.place)
                      : QString()) // now: the record may be gone by the time that it is painted
{}

QString ProblemItem::cell(int column) const
{
    switch (column) {
    case SeverityColumn:
        return nameOf(m_problem.rule.severity);
    case FileColumn:
        return m_file;
    case PlaceColumn: {
        // The root would stand without a name.
        const RecordRow *row = m_problem.document ? nullptr : recordRow(m_problem.place.kind);
        return row && row->parent != RecordKind::None ? recordPlace(m_problem.place) : m_place;
    }
    default:
        return !m_problem.isSilenced ? m_problem.text
               : m_problem.why.isEmpty()
                   ? ProblemsList::tr("Silenced: %1").arg(m_problem.text)
                   : ProblemsList::tr("Silenced (%1): %2").arg(m_problem.why, m_problem.text);
    }
}

QVariant ProblemItem::data(int column, int role) const
{
    if (role == Qt::ToolTipRole && column == SeverityColumn && !m_problem.rule.id.isEmpty())
        return ProblemsList::tr("Rule: %1").arg(m_problem.rule.id);
    if (role == Qt::ToolTipRole && column == FileColumn)
        return QDir::toNativeSeparators(m_problem.path);
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && column == PlaceColumn))
        return cell(column);
    if (role == Qt::DecorationRole && column == SeverityColumn)
        return namedIcon(QLatin1String(iconOf(m_problem.rule.severity)));
    if (role == Qt::ForegroundRole && m_problem.isSilenced)
        return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    return QTreeWidgetItem::data(column, role);
}

ProblemItem::Subject ProblemItem::subject() const
{
    // A file may have become a document.
    return {m_problem.rule.order, m_problem.place.kind, m_problem.place.index, m_problem.path,
            m_problem.path.isEmpty() ? documentOrder(m_problem) : 0};
}

bool ProblemItem::operator<(const QTreeWidgetItem &other) const
{
    const Problem &that = static_cast<const ProblemItem &>(other).m_problem;
    const int column = treeWidget() ? treeWidget()->sortColumn() : SeverityColumn;
    const auto file = [](const Problem &problem) { return std::tuple(documentOrder(problem), problem.name); };
    const auto place = [&file](const Problem &problem) {
        return std::tuple(file(problem), problem.place.kind, problem.place.index);
    };
    switch (column) {
    case FileColumn:
        return std::tuple(file(m_problem), orderOf(m_problem)) < std::tuple(file(that), orderOf(that));
    case PlaceColumn:
        return std::tuple(place(m_problem), orderOf(m_problem)) < std::tuple(place(that), orderOf(that));
    case TextColumn:
        return std::tuple(m_problem.rule.order, orderOf(m_problem)) <
               std::tuple(that.rule.order, orderOf(that));
    default:
        return orderOf(m_problem) < orderOf(that);
    }
}

ProblemsList::ProblemsList(QWidget *parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("listProblems"));
    setAccessibleName(tr("Problems"));
    setColumnCount(ProblemItem::ColumnCount);
    setHeaderLabels({tr("Severity"), tr("File"), tr("Place"), tr("Problem")});
    setRootIsDecorated(false);
    setIconSize({16, 16});
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setWordWrap(true);
    setItemDelegateForColumn(ProblemItem::TextColumn, new SentenceDelegate(this));
    setItemDelegateForColumn(ProblemItem::FileColumn, new PathDelegate(this));
    setSortingEnabled(true);
    sortByColumn(ProblemItem::SeverityColumn, Qt::AscendingOrder);
    header()->setStretchLastSection(false);
    const int letter = fontMetrics().averageCharWidth();
    for (const auto &[column, letters] : {std::pair(ProblemItem::SeverityColumn, 14),
                                          {ProblemItem::FileColumn, 32},
                                          {ProblemItem::PlaceColumn, 34}})
        setColumnWidth(column, letters * letter);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        if (column != ProblemItem::TextColumn)
            stretchSentences();
        scheduleDelayedItemsLayout();
    });
}

void ProblemsList::stretchSentences()
{
    const int least = 50 * fontMetrics().averageCharWidth();
    const int left = viewport()->width() - header()->sectionPosition(ProblemItem::TextColumn);
    setColumnWidth(ProblemItem::TextColumn, std::max(least, left));
}

void ProblemsList::resizeEvent(QResizeEvent *event)
{
    QTreeWidget::resizeEvent(event);
    stretchSentences();
}

QList<ProblemItem *> ProblemsList::selectedProblems() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    QList<ProblemItem *> problems;
    for (const int row : rows)
        problems << static_cast<ProblemItem *>(topLevelItem(row));
    return problems;
}

void ProblemsList::setProblems(const QList<QTreeWidgetItem *> &items)
{
    const int row = indexOfTopLevelItem(currentItem());
    const ProblemItem *old = currentProblem();
    std::set<ProblemItem::Subject> selected;
    for (const ProblemItem *each : selectedProblems())
        selected.insert(each->subject());
    QTreeWidgetItem *current = nullptr;
    for (QTreeWidgetItem *item : items) {
        if (old && static_cast<ProblemItem *>(item)->subject() == old->subject())
            current = item;
    }
    // A row that was taken out of the selection stays out.
    const bool selects = !current || old->isSelected();
    clear();
    setVerticalScrollMode(items.size() > MostMeasured ? ScrollPerItem : ScrollPerPixel);
    addTopLevelItems(items);
    if (!current && row >= 0)
        current = topLevelItem(std::min(row, topLevelItemCount() - 1));
    if (current)
        setCurrentItem(current, 0,
                       selects ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                               : QItemSelectionModel::NoUpdate);
    selectAlike(selected);
}

/// All at once: after each change of the selection it is asked what can be done with it.
void ProblemsList::selectAlike(const std::set<ProblemItem::Subject> &wanted)
{
    QItemSelection selection;
    for (int row = 0; row < topLevelItemCount() && !wanted.empty(); ++row) {
        if (wanted.count(static_cast<ProblemItem *>(topLevelItem(row))->subject()) == 0)
            continue;
        const bool goesOn = !selection.isEmpty() && selection.last().bottom() == row - 1;
        const int first = goesOn ? selection.takeLast().top() : row;
        selection.append({model()->index(first, 0), model()->index(row, ProblemItem::ColumnCount - 1)});
    }
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

void ProblemsList::setEmptyText(const QString &text)
{
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void ProblemsList::paintEvent(QPaintEvent *event)
{
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() > 0)
        return;
    paintEmptyText(*viewport(), m_emptyText);
}
