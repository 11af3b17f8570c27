// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QObject>

/// Has the keys of the keypad reach the actions of the viewports that they are given to. Where the system is
/// X11, the toolkit takes a keypad's digit for any other digit when it looks for the action of a key.
class KeypadShortcuts : public QObject
{
public:
    /// The viewports outlive this.
    KeypadShortcuts(const Viewports &viewports, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
