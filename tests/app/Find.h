// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Settings.h"
#include "TestSupport.h"

#include <QtWidgets>

/// What belongs to a window, by its object name.
template <typename Part>
Part *find(const QWidget &window, const char *name)
{
    auto *part = window.findChild<Part *>(QLatin1String(name));
    if (!part)
        qFatal("no %s", name);
    return part;
}

/// The game, the mod and all that the program keeps, in a folder of a test's own. The net is left alone.
struct ProgramFolder : TestFolder
{
    ProgramFolder()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(path()));
        TestSupport::useSettingsHome(folder());
        Settings::GamePath.setValue(path());
        Settings::OutputDir.setValue(path());
        Settings::Updates.setValue(false);
    }
};

/// A part of a widget as it really is on the screen.
inline QImage onScreen(const QWidget *widget, const QRect &part)
{
    const QPoint corner = widget->mapToGlobal(part.topLeft());
    QScreen *screen = QGuiApplication::primaryScreen();
    return screen->grabWindow(0, corner.x(), corner.y(), part.width(), part.height()).toImage();
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
