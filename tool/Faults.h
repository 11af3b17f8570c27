// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"
#include "ReferenceIds.h"

#include <QString>

#include <optional>
#include <vector>

class Companions;
struct MaterialFolders;

/// One thing that is wrong with a file.
struct Fault
{
    QString severity; ///< "error", "warning" or "note"
    QString rule;     ///< its name for programs
    QString text;
    RecordRef place;      ///< of no kind when the file could not be read
    qint64 notListed = 0; ///< in the line that closes a long list: how many more there are
};

/// What stays the same for all files that are checked.
struct CheckBasis
{
    ReferenceIds ids;
    Companions &companions;
    int listed = 0; ///< faults of one rule in one file
};

/// Reads a file and gives what is wrong with it. An animation is compared with the mesh that belongs to it,
/// if there is one.
std::vector<Fault> faultsOf(const QString &file, const MaterialFolders &folders, const CheckBasis &basis);

/// The kind of a record for programs, such as "bone"; empty for no kind.
QString recordName(RecordKind kind);
/// How many indexes name a record of the kind.
int indexCount(RecordKind kind);
