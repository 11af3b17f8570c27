// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"
#include "ReplaceCommand.h"
#include "StructureCommand.h"
#include "TransformCommand.h"

// clang-format off
#define KORVANE_STATIC_MESH_COMMANDS(ROW) \
    ROW(UC_StaticMeshBBMin, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bounding Box Min"), Records::StaticMeshRoot, Member<&StaticMesh::bbMin>) \
    ROW(UC_StaticMeshBBMax, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bounding Box Max"), Records::StaticMeshRoot, Member<&StaticMesh::bbMax>) \
    ROW(UC_StaticMeshSurfaceMaterial, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Surface Material"), Records::StaticSurface, Member<&StaticMeshSurface::materialPath>) \
    ROW(UC_StaticMeshTriIndex, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Triangle Index"), Records::StaticTriangleIndex, Itself) \
    ROW(UC_StaticMeshVertPos, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex Position"), Records::StaticVertex, Member<&StaticMeshVertex::position>) \
    ROW(UC_StaticMeshVertNormal, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex Normal"), Records::StaticVertex, Member<&StaticMeshVertex::normal>) \
    ROW(UC_StaticMeshVertUV, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex UV"), Records::StaticVertex, Member<&StaticMeshVertex::uv>) \
    ROW(UC_StaticMeshAddSurface, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Paste Surface"), Records::StaticSurface, RecordKind::StaticSurfaces) \
    ROW(UC_StaticMeshRemoveSurface, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Surface"), Records::StaticSurface, RecordKind::StaticSurfaces) \
    ROW(UC_StaticMeshUpdate, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Update from %1"), Records::StaticMeshRoot) \
    ROW(UC_StaticMeshTakeTheirs, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Take from %1"), Records::StaticMeshRoot) \
    ROW(UC_StaticMeshRotate, RotateCommand, QT_TRANSLATE_NOOP("UndoCommands", "Rotate Vertices"), Records::StaticMeshRoot) \
    ROW(UC_StaticMeshScale, ScaleCommand, QT_TRANSLATE_NOOP("UndoCommands", "Scale Vertices"), Records::StaticMeshRoot)
// clang-format on

KORVANE_STATIC_MESH_COMMANDS(KORVANE_COMMAND)

/// Every command of the static mesh stack.
inline constexpr auto staticMeshCommands =
    std::tuple_cat(KORVANE_STATIC_MESH_COMMANDS(KORVANE_COMMAND_TAG) std::tuple<>());
