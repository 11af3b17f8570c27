// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// What belongs to a window, by its object name.
template <typename Part>
Part *find(const QWidget &window, const char *name)
{
    auto *part = window.findChild<Part *>(QLatin1String(name));
    if (!part)
        qFatal("no %s", name);
    return part;
}
