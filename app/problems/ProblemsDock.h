// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModProblems.h"

#include <QDockWidget>

#include <array>

class Document;
class DocumentFiles;
class Problems;
class ProblemItem;
class QAction;
class QHBoxLayout;
class QToolButton;
class RecordSelection;

/// The list of what is wrong with the open documents and, where that is wanted, with all files of the mod: it
/// leads to the records, repairs where that leaves no choice, and silences rules.
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
    void setProblems(Problems *problems, const std::array<Listed, 3> &documents, DocumentFiles &files);
    /// Switches the check of the whole mod; the dock comes up with what that finds.
    QAction *wholeMod() const { return m_whole; }

signals:
    /// The record is to be shown.
    void activated(DocumentType type, const RecordRef &record);
    /// A material file is to be opened.
    void materialsWanted(const QString &path);
    /// Something for the status bar.
    void told(const QString &text);

private:
    void createFilters();
    void createActions();
    void createModActions();
    QAction *addAction(const char *name, const QString &text, const char *iconName,
                       void (ProblemsDock::*slot)());
    QToolButton *addButton(QAction *action);
    void fill();
    void updateActions();
    void showCurrent();
    void repairSelected();
    void repairAllOfKind();
    void copySelected();
    void toggleWhole();
    QString emptyText(bool isHiding) const;
    static bool canBeHeard(const ProblemItem *item);
    static bool canSilence(const ProblemItem *item);
    QVector<ModProblems::Silence> selectedRules(bool (*takes)(const ProblemItem *)) const;
    void silence(bool everywhere);
    void silenceForFile() { silence(false); }
    void silenceEverywhere() { silence(true); }
    void hear();
    void tellDone(const QString &failure, const QString &done);

    class ProblemsList *m_list;
    QHBoxLayout *m_buttons;
    QHBoxLayout *m_signs = nullptr;
    Problems *m_problems = nullptr;
    std::array<Listed, 3> m_documents{};
    std::array<QToolButton *, 3> m_filters{}; ///< by severity
    QAction *m_show = nullptr;
    QAction *m_repair = nullptr;
    QAction *m_repairAll = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_silenceFile = nullptr;
    QAction *m_silenceAll = nullptr;
    QAction *m_hear = nullptr;
    QAction *m_whole = nullptr;
    QAction *m_showSilenced = nullptr;
    QToolButton *m_silencedButton = nullptr;
    class FileOpener *m_opener = nullptr;
};
