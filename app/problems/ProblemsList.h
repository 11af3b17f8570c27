// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Problem.h"

#include <QTreeWidget>

#include <set>
#include <tuple>

class RecordSelection;

/// One row of the list of problems. There may be thousands, of which some dozens are seen, so it keeps no
/// texts and icons of its own that can be made when they are asked for.
class ProblemItem : public QTreeWidgetItem
{
public:
    enum Column { SeverityColumn, FileColumn, PlaceColumn, TextColumn, ColumnCount };

    /// `file` is what the file is called; `records`, if it is open, says what the place is.
    ProblemItem(const Problem &problem, const QString &file, const RecordSelection *records);

    const Problem &problem() const { return m_problem; }
    /// What it is about; a row that is made anew is about the same.
    using Subject = std::tuple<int, RecordKind, RecordIndex, QString, int>;
    Subject subject() const;

    /// By the column that the list is sorted by; what is equal there stays in the order of the checks.
    bool operator<(const QTreeWidgetItem &other) const override;

    QVariant data(int column, int role) const override;

private:
    QString cell(int column) const;

    Problem m_problem;
    QString m_file;
    QString m_place; ///< of an open document's
};

/// The rows of the list of problems, with their sentences in full: they are broken into lines.
class ProblemsList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ProblemsList(QWidget *parent = nullptr);

    /// So many rows are scrolled by pixels: that takes the heights of all of them.
    static constexpr int MostMeasured = 300;

    ProblemItem *currentProblem() const { return static_cast<ProblemItem *>(currentItem()); }
    QList<ProblemItem *> selectedProblems() const;
    /// Puts other rows into the list; the current one and the selected ones stay so where they are still
    /// there, or the one at its place comes after it.
    void setProblems(const QList<QTreeWidgetItem *> &items);
    /// What stands in the list while it is empty.
    void setEmptyText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Gives the sentences what the other columns leave, but never so little that a row grows out of sight.
    void stretchSentences();
    void selectAlike(const std::set<ProblemItem::Subject> &wanted);

    QString m_emptyText;
};
