// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceTable.h"

#include <QByteArray>

/// The text of a built-in reference table. Its rows are placeholders, openly so, apart from those that anyone
/// may know; its size and order are those of the game's own table.
QByteArray makeReferenceText(ReferenceKind kind);
