// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BoneTracks.h"
#include "PoseTransfer.h"
#include "Retiming.h"
#include "RootYaw.h"

#include <atomic>
#include <map>
#include <variant>

/// The animation commands, for several blocks of a file at once.
namespace Motion {
/// Other ids for blocks: what the table says of an id, else the id and the offset.
struct RenumberIds
{
    std::map<qint32, qint32> table;
    qint64 offset = 0;
};

/// Reads "3=103, 4=110". Returns the reason, for the user, why that is no such table.
QString readIdTable(const QString &text, std::map<qint32, qint32> &table);

using Command = std::variant<Resample, Reverse, Trim, Shift, CloseLoop, Mirror, ExtractYaw, ApplyYaw,
                             RemoveUnusedTracks, JoinEqualTracks, RenumberIds>;

/// What becomes of one block.
struct BlockChange
{
    int index = 0;
    AnimBlock block;   ///< where there is no refusal
    QString refusal;   ///< why it stays as it is, for the user
    QStringList words; ///< what changes
    bool changes = false;
};

/// What a command makes of blocks of a file, in their order; numbers of blocks that do not exist are left
/// out. `mesh` is the one that they belong to, null when there is none. The file stays as it is. Ends early,
/// with what there is by then, when `cancelled` says so; `percent`, if given, tells how far it is.
std::vector<BlockChange> changesBy(const Command &command, const AnimFile &file,
                                   const std::vector<int> &blocks, const SkinnedMesh *mesh,
                                   const std::atomic_bool &cancelled, std::atomic_int *percent = nullptr);

/// "Animation 3 (id 10)", by the names of the mesh and the reference tables "Animation 3 (10: walk)".
QString blockTitle(const AnimFile &file, int index, const SkinnedMesh *mesh);
} // namespace Motion
