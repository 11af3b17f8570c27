// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class Thumbnails;

/// A file as two lines beside its picture: its name, and more quietly below it where it is.
class FileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Where there is no picture, the icon of the file's kind stands for it.
    FileDelegate(const Thumbnails &thumbnails, QObject *parent);

    int pictureSide() const { return m_side; }
    void setPictureSide(int pixels) { m_side = pixels; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Says why there is no picture, too.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    void paintPicture(QPainter &painter, const QRect &square, const QStyleOptionViewItem &row,
                      const QModelIndex &index) const;

    const Thumbnails &m_thumbnails;
    int m_side = 40;
};
