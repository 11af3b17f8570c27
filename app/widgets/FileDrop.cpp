// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileDrop.h"

#include "DraggedFile.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {
/// A texture of game or mod is for fields, not to be opened.
QStringList localFiles(const QMimeData &mime)
{
    QStringList paths;
    if (const auto dragged = DraggedFile::of(mime)) {
        if (dragged->kind != DraggedFile::Kind::Texture)
            paths.append(dragged->path);
        return paths;
    }
    for (const QUrl &url : mime.urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}
} // namespace

FileDrop::FileDrop(QWidget *widget)
    : QObject(widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const QStringList paths = localFiles(*drop->mimeData());
    if (paths.isEmpty())
        return false;
    // Whatever was meant: the files stay where they are.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, paths] { emit dropped(paths); });
    return true;
}
