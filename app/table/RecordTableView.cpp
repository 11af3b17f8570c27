// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTableView.h"

#include "DelimitedText.h"
#include "Settings.h"
#include "TypingField.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {
/// The editor of a cell. What is typed is for all selected cells.
class CellEdit : public QLineEdit, public TypingField
{
public:
    CellEdit(RecordTableView *view, QWidget *parent)
        : QLineEdit(parent)
        , TypingField(static_cast<QWidget &>(*this))
        , m_view(view)
    {
        setFrame(false);
        setObjectName(QStringLiteral("txtCell"));
        setAccessibleName(RecordTableView::tr("Value"));
        connect(this, &QLineEdit::textEdited, this, [this] { setRefusal({}); });
    }

    bool isTyping() const override { return isModified(); }
    bool commitText() override
    {
        if (isModified()) {
            setRefusal(m_view->enter(text()), RecordTableView::tr("Esc gives it up."));
            setModified(isRefused());
        }
        return isRefused();
    }
    void discardText() override
    {
        setModified(false);
        setRefusal({});
    }
    using TypingField::tellRefusal;

protected:
    void selectText() override { selectAll(); }
    bool event(QEvent *event) override { return answer(event) || QLineEdit::event(event); }
    void paintEvent(QPaintEvent *event) override
    {
        QLineEdit::paintEvent(event);
        paintRefusal();
    }

private:
    RecordTableView *m_view;
};

/// Keeps the editor of a cell open while what is typed cannot be stored.
class CellDelegate : public QStyledItemDelegate
{
public:
    explicit CellDelegate(RecordTableView *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {}

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return new CellEdit(m_view, parent);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        auto *cell = static_cast<CellEdit *>(editor);
        if (cell->isTyping())
            return; // values have changed meanwhile
        cell->setText(index.data(Qt::EditRole).toString());
        cell->selectAll();
    }
    void setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &) const override
    {
        auto *cell = static_cast<CellEdit *>(editor);
        if (cell->commitText())
            emit m_view->told(RecordTableView::tr("Not stored. %1").arg(cell->refusal()));
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
        if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Tab && key != Qt::Key_Backtab)
            return QStyledItemDelegate::eventFilter(watched, event);
        auto *cell = static_cast<CellEdit *>(watched);
        if (cell->commitText())
            cell->tellRefusal();
        else
            emit closeEditor(cell, key == Qt::Key_Tab       ? EditNextItem
                                   : key == Qt::Key_Backtab ? EditPreviousItem
                                                            : NoHint);
        return true;
    }

private:
    RecordTableView *m_view;
};
} // namespace

RecordTableView::RecordTableView(QWidget *parent)
    : QTableView(parent)
    , m_records(new RecordTableModel(this))
    , m_order(new QSortFilterProxyModel(this))
{
    setAccessibleName(tr("Records"));
    m_order->setSourceModel(m_records);
    m_order->setSortRole(RecordTableModel::SortRole);
    // A row that is edited stays where it is.
    m_order->setDynamicSortFilter(false);
    setModel(m_order);
    setItemDelegate(new CellDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setSortingEnabled(true);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    horizontalHeader()->setResizeContentsPrecision(50);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this, &RecordTableView::showHeaderMenu);
}

void RecordTableView::show(Document *document, const RecordGroup &group)
{
    const bool isOther = group.kind != m_records->group().kind;
    m_records->show(document, group);
    if (!isOther)
        return;
    resetOrder();
    const QStringList hidden =
        Settings::TableColumns.value().value(QString::number(int(group.kind))).toStringList();
    for (int column = 0; column < m_records->columnCount(); ++column)
        setColumnHidden(column, hidden.contains(m_records->field(column).id()));
    resizeColumnsToContents();
}

void RecordTableView::resetOrder()
{
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_order->sort(-1);
}

void RecordTableView::setColumnShown(int column, bool shown)
{
    setColumnHidden(column, !shown);
    QStringList hidden;
    for (int each = 0; each < m_records->columnCount(); ++each) {
        if (isColumnHidden(each))
            hidden.append(m_records->field(each).id());
    }
    QVariantMap stored = Settings::TableColumns.value();
    stored.insert(QString::number(int(m_records->group().kind)), hidden);
    Settings::TableColumns.setValue(stored);
}

void RecordTableView::showHeaderMenu(const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Order of the &File")), &QAction::triggered, this,
            &RecordTableView::resetOrder);
    menu->addSeparator();
    const int shown = shownColumns().size();
    for (int column = 0; column < m_records->columnCount(); ++column) {
        QAction *action = menu->addAction(m_records->field(column).title());
        action->setCheckable(true);
        action->setChecked(!isColumnHidden(column));
        action->setEnabled(shown > 1 || isColumnHidden(column));
        connect(action, &QAction::toggled, this, [this, column](bool on) { setColumnShown(column, on); });
    }
    menu->popup(horizontalHeader()->viewport()->mapToGlobal(position));
}

