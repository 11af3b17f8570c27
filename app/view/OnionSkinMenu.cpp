// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OnionSkinMenu.h"

#include "KVOpenGLWidget.h"
#include "Settings.h"

#include <QActionGroup>

OnionSkinMenu::OnionSkinMenu(const Viewports &viewports, QWidget *window)
    : QMenu(tr("&Onion Skin"), window)
    , m_viewports(viewports)
{
    QAction *shown =
        viewportAction("actionOnionSkin", nullptr, tr("&Onion Skin"),
                       tr("Show the frames before (blue) and after (orange) behind the one that is shown"),
                       {QKeySequence(QStringLiteral("Shift+O"))}, viewports, window);
    shown->setCheckable(true);
    shown->setChecked(Settings::OnionSkin.value());
    addAction(shown);
    connect(shown, &QAction::triggered, this, &OnionSkinMenu::OnToggled);

    addSeparator();
    QList<Choice> frames{{1, tr("&1 Frame on Either Side")}};
    for (int number = 2; number <= OnionSkin::MostFrames; ++number)
        frames.append({number, tr("&%1 Frames on Either Side").arg(number)});
    connect(addChoices("actionOnionSkinFrames", frames, Settings::OnionSkinFrames.value(),
                       tr("So many frames before and after are shown"), window),
            &QActionGroup::triggered, this, &OnionSkinMenu::OnFramesChosen);

    addSeparator();
    const QList<Choice> steps{{1, tr("&Every Frame")},
                              {2, tr("Every &Second Frame")},
                              {5, tr("Every &Fifth Frame")},
                              {10, tr("Every &Tenth Frame")}};
    connect(addChoices("actionOnionSkinStep", steps, Settings::OnionSkinStep.value(),
                       tr("So far apart are the frames that are shown"), window),
            &QActionGroup::triggered, this, &OnionSkinMenu::OnStepChosen);
}

QActionGroup *OnionSkinMenu::addChoices(const char *name, const QList<Choice> &choices, int chosen,
                                        const QString &tip, QWidget *window)
{
    auto *group = new QActionGroup(this);
    for (const Choice &choice : choices) {
        const QByteArray own = name + QByteArray::number(choice.number);
        QAction *action = viewportAction(own, nullptr, choice.text, tip, {}, m_viewports, window);
        action->setCheckable(true);
        action->setData(choice.number);
        action->setChecked(choice.number == chosen);
        group->addAction(action);
        addAction(action);
    }
    return group;
}

void OnionSkinMenu::apply() const
{
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setOnionSkin({Settings::OnionSkin.value(), Settings::OnionSkinFrames.value(),
                                Settings::OnionSkinStep.value()});
}

void OnionSkinMenu::OnToggled(bool on)
{
    Settings::OnionSkin.setValue(on);
    apply();
}

void OnionSkinMenu::OnFramesChosen(QAction *action)
{
    Settings::OnionSkinFrames.setValue(action->data().toInt());
    apply();
}

void OnionSkinMenu::OnStepChosen(QAction *action)
{
    Settings::OnionSkinStep.setValue(action->data().toInt());
    apply();
}
