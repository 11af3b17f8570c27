// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

/// A wooden crate of 80 units with brass corners; one material.
Figure makeCrate();
/// A street lantern of 190 units; material 0 is its post, material 1 its light.
Figure makeStreetLantern();
