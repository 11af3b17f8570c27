// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>

#include <array>

class KVOpenGLWidget;
class QAction;
class QObject;
class QString;

using Viewports = std::array<KVOpenGLWidget *, 2>;

/// Makes an action whose keys work while one of the viewports has the focus: letters and digits mean
/// something else in trees and editors. The tool tip names the first of the keys.
QAction *viewportAction(const char *name, const char *icon, const QString &text, const QString &tip,
                        const QList<QKeySequence> &keys, const Viewports &viewports, QObject *parent);
