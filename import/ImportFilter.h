// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The open dialog's filter of all interchange formats.
QString importFilter();

/// The same behind one of all of them together.
QString importChoices();

/// Whether a file has the extension of one of them.
bool isImportable(const QString &path);
