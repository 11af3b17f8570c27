// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "DocumentPane.h"
#include "Finding.h"

#include <QDockWidget>

#include <array>

class Problems;
class QAction;
class QHBoxLayout;
class QToolButton;

/// The list of what is wrong with the open documents: it leads to the records, and repairs where that leaves
/// no choice.
class ProblemsDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ProblemsDock(QWidget *parent = nullptr);

    /// What is to be listed, and the trees that name its places; both outlive the dock.
    void setProblems(Problems *problems, const DocumentPanes &panes);

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
    DocumentPanes m_panes{};
    std::array<QToolButton *, 3> m_filters{}; ///< by severity
    QAction *m_show = nullptr;
    QAction *m_repair = nullptr;
    QAction *m_repairAll = nullptr;
    QAction *m_copy = nullptr;
};
