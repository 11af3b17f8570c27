// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <vector>

class QIODevice;

/// The tables that give the game's numbers a name, in the order in which they are loaded.
enum class ReferenceKind { Actors, Sounds, Animations, Voices, Particles, Impacts };

inline constexpr std::array<ReferenceKind, 6> referenceKinds{
    ReferenceKind::Actors, ReferenceKind::Sounds,    ReferenceKind::Animations,
    ReferenceKind::Voices, ReferenceKind::Particles, ReferenceKind::Impacts};

/// One line of a reference table.
struct ReferenceRow
{
    QString id;   ///< as it stands in the file
    int number;   ///< the id as a number, 0 when it is none
    QString name; ///< every word with a blank before it, so it begins with one
};

/// A reference table in file order. Ids may repeat and need not ascend.
struct ReferenceTable
{
    std::vector<ReferenceRow> rows;

    /// Appends the lines of a text, which is open: an id, blanks or tabs, a name of words. Lines without a
    /// word are left out.
    void append(QIODevice &text);
    /// The same from a file. Returns true on failure, after an error in the log, when it cannot be opened.
    [[nodiscard]] bool read(const QString &path);
};

/// "actors", "sounds" and so on: the file name without its ".txt".
QString referenceName(ReferenceKind kind);

/// The folder whose files take the place of the built-in tables, each for itself. It need not exist.
QString referenceOverrideFolder();
/// The table compiled into the program, and the file that is to be loaded: the overriding one if there is
/// one.
QString builtInReferencePath(ReferenceKind kind);
QString referencePath(ReferenceKind kind);
