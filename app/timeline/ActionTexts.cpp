// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTexts.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "NameTables.h"

#include <QCoreApplication>

QString eventText(int eventType)
{
    return eventTypeNames().value(eventType, QString::number(eventType));
}

QString actionText(int index, const AnimAction &action)
{
    QString text = QCoreApplication::translate("TrackSlider", "Action %1: %2")
                       .arg(QString::number(index), eventText(action.eventType));
    for (int i = 0; i < int(action.args.size()); ++i) {
        const char *label = eventArgument(action.eventType, i).label;
        const float value = action.args[size_t(i)];
        if (!label && value == 0.0f)
            continue;
        QString name = QCoreApplication::translate("TrackSlider", "Arg %1").arg(i + 1);
        if (label)
            name = QCoreApplication::translate("EventArguments", label);
        text += QStringLiteral(", %1 %2").arg(name).arg(double(value));
        const QString called = argumentName(action.eventType, i, value);
        if (!called.isEmpty())
            text += QStringLiteral(" (%1)").arg(called);
    }
    return text;
}

QString moveText(int index, const AnimAction &action, int to, int others)
{
    QString text = QCoreApplication::translate("ActionTrack", "Frame %1 → %2")
                       .arg(QString::number(action.frame), QString::number(to)) +
                   QLatin1Char('\n') + actionText(index, action);
    if (others > 0)
        text +=
            QLatin1Char('\n') + QCoreApplication::translate("ActionTrack", "and %n more", nullptr, others);
    return text;
}
