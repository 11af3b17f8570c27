// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Terminal.h"

#include <QTextCodec>

void Terminal::prepare()
{
    // In the C locale too.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void Terminal::restore() {}

void Terminal::prepareToDraw()
{
    // Without a display this platform still answers questions for the help.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString Terminal::advice()
{
    return QStringLiteral("Without one, run it as 'xvfb-run korvane-tool render ...' (package xvfb).");
}

QString Terminal::drawingNeeds()
{
    return QStringLiteral("Needs a display: without one, run it with xvfb-run.");
}
