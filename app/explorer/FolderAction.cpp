// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderAction.h"

#include "Icons.h"
#include "Shortcuts.h"

#include <QAction>
#include <QCoreApplication>
#include <QWidget>

QAction *addFolderAction(QWidget &explorer, const FolderNames &names, const char *name, const char *icon,
                         const QString &text, const QString &toolTip)
{
    auto *action = new QAction(namedIcon(QLatin1String(icon)), text, &explorer);
    action->setObjectName(names.of("action%1") + QLatin1String(name));
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, QStringLiteral("actionFolder") + QLatin1String(name),
                 QCoreApplication::translate("FolderExplorer", "Folders"), QString());
    explorer.addAction(action);
    return action;
}
