// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QDockWidget>

/// Whoever asks for a dock wants to see it, whatever is before it, and its view has the keys then.
inline void focusWhenAskedFor(QDockWidget &dock, QWidget &view)
{
    QObject::connect(dock.toggleViewAction(), &QAction::triggered, &view, [&dock, &view](bool shown) {
        if (!shown)
            return;
        dock.raise();
        view.setFocus();
    });
}
