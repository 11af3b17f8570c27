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

/// Turns the wheel over a widget as the window system tells of it: made-up events give no focus.
inline void turnWheel(QWidget *over, int delta, Qt::KeyboardModifiers keys = {})
{
    QWidget *window = over->window();
    const QPoint place = over->mapTo(window, over->rect().center());
    QWheelEvent event(place, window->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}

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
