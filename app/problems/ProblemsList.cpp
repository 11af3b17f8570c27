// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProblemsList.h"

#include "EmptyText.h"
#include "Icons.h"
#include "RecordSelection.h"
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <algorithm>
#include <tuple>

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

/// The order in which the checks put findings, the worst first.
auto orderOf(const ProblemItem &item)
{
    const Finding &finding = item.finding();
    return std::tuple(severityOf(finding.rule), item.type(), finding.rule, finding.notListed > 0,
                      finding.place.kind, finding.place.index);
}
} // namespace

ProblemItem::ProblemItem(DocumentType type, const Finding &finding, const QString &document,
                         const RecordSelection &records)
    : m_type(type)
    , m_finding(finding)
    , m_document(document)
    , m_place(
          recordPlace(records, finding.place)) // now: the record may be gone by the time that it is painted
{}

QString ProblemItem::cell(int column) const
{
    switch (column) {
    case SeverityColumn:
        return nameOf(severityOf(m_finding.rule));
    case DocumentColumn:
        return m_document;
    case PlaceColumn:
        return m_place;
    default:
        return m_finding.text;
    }
}

QVariant ProblemItem::data(int column, int role) const
{
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && column == PlaceColumn))
        return cell(column);
    if (role == Qt::DecorationRole && column == SeverityColumn)
        return namedIcon(QLatin1String(iconOf(severityOf(m_finding.rule))));
    return QTreeWidgetItem::data(column, role);
}

bool ProblemItem::isAbout(const ProblemItem &other) const
{
    return m_type == other.m_type && m_finding.rule == other.m_finding.rule &&
           m_finding.place == other.m_finding.place;
}

bool ProblemItem::operator<(const QTreeWidgetItem &other) const
{
    const auto &that = static_cast<const ProblemItem &>(other);
    const int column = treeWidget() ? treeWidget()->sortColumn() : SeverityColumn;
    const auto place = [](const ProblemItem &item) {
        const Finding &finding = item.finding();
        return std::tuple(item.type(), finding.place.kind, finding.place.index);
    };
    switch (column) {
    case DocumentColumn:
        return std::tuple(m_type, orderOf(*this)) < std::tuple(that.m_type, orderOf(that));
    case PlaceColumn:
        return std::tuple(place(*this), orderOf(*this)) < std::tuple(place(that), orderOf(that));
    case TextColumn:
        return std::tuple(m_finding.rule, orderOf(*this)) < std::tuple(that.m_finding.rule, orderOf(that));
    default:
        return orderOf(*this) < orderOf(that);
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
    setSortingEnabled(true);
    sortByColumn(ProblemItem::SeverityColumn, Qt::AscendingOrder);
    header()->setStretchLastSection(false);
    const int letter = fontMetrics().averageCharWidth();
    for (const auto &[column, letters] : {std::pair(ProblemItem::SeverityColumn, 14),
                                          {ProblemItem::DocumentColumn, 24},
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
    QList<ProblemItem *> problems;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (topLevelItem(row)->isSelected())
            problems << static_cast<ProblemItem *>(topLevelItem(row));
    }
    return problems;
}

void ProblemsList::setProblems(const QList<QTreeWidgetItem *> &items)
{
    const int row = indexOfTopLevelItem(currentItem());
    const ProblemItem *old = currentProblem();
    const QList<ProblemItem *> oldSelected = selectedProblems();
    QTreeWidgetItem *current = nullptr;
    QList<QTreeWidgetItem *> selected;
    for (QTreeWidgetItem *item : items) {
        const auto *problem = static_cast<ProblemItem *>(item);
        if (old && problem->isAbout(*old))
            current = item;
        if (std::any_of(oldSelected.begin(), oldSelected.end(),
                        [problem](const ProblemItem *each) { return problem->isAbout(*each); }))
            selected << item;
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
    for (QTreeWidgetItem *item : selected)
        item->setSelected(true);
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
