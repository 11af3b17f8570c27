// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"

// clang-format off
#define KORVANE_STATIC_MESH_FIELDS(ROW) \
    ROW(UC_StaticMeshSurfaceMaterial, Records::StaticSurface, Member<&StaticMeshSurface::materialPath>, "Surface Material")
// clang-format on

KORVANE_STATIC_MESH_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the static mesh stack.
inline constexpr auto staticMeshCommands =
    std::tuple_cat(KORVANE_STATIC_MESH_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
