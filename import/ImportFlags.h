// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The post-processing that the reading library is asked for, in its own bits.
namespace ImportFlags {
/// Join identical vertices, triangulate, remove components, remove redundant materials, sort by type.
constexpr quint32 StaticMesh = 0x901A;
/// The same, and limit the bone weights of a vertex.
constexpr quint32 SkinnedMesh = 0x921A;

constexpr quint32 GenerateNormals = 0x40;
constexpr quint32 FlipUV = 0x800000;
constexpr quint32 FlipWindingOrder = 0x1000000;
} // namespace ImportFlags
