// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QMenu>

class QActionGroup;

/// How many frames before and after the one that is shown the viewports show behind it, and which. Stored as
/// soon as the user changes it.
class OnionSkinMenu : public QMenu
{
    Q_OBJECT

public:
    /// The viewports outlive this.
    OnionSkinMenu(const Viewports &viewports, QWidget *window);

private slots:
    void OnToggled(bool on);
    void OnFramesChosen(QAction *action);
    void OnStepChosen(QAction *action);

private:
    struct Choice
    {
        int number;
        QString text;
    };
    QActionGroup *addChoices(const char *name, const QList<Choice> &choices, int chosen, const QString &tip,
                             QWidget *window);
    void apply() const;

    Viewports m_viewports;
};
