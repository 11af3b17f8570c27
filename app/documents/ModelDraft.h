// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

/// What Document::drafter() makes of a model.
template <typename Model>
std::vector<uchar> draftOf(const Model &model);
