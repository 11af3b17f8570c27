// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The open dialog's filter of all interchange formats.
QString importFilter();

/// The patterns of all of them in one, as "*.3d *.3ds".
QString importPatterns();

/// Whether a file has the extension of one of them.
bool isImportable(const QString &path);
