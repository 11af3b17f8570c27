// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Shortcuts.h"

/// The keys that the views take themselves, for the list of shortcuts.
QVector<ShortcutCommand> flightCommands(const QList<QWidget *> &views);
