// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PageStack.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

PageStack::PageStack(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_count(new QLabel(this))
    , m_pages(new QStackedWidget(this))
{
    m_title->setObjectName(QStringLiteral("lblPageTitle"));
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_count->setObjectName(QStringLiteral("lblPageCount"));
    m_count->setEnabled(false);

    auto *header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    header->addWidget(m_count);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 0);
    layout->addLayout(header);
    layout->addWidget(m_pages, 1);

    auto *empty = new QLabel(tr("Select a record in the tree to see its properties."), m_pages);
    empty->setObjectName(QStringLiteral("lblEmptyPage"));
    empty->setAlignment(Qt::AlignCenter);
    empty->setWordWrap(true);
    empty->setEnabled(false);
    m_pages->addWidget(empty);
}

void PageStack::setTree(KVTreeView *tree)
{
    m_tree = tree;
    connect(tree, &KVTreeView::currentRecordChanged, this, &PageStack::showRecord);
}

void PageStack::addPage(PropertyPage *page)
{
    auto *scroll = new QScrollArea(m_pages);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    scroll->setWidget(page);
    m_pages->addWidget(scroll);
}

void PageStack::showRecord(const RecordRef &record)
{
    for (int i = 1; i < m_pages->count(); ++i) {
        auto *page = static_cast<PropertyPage *>(static_cast<QScrollArea *>(m_pages->widget(i))->widget());
        if (page->kind() != record.kind)
            continue;
        page->showRecord(record.index);
        m_title->setText(page->title());
        const int count = m_tree->selectedCount(record.kind);
        m_count->setText(count > 1 ? tr("%1 selected").arg(count) : QString());
        m_pages->setCurrentIndex(i);
        return;
    }
    m_title->clear();
    m_count->clear();
    m_pages->setCurrentIndex(0);
}
