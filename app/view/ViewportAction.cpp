// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewportAction.h"

#include "Icons.h"
#include "KVOpenGLWidget.h"

#include <QAction>

QAction *viewportAction(const char *name, const char *icon, const QString &text, const QString &tip,
                        const QList<QKeySequence> &keys, const Viewports &viewports, QObject *parent)
{
    auto *action = new QAction(text, parent);
    action->setObjectName(QLatin1String(name));
    if (icon)
        action->setIcon(namedIcon(QLatin1String(icon)));
    action->setStatusTip(tip);
    action->setToolTip(tip);
    if (!keys.isEmpty()) {
        action->setShortcuts(keys);
        action->setAutoRepeat(false); // what is held, as at the end of a drag, switches nothing to and fro
        action->setShortcutContext(Qt::WidgetShortcut);
        for (KVOpenGLWidget *viewport : viewports)
            viewport->addAction(action);
    }
    return action;
}
