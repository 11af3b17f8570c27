// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PageStack.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {
/// How many records an edit reaches, in words; empty for one.
QString selectedText(RecordKind kind, int count)
{
    if (count < 2)
        return {};
    switch (kind) {
    case RecordKind::ChildBone:
        return PageStack::tr("%n child bone indexes selected", nullptr, count);
    case RecordKind::HotPoint:
        return PageStack::tr("%n hot points selected", nullptr, count);
    case RecordKind::Bone:
    case RecordKind::AnimBone:
        return PageStack::tr("%n bones selected", nullptr, count);
    case RecordKind::SkinnedSurface:
    case RecordKind::StaticSurface:
        return PageStack::tr("%n surfaces selected", nullptr, count);
    case RecordKind::SkinnedTriangleIndex:
    case RecordKind::StaticTriangleIndex:
        return PageStack::tr("%n triangle indexes selected", nullptr, count);
    case RecordKind::SkinnedVertex:
    case RecordKind::StaticVertex:
        return PageStack::tr("%n vertices selected", nullptr, count);
    case RecordKind::AnimBlock:
        return PageStack::tr("%n animations selected", nullptr, count);
    case RecordKind::AnimFrame:
        return PageStack::tr("%n frames selected", nullptr, count);
    case RecordKind::TranslationKey:
        return PageStack::tr("%n translation keys selected", nullptr, count);
    case RecordKind::RotationKey:
        return PageStack::tr("%n rotation keys selected", nullptr, count);
    case RecordKind::AnimAction:
        return PageStack::tr("%n key frame actions selected", nullptr, count);
    default:
        return {};
    }
}
} // namespace

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
    m_title->setWordWrap(true);
    m_count->setObjectName(QStringLiteral("lblPageCount"));

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
        m_count->setText(selectedText(record.kind, m_tree->selectedCount(record.kind)));
        m_pages->setCurrentIndex(i);
        return;
    }
    m_title->clear();
    m_count->clear();
    m_pages->setCurrentIndex(0);
}
