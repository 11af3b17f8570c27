// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "Finding.h"

#include <QDockWidget>

#include <array>

class Document;
class Problems;
class QAction;
class QHBoxLayout;
class QToolButton;
class RecordSelection;

/// The list of what is wrong with the open documents: it leads to the records, and repairs where that leaves
/// no choice.
class ProblemsDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ProblemsDock(QWidget *parent = nullptr);

    /// A document, and what names its records.
    struct Listed
    {
        const Document *document;
        const RecordSelection *records;
    };

    /// What is to be listed, of documents in the order of their kinds; everything outlives the dock.
    void setProblems(Problems *problems, const std::array<Listed, 3> &documents);

signals:
    /// The record is to be shown.
    void activated(DocumentType type, const RecordRef &record);

private:
    void createFilters();
    void createActions();
    QAction *addAction(const char *name, const QString &text, const char *iconName,
                       void (ProblemsDock::*slot)());
    void fill();
    void updateActions();
    void showCurrent();
    void repairSelected();
    void repairAllOfKind();
    void copySelected();

    class ProblemsList *m_list;
    QHBoxLayout *m_buttons;
    Problems *m_problems = nullptr;
    std::array<Listed, 3> m_documents{};
    std::array<QToolButton *, 3> m_filters{}; ///< by severity
    QAction *m_show = nullptr;
    QAction *m_repair = nullptr;
    QAction *m_repairAll = nullptr;
    QAction *m_copy = nullptr;
};
