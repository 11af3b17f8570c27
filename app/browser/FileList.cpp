// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileList.h"

#include "FileDelegate.h"
#include "Thumbnails.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

namespace {
constexpr int RestMs = 40;
constexpr int WaitMs = 400; ///< behind a dialog
} // namespace

FileList::FileList(Thumbnails &thumbnails, QWidget *parent)
    : QListView(parent)
    , m_rows(new FileRows(this))
    , m_thumbnails(thumbnails)
    , m_delegate(new FileDelegate(m_thumbnails, this))
{
    setObjectName(QStringLiteral("listFiles"));
    setAccessibleName(tr("Files of game and mod"));
    setModel(m_rows);
    setItemDelegate(m_delegate);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &FileList::wantPictures);
    connect(&m_thumbnails, &Thumbnails::made, this, [this](const QString &path) {
        const int row = m_rows->rowOf(path);
        if (row >= 0)
            update(m_rows->index(row));
    });
}

void FileList::setPictureSide(int pixels)
{
    m_delegate->setPictureSide(pixels);
    scheduleDelayedItemsLayout();
}

void FileList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (!m_rest.isActive())
        m_rest.start(RestMs);
}

void FileList::lookAtPictures()
{
    m_thumbnails.lookAgain();
    m_rest.start(RestMs);
}

void FileList::wantPictures()
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && !modal->isAncestorOf(this)) {
        m_rest.start(WaitMs);
        return;
    }
    m_thumbnails.setSide(qRound(LargePicture * devicePixelRatioF()));
    QStringList paths;
    const QRect room = viewport()->rect();
    for (int row = indexAt(QPoint(1, 1)).row(); row >= 0 && row < m_rows->rowCount(); ++row) {
        if (!isVisible() || !visualRect(m_rows->index(row)).intersects(room))
            break;
        paths += m_rows->fileAt(row).path;
    }
    m_thumbnails.want(paths);
}

const CatalogFile *FileList::current() const
{
    const QModelIndex index = currentIndex();
    return index.isValid() ? &m_rows->fileAt(index.row()) : nullptr;
}

template <typename Change>
void FileList::keepPlace(Change change)
{
    const QString path = current() ? current()->path : QString();
    const QModelIndex top = indexAt(QPoint(0, 0));
    const QString topPath = top.isValid() ? m_rows->fileAt(top.row()).path : QString();
    const int beyond = top.isValid() ? -visualRect(top).top() : 0;
    change();
    const int row = m_rows->rowOf(path);
    if (row >= 0)
        selectionModel()->setCurrentIndex(m_rows->index(row), QItemSelectionModel::ClearAndSelect);
    const int topRow = m_rows->rowOf(topPath);
    if (topRow < 0)
        return;
    scrollTo(m_rows->index(topRow), PositionAtTop);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond);
}

void FileList::setFiles(const CatalogFilesPtr &files)
{
    if (files != m_rows->files())
        keepPlace([&] { m_rows->setFiles(files); });
}

void FileList::setUnused(const UnusedFlagsPtr &unused)
{
    keepPlace([&] { m_rows->setUnused(unused); });
}

void FileList::setFilter(const FileFilter &filter)
{
    const QString path = current() ? current()->path : QString();
    m_rows->setFilter(filter);
    const int row = m_rows->rowOf(path);
    if (row >= 0)
        setCurrentIndex(m_rows->index(row)); // into sight
    else
        scrollToTop();
}

void FileList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QListView::keyPressEvent(event);
}

void FileList::keyboardSearch(const QString &text)
{
    emit typed(text);
}