QVector<int> RecordTableView::shownColumns() const
{
    QVector<int> columns;
    for (int visual = 0; visual < horizontalHeader()->count(); ++visual) {
        const int column = horizontalHeader()->logicalIndex(visual);
        if (!isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

QModelIndexList RecordTableView::selectedCells() const
{
    QModelIndexList cells;
    for (const QModelIndex &cell : selectionModel()->selectedIndexes()) {
        if (!isColumnHidden(cell.column()))
            cells.append(cell);
    }
    const QHeaderView *columns = horizontalHeader();
    std::sort(cells.begin(), cells.end(), [columns](const QModelIndex &a, const QModelIndex &b) {
        return a.row() != b.row() ? a.row() < b.row()
                                  : columns->visualIndex(a.column()) < columns->visualIndex(b.column());
    });
    return cells;
}

QString RecordTableView::place(const QModelIndex &cell) const
{
    return tr("Row %1, %2")
        .arg(m_records->headerData(cell.row(), Qt::Vertical, Qt::DisplayRole).toString(),
             m_records->field(cell.column()).title());
}

/// The cells are those of the proxy. All that can be refused is before anything changes.
QString RecordTableView::apply(const QVector<QPair<QModelIndex, QString>> &cells, const QString &stepText)
{
    QVector<FieldChange> changes;
    changes.reserve(cells.size());
    QVector<int> places(m_records->columnCount(), 0);
    for (const auto &[shown, text] : cells) {
        const QModelIndex cell = m_order->mapToSource(shown);
        const RecordField &field = m_records->field(cell.column());
        FieldValue value;
        const QString reason = field.parse(text, m_records->value(cell), places[cell.column()]++, value);
        if (!reason.isEmpty())
            return tr("%1: %2").arg(place(cell), reason);
        changes.append({&field, m_records->record(cell.row()), std::move(value)});
    }
    if (!m_records->document() || !m_records->document()->changeFields(changes, stepText))
        return {};
    const auto noted = std::find_if(changes.begin(), changes.end(),
                                    [](const FieldChange &each) { return !each.field->note().isEmpty(); });
    if (noted != changes.end())
        emit told(noted->field->note());
    return {};
}

QString RecordTableView::enter(const QString &text)
{
    QModelIndexList selected = selectedCells();
    if (!selected.contains(currentIndex()))
        selected = {currentIndex()};
    QVector<QPair<QModelIndex, QString>> cells;
    bool isOneColumn = true;
    for (const QModelIndex &cell : qAsConst(selected)) {
        isOneColumn &= cell.column() == selected.first().column();
        cells.append({cell, text});
    }
    if (cells.isEmpty())
        return {};
    const QString step = m_records->field(selected.first().column()).stepText();
    return apply(cells, isOneColumn && !step.isEmpty() ? step : tr("Edit Table"));
}

void RecordTableView::copy() const
{
    const QModelIndexList cells = selectedCells();
    if (cells.isEmpty())
        return;
    // Cells between that are not selected are empty.
    QVector<int> columns = shownColumns();
    columns.erase(std::remove_if(columns.begin(), columns.end(),
                                 [&cells](int column) {
                                     return std::none_of(
                                         cells.begin(), cells.end(),
                                         [column](const auto &cell) { return cell.column() == column; });
                                 }),
                  columns.end());
    DelimitedText::Rows rows;
    int row = -1;
    for (const QModelIndex &cell : cells) {
        if (cell.row() != row) {
            row = cell.row();
            QStringList empty;
            for (int i = 0; i < columns.size(); ++i)
                empty.append(QString());
            rows.append(empty);
        }
        rows.last()[columns.indexOf(cell.column())] = cell.data().toString();
    }
    QGuiApplication::clipboard()->setText(DelimitedText::write(rows, QLatin1Char('\t')));
}

void RecordTableView::paste()
{
    const DelimitedText::Rows rows =
        DelimitedText::read(QGuiApplication::clipboard()->text(), QLatin1Char('\t'));
    QModelIndexList selected = selectedCells();
    if (selected.isEmpty() && currentIndex().isValid())
        selected = {currentIndex()};
    if (rows.isEmpty() || selected.isEmpty())
        return;
    QVector<QPair<QModelIndex, QString>> cells;
    QString reason;
    if (rows.size() == 1 && rows.first().size() == 1) {
        for (const QModelIndex &cell : qAsConst(selected))
            cells.append({cell, rows.first().first()});
    } else {
        const QVector<int> columns = shownColumns();
        int left = columns.size();
        for (const QModelIndex &cell : qAsConst(selected))
            left = std::min(left, columns.indexOf(cell.column()));
        const int top = selected.first().row();
        int width = 0;
        for (const QStringList &row : rows)
            width = std::max(width, row.size());
        if (top + rows.size() > m_order->rowCount() || left + width > columns.size())
            reason = tr("%1 rows of %2 cells do not fit from here on.").arg(rows.size()).arg(width);
        for (int row = 0; reason.isEmpty() && row < rows.size(); ++row) {
            for (int column = 0; column < rows[row].size(); ++column) {
                if (!rows[row][column].isEmpty()) // leaves the cell as it is
                    cells.append({m_order->index(top + row, columns[left + column]), rows[row][column]});
            }
        }
    }
    if (reason.isEmpty())
        reason = apply(cells, tr("Paste Cells"));
    if (!reason.isEmpty())
        emit told(tr("Nothing was pasted. %1").arg(reason));
}

QVector<QStringList> RecordTableView::contents() const
{
    const QVector<int> columns = shownColumns();
    QStringList head{QStringLiteral("record")};
    for (const int column : columns)
        head.append(m_records->field(column).id());
    DelimitedText::Rows rows{head};
    for (int row = 0; row < m_order->rowCount(); ++row) {
        const int source = m_order->mapToSource(m_order->index(row, 0)).row();
        QStringList line{m_records->headerData(source, Qt::Vertical, Qt::DisplayRole).toString()};
        for (const int column : columns)
            line.append(m_records->data(m_records->index(source, column), Qt::EditRole).toString());
        rows.append(line);
    }
    return rows;
}

RecordRef RecordTableView::currentRecord() const
{
    const QModelIndex cell = m_order->mapToSource(currentIndex());
    return cell.isValid() ? RecordRef{m_records->group().kind, m_records->record(cell.row())} : RecordRef();
}
