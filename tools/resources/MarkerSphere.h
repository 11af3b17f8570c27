// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "StaticMesh.h"

/// The viewport's wire sphere marker: radius 1, z up, centred on the origin. Every edge of a globe of 48
/// segments and 12 rings (48 x 12 along the meridians, 48 x 11 along the parallels) is a thin quad that faces
/// outwards, so that it shows as filled triangles, without line drawing.
StaticMesh makeMarkerSphere();
