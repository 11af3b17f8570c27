// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameDrop.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

NameDrop::NameDrop(QLineEdit *field, DraggedFile::Kind kind)
    : QObject(field)
    , m_field(field)
    , m_kind(kind)
{
    field->installEventFilter(this);
}

bool NameDrop::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const auto file = DraggedFile::of(*drop->mimeData());
    if (!file || file->kind != m_kind || file->names.isEmpty() || m_field->isReadOnly())
        return QObject::eventFilter(watched, event);
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop)
        QTimer::singleShot(0, this, [this, names = file->names] { ask(names); });
    return true;
}

void NameDrop::ask(const QStringList &names)
{
    if (names.size() == 1) {
        emit dropped(names.first());
        return;
    }
    auto *menu = new QMenu(m_field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString &name : names)
        connect(menu->addAction(QString(name).replace(QLatin1Char('&'), QStringLiteral("&&"))),
                &QAction::triggered, this, [this, name] { emit dropped(name); });
    menu->popup(m_field->mapToGlobal(QPoint(0, m_field->height())));
    menu->setActiveAction(menu->actions().constFirst());
}
