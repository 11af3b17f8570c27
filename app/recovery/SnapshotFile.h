// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Snapshot.h"

#include <vector>

/// One file of the snapshot store.
namespace SnapshotFile {
/// Writes the file in one step. Returns what went wrong; empty when nothing did.
[[nodiscard]] QString write(const QString &path, const Snapshot &snapshot, const std::vector<uchar> &model);
/// Reads what stands before the model and checks that the file is as long as it says. Returns true when it is
/// no snapshot.
[[nodiscard]] bool readHeader(const QString &path, Snapshot *snapshot);
/// Reads the model's bytes and checks all of the file. Returns true when it is no snapshot.
[[nodiscard]] bool readModel(const QString &path, QByteArray *model);
} // namespace SnapshotFile
