// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFile.h"

#include <QJsonObject>

/// What there is to say of a file's content, for programs. Lengths are in model units, times in seconds; a
/// number that is not finite is null.
QJsonObject describe(const FileContent &content);

/// The same for people: lines of a title and a text.
QString descriptionText(const QJsonObject &description);
