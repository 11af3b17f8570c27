// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"

// clang-format off
#define KORVANE_STATIC_MESH_FIELDS(ROW) \
    ROW(UC_StaticMeshBBMin, Records::StaticMeshRoot, Member<&StaticMesh::bbMin>, "Bounding Box Min") \
    ROW(UC_StaticMeshBBMax, Records::StaticMeshRoot, Member<&StaticMesh::bbMax>, "Bounding Box Max") \
    ROW(UC_StaticMeshSurfaceMaterial, Records::StaticSurface, Member<&StaticMeshSurface::materialPath>, "Surface Material") \
    ROW(UC_StaticMeshTriIndex, Records::StaticTriangleIndex, Itself, "Triangle Index") \
    ROW(UC_StaticMeshVertPos, Records::StaticVertex, Member<&StaticMeshVertex::position>, "Vertex Position") \
    ROW(UC_StaticMeshVertNormal, Records::StaticVertex, Member<&StaticMeshVertex::normal>, "Vertex Normal") \
    ROW(UC_StaticMeshVertUV, Records::StaticVertex, Member<&StaticMeshVertex::uv>, "Vertex UV")
// clang-format on

KORVANE_STATIC_MESH_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the static mesh stack.
inline constexpr auto staticMeshCommands =
    std::tuple_cat(KORVANE_STATIC_MESH_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
