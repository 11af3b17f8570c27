// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"

#include <QPointer>
#include <QStackedWidget>

class QLabel;

/// The property pages of one document: page 0 is empty, the others in the order they were added. Shows the
/// page of the tree's current record, titled.
class PageStack : public QWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    /// The tree to follow; it outlives the stack.
    void setTree(KVTreeView *tree);
    void addPage(PropertyPage *page);

    /// The bone that was waited for; see boneWanted().
    void takeBone(int bone);
    void giveUpPicking() { setPicking(nullptr); }

    /// Shows other numbers than the current record's, by the ids of their fields, until it is refreshed.
    void showNumbers(const QVector<QPair<QString, double>> &numbers);

    /// Shows the current record anew: what it says by numbers may be called otherwise.
    void refresh();

    QStackedWidget *pages() const { return m_pages; }

    /// Wide enough that no page has to be scrolled sideways.
    QSize minimumSizeHint() const override;

signals:
    /// A click on a bone in the view is waited for, or not any more.
    void boneWanted(bool on);
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// One of the pages behind the empty one.
    PropertyPage *page(int index) const;
    QAction *addFieldAction(const char *id, const QString &text, const QKeySequence &keys);
    FieldName *focusedName() const;
    void setPicking(FieldName *name);
    void showRecord(const RecordRef &record);
    void showPage(int index);

    KVTreeView *m_tree = nullptr;
    QLabel *m_title;
    QLabel *m_count;
    QStackedWidget *m_pages;
    QAction *m_choose;
    QAction *m_pick;
    QPointer<FieldName> m_picking; ///< what a bone is waited for
};
