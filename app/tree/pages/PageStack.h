// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"

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

    /// Shows the current record anew: what it says by numbers may be called otherwise.
    void refresh();

    QStackedWidget *pages() const { return m_pages; }

    /// Wide enough that no page has to be scrolled sideways.
    QSize minimumSizeHint() const override;

signals:
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    /// One of the pages behind the empty one.
    PropertyPage *page(int index) const;
    void showRecord(const RecordRef &record);
    void showPage(int index);

    KVTreeView *m_tree = nullptr;
    QLabel *m_title;
    QLabel *m_count;
    QStackedWidget *m_pages;
};
