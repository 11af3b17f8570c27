// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "LookMenu.h"

#include "Look.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace {
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Look)
};

QString toolTipOf(Look look)
{
    switch (look) {
    case Look::Desktop:
        return Texts::tr("Use the colors of the desktop");
    case Look::Light:
        return Texts::tr("Show dark text on light windows");
    case Look::Dark:
        break;
    }
    return Texts::tr("Show light text on dark windows");
}

QString textOf(Look look)
{
    switch (look) {
    case Look::Desktop:
        return Texts::tr("&Desktop");
    case Look::Light:
        return Texts::tr("&Light");
    case Look::Dark:
        break;
    }
    return Texts::tr("D&ark");
}
} // namespace

void addLookMenu(QMenu &menu)
{
    QMenu *looks = menu.addMenu(Texts::tr("Loo&k"));
    looks->setObjectName(QStringLiteral("menuLook"));
    auto *group = new QActionGroup(looks);
    for (const Look look : allLooks) {
        auto *action = new QAction(textOf(look), &menu);
        action->setObjectName(QStringLiteral("actionLook_") + lookKey(look));
        action->setToolTip(toolTipOf(look));
        action->setStatusTip(toolTipOf(look));
        action->setCheckable(true);
        group->addAction(action);
        looks->addAction(action);
        QObject::connect(action, &QAction::triggered, [look] { chooseLook(look); });
    }
    // The options can change it too.
    QObject::connect(looks, &QMenu::aboutToShow, group,
                     [group] { group->actions().at(int(chosenLook()))->setChecked(true); });
    group->actions().at(int(chosenLook()))->setChecked(true);
}
