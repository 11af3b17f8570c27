// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Log.h"

#include <QIcon>
#include <QListWidgetItem>
#include <QObject>

#include <array>

class QAction;
class QListWidget;

/// One console row: icon, text, and the severity's number under Qt::UserRole. Equal lines that follow one
/// another are one row, which tells how many.
class ConsoleWidgetItem : public QListWidgetItem
{
public:
    ConsoleWidgetItem(LogSeverity severity, const QIcon &icon, const QString &text);
    LogSeverity severity() const;
    bool isOf(LogSeverity severity, const QString &line) const;
    /// Counts the same line once more.
    void repeat();

private:
    QString m_line;
    int m_count = 1;
};

/// The application-wide log shown in a list widget: rows are appended at the end, and the view follows them
/// as long as it stood at the end. The last rows are kept. GUI thread only.
class ConsoleLog : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostRows = 10000;
    /// So many lines are taken in one turn of the event loop; the rest of a longer burst waits for the next
    /// turns, so that thousands of lines do not hold the window up.
    static constexpr int MostInATurn = 500;

    /// Takes over the look of `list`, which must outlive the log and hold no other rows.
    explicit ConsoleLog(QListWidget *list, QObject *parent = nullptr);

    /// Counts the line and appends its row, or counts it in the last row: now, or behind those that wait.
    /// Fits the sink of core's log.
    void log(LogSeverity severity, const QString &text);
    void info(const QString &text) { log(LogSeverity::Info, text); }
    void warning(const QString &text) { log(LogSeverity::Warning, text); }
    void error(const QString &text) { log(LogSeverity::Error, text); }
    /// Zeroes the counters and empties the list.
    void clear();
    /// Offers this action, which clears the console, in the list's context menu too.
    void setClearAction(QAction *action);

    bool hasErrors() const { return errorCount() > 0; }
    // Lines since the last clear.
    int rowCount() const { return m_counts[Rows]; }
    int infoCount() const { return m_counts[Infos]; }
    int errorCount() const { return m_counts[Errors]; }
    int warningCount() const { return m_counts[Warnings]; }

    /// Copies the selected rows' texts, a line each, in the order of the list. Has the standard copy
    /// shortcut.
    QAction *copyAction() const { return m_copyAction; }

signals:
    void countsChanged();

private slots:
    void on_actionConsoleClear_triggered() { clear(); }
    void OnConsoleCustomContextMenu(const QPoint &position);

private:
    enum Counter { Rows, Infos, Errors, Warnings };

    bool isAtEnd() const;
    void beginTurn();
    void add(LogSeverity severity, const QString &text);
    void append(LogSeverity severity, const QString &text);
    void dropFirst();
    void copySelection() const;
    void updateCopyAction();

    QListWidget *m_list;
    QAction *m_copyAction;
    QAction *m_clearAction = nullptr;
    class RowDelegate *m_delegate;
    std::array<int, 4> m_counts{};
    QVector<LogLine> m_waiting;
    int m_inTurn = 0;             ///< lines taken; all that it can have while others wait
    std::array<QIcon, 3> m_icons; ///< by severity
    bool m_followPending = false;
};
