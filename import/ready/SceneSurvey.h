// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"
#include "SceneSummary.h"

/// Looks what the model file `modelPath` holds, without making anything of it. It has succeeded when no error
/// line was added.
///
/// The size is that of the vertices at rest, with the transforms of their nodes and bones. The proposed scale
/// takes a height (of what has no bones: a greatest extent) that people, animals and things have in meters or
/// in centimeters for such, a person having about 200 units; whatever is neither becomes as large as a
/// person, and a file that was exported from here keeps its units.
///
/// Like an import, this may end the process.
[[nodiscard]] SceneSummary surveyScene(const QString &modelPath, ImportMessages &messages);
