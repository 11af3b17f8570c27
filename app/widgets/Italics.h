// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Slants what a widget shows, or not; its font is otherwise what it was.
inline void setItalic(QWidget *widget, bool on)
{
    if (widget->font().italic() == on)
        return;
    QFont font;
    if (on)
        font.setItalic(true);
    widget->setFont(font);
}
