// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ConsoleLog.h"

#include "Icons.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QHash>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTimer>

#include <algorithm>

/// Gives every row one height and the width of the widest line. Rows of one size spare the list from
/// measuring thousands of lines at every change; the common width lets the longest line be read by scrolling.
class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(QListWidget *list)
        : QStyledItemDelegate(list)
        , m_list(list)
    {}

    void include(const QString &text)
    {
        const QString line = oneLine(text);
        // Most of thousands of lines are no longer than one before: to shape each would hold the window up.
        const int letters = sumOfLetters(line);
        if (letters > m_textWidth)
            m_textWidth = std::max(letters, m_list->fontMetrics().horizontalAdvance(line));
    }
    void reset() { m_textWidth = 0; }

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        return oneLine(value.toString());
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        const int margin = 1 + option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option);
        const int height = std::max(option.decorationSize.height(), m_list->fontMetrics().height());
        return {m_textWidth + option.decorationSize.width() + 6 * margin, height + 4};
    }

private:
    static QString oneLine(QString text)
    {
        return text.replace(QLatin1Char('\n'), QStringLiteral(" \u21b5 "));
    }

    int sumOfLetters(const QString &line)
    {
        const QFontMetrics metrics = m_list->fontMetrics();
        if (metrics != m_metrics) {
            m_metrics = metrics;
            m_letterWidths.clear();
        }
        int sum = 0;
        for (const QChar letter : line) {
            const auto known = m_letterWidths.constFind(letter);
            sum += known != m_letterWidths.constEnd()
                       ? *known
                       : *m_letterWidths.insert(letter, metrics.horizontalAdvance(letter));
        }
        return sum;
    }

    QListWidget *m_list;
    QFontMetrics m_metrics = m_list->fontMetrics();
    QHash<QChar, int> m_letterWidths;
    int m_textWidth = 0;
};

ConsoleWidgetItem::ConsoleWidgetItem(LogSeverity severity, const QIcon &icon, const QString &text)
    : QListWidgetItem(icon, text)
    , m_line(text)
{
    setData(Qt::UserRole, int(severity));
}

bool ConsoleWidgetItem::isOf(LogSeverity severity, const QString &line) const
{
    return severity == this->severity() && line == m_line;
}

void ConsoleWidgetItem::repeat()
{
    setText(ConsoleLog::tr("%1 (%2 times)").arg(m_line, QString::number(++m_count)));
}

LogSeverity ConsoleWidgetItem::severity() const
{
    return LogSeverity(data(Qt::UserRole).toInt());
}

ConsoleLog::ConsoleLog(QListWidget *list, QObject *parent)
    : QObject(parent)
    , m_list(list)
    , m_copyAction(new QAction(namedIcon(QStringLiteral("copy")), tr("&Copy"), list))
    , m_delegate(new RowDelegate(list))
    , m_icons{namedIcon(QStringLiteral("error")), namedIcon(QStringLiteral("warning")),
              namedIcon(QStringLiteral("info"))}
{
    m_list->setItemDelegate(m_delegate);
    m_list->setUniformItemSizes(true);
    m_list->setIconSize({16, 16});
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setTextElideMode(Qt::ElideNone);
    m_list->setAccessibleName(tr("Console"));

    m_copyAction->setObjectName(QStringLiteral("actionConsoleCopy"));
    m_copyAction->setShortcut(QKeySequence::Copy);
    m_copyAction->setShortcutContext(Qt::WidgetShortcut);
    m_copyAction->setToolTip(tr("Copy the selected lines"));
    m_list->addAction(m_copyAction);
    connect(m_copyAction, &QAction::triggered, this, &ConsoleLog::copySelection);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &ConsoleLog::updateCopyAction);
    updateCopyAction();
}

void ConsoleLog::log(LogSeverity severity, const QString &text)
{
    if (m_inTurn == 0)
        QTimer::singleShot(0, this, &ConsoleLog::beginTurn);
    if (m_inTurn == MostInATurn) {
        m_waiting.append({severity, text});
        return;
    }
    ++m_inTurn;
    add(severity, text);
    emit countsChanged();
}

void ConsoleLog::beginTurn()
{
    m_inTurn = 0;
    if (m_waiting.isEmpty())
        return;
    m_inTurn = MostInATurn; // what is logged from here on stands behind the lines that wait
    QTimer::singleShot(0, this, &ConsoleLog::beginTurn);
    const QVector<LogLine> lines = m_waiting.mid(0, MostInATurn);
    m_waiting.remove(0, lines.size());
    for (const LogLine &line : lines)
        add(line.severity, line.text);
    emit countsChanged();
}

void ConsoleLog::add(LogSeverity severity, const QString &text)
{
    // Asking for the end would lay the whole list out, so a burst of lines asks once, before its first.
    if (!m_followPending && isAtEnd()) {
        m_followPending = true;
        QTimer::singleShot(0, this, [this] {
            m_followPending = false;
            m_list->scrollToBottom();
        });
    }
    append(severity, text);

    ++m_counts[Rows];
    ++m_counts[severity == LogSeverity::Info ? Infos : severity == LogSeverity::Error ? Errors : Warnings];
}

void ConsoleLog::append(LogSeverity severity, const QString &text)
{
    auto *row = static_cast<ConsoleWidgetItem *>(m_list->item(m_list->count() - 1));
    if (row && row->isOf(severity, text)) {
        row->repeat();
    } else {
        if (m_list->count() == MostRows)
            dropFirst();
        row = new ConsoleWidgetItem(severity, m_icons[size_t(severity)], text);
        m_list->addItem(row);
    }
    m_delegate->include(row->text());
}

/// What is being read stays where it is.
void ConsoleLog::dropFirst()
{
    QScrollBar *bar = m_list->verticalScrollBar();
    const int top = bar->value();
    delete m_list->takeItem(0);
    if (!m_followPending)
        bar->setValue(top - 1);
}

void ConsoleLog::clear()
{
    m_waiting.clear();
    m_list->clear();
    m_delegate->reset();
    m_counts.fill(0);
    updateCopyAction();
    emit countsChanged();
}

void ConsoleLog::setClearAction(QAction *action)
{
    m_clearAction = action;
    connect(action, &QAction::triggered, this, &ConsoleLog::on_actionConsoleClear_triggered);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, &ConsoleLog::OnConsoleCustomContextMenu);
}

void ConsoleLog::OnConsoleCustomContextMenu(const QPoint &position)
{
    QMenu menu(m_list);
    menu.addActions({m_copyAction, m_clearAction});
    menu.exec(m_list->viewport()->mapToGlobal(position));
}

bool ConsoleLog::isAtEnd() const
{
    const QScrollBar *bar = m_list->verticalScrollBar();
    return bar->value() == bar->maximum();
}

void ConsoleLog::copySelection() const
{
    QModelIndexList rows = m_list->selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    lines.reserve(rows.size());
    for (const QModelIndex &row : qAsConst(rows))
        lines << row.data().toString();
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void ConsoleLog::updateCopyAction()
{
    m_copyAction->setEnabled(m_list->selectionModel()->hasSelection());
}
