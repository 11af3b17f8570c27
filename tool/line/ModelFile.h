// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileContent.h"

/// Those files of a folder and of all below it that are `wanted`, sorted; of a file, itself.
QStringList filesBelow(const QString &path, bool (*wanted)(const QString &path));
