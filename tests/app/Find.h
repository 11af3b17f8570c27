// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Settings.h"
#include "TestSupport.h"

#include <QImage>
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

/// Settings of a test's own, with its folder for the game and the mod. The net is left alone.
inline void useFolder(const QTemporaryDir &folder)
{
    TestSupport::useSettingsHome(folder);
    Settings::GamePath.setValue(folder.path());
    Settings::OutputDir.setValue(folder.path());
    Settings::Updates.setValue(false);
}

inline int countPixels(const QImage &image, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}
