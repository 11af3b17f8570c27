// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFinder.h"

#include <QDockWidget>

#include <array>

class ConditionBox;
class FoundList;
class KVTreeView;
class QAction;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class ReplaceBar;

/// Finds records of the open documents by conditions over their fields, lists them, leads to them, and gives
/// fields of all or one of them another value.
class FindDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit FindDock(QWidget *parent = nullptr);

    /// The actions of the menu.
    struct Actions
    {
        QAction *find;
        QAction *next;
        QAction *previous;
    };
    /// Trees and documents in the order of their kinds; all outlive the dock.
    void setDocuments(const std::array<Document *, 3> &documents, const std::array<KVTreeView *, 3> &trees,
                      const Actions &actions);
    /// The document in front; null for none.
    void setCurrent(const Document *document);

signals:
    /// The record is to be shown, and to have the keys.
    void activated(DocumentType type, const RecordRef &record);
    /// The record is to be shown; the keys stay where they are.
    void shown(DocumentType type, const RecordRef &record);
    /// The document is to come to the front.
    void documentWanted(DocumentType type);
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QBoxLayout *findRow();
    QPushButton *addButton(QBoxLayout *row, const char *name, const QString &text, const QString &tip,
                           void (FindDock::*slot)());
    void connectParts();
    void open();
    void leave();
    void search();
    void enter();
    void onChanged();
    void updateState();
    QString emptyText() const;
    void step(int by);
    void next() { step(1); }
    void previous() { step(-1); }
    void showRow(int row, bool withKeys);
    void selectAllHits();
    void replaceCurrent();
    void replaceAll();
    bool isReady();
    RecordFinder::Outcome replaceThese(const std::vector<int> &hits);

    QLabel *m_find;
    ConditionBox *m_condition;
    QComboBox *m_scope;
    QLabel *m_count;
    ReplaceBar *m_replacement;
    QPushButton *m_selectAll = nullptr;
    FoundList *m_list = nullptr;
    RecordFinder *m_finder = nullptr;
    std::array<KVTreeView *, 3> m_trees{};
    Actions m_actions{};
    const Document *m_current = nullptr;
    QTimer m_pause;
};
