// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The folder in which programs of the desktop keep small pictures of files for each other; empty on systems
/// that have none.
QString sharedThumbnails();
