// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FlightCommands.h"

#include "FlightKeys.h"

#include <QCoreApplication>

QVector<ShortcutCommand> flightCommands(const QList<QWidget *> &views)
{
    const QString group = QCoreApplication::translate("FlightKeys", "3D View");
    QVector<ShortcutCommand> commands;
    for (const FlightKey &each : FlightKeys) {
        if (each.name)
            commands.append({{},
                             group,
                             QCoreApplication::translate("FlightKeys", each.name),
                             {QKeySequence(each.key)},
                             {},
                             views});
    }
    return commands;
}
