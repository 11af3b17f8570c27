// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneFrame.h"
#include "Settings.h"
#include "ViewportAction.h"

#include <QMenu>

class QActionGroup;

/// How the viewports draw the model's surfaces: all of them or their edges, what gives them their colors, and
/// what makes them easier to judge. Stored as soon as the user changes it, the same in both viewports. The
/// menu's icon is that of the first choice.
class ShadingMenu : public QMenu
{
    Q_OBJECT

public:
    /// The viewports outlive this; the actions belong to `window`.
    ShadingMenu(const Viewports &viewports, QWidget *window);

    /// Whether the ground fades out; it is not in the menu, but belongs beside that which shows the ground.
    QAction *fadingGround() const { return m_fadingGround; }

private slots:
    void OnShadingChosen(QAction *action);
    void OnLookChosen(QAction *action);

private:
    QAction *addChoice(QActionGroup *group, const char *name, const char *icon, const QString &text,
                       const QString &tip, const QList<QKeySequence> &keys, QWidget *window);
    void addShadings(QWidget *window);
    void addLooks(QWidget *window);
    void addSwitches(QWidget *window);
    QAction *makeSwitch(const char *name, const QString &text, const QString &tip,
                        const QList<QKeySequence> &keys, const SettingKey<bool> &setting,
                        bool SceneFrame::*option, QWidget *window);

    Viewports m_viewports;
    QActionGroup *m_shadings;
    QActionGroup *m_looks;
    QAction *m_look = nullptr; ///< that is on
    QAction *m_fadingGround = nullptr;
};
