// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"
#include "ReferenceTable.h"

#include <QLatin1String>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <vector>

/// The kinds of things that files name. The numbers stand in caches: they never change.
enum class NamedKind : quint8 {
    Material = 0,  ///< of a surface, "FOLDER/FILE/MATERIAL"
    Texture = 1,   ///< of a material's sampler, relative to the folders of game and mod
    Animation = 2, ///< an animation's id
    Sound = 3,
    Particle = 4,
    Actor = 5,
    Voice = 6,
    Impact = 7, ///< of a bone, or of an event
    Damage = 8, ///< 256 times the damage
};

inline constexpr std::array<NamedKind, 9> namedKinds{
    NamedKind::Material, NamedKind::Texture, NamedKind::Animation, NamedKind::Sound, NamedKind::Particle,
    NamedKind::Actor,    NamedKind::Voice,   NamedKind::Impact,    NamedKind::Damage};

/// The kind for programs, such as "sound", and the kind of such a name.
QLatin1String namedKindId(NamedKind kind);
std::optional<NamedKind> namedKindOf(const QString &id);
/// Whether things of the kind are named by paths; the others are by numbers.
inline bool isNamedByPath(NamedKind kind)
{
    return kind == NamedKind::Material || kind == NamedKind::Texture;
}
/// The table that says what its numbers are called; none for paths and for damage.
std::optional<ReferenceKind> tableOf(NamedKind kind);

/// How paths are compared: in one case, with forward slashes.
QString pathKey(const QString &path);

/// A thing that a record names.
struct NamedThing
{
    NamedKind kind;
    double number = 0.0; ///< whole, but for damage
    QString path{};      ///< as the record has it

    bool isSame(const NamedThing &other) const
    {
        return kind == other.kind &&
               (isNamedByPath(kind) ? pathKey(path) == pathKey(other.path) : number == other.number);
    }
    /// The path, or the number as it is typed.
    QString text() const;

    /// What an argument of an event names, or a field for it: as the game takes the number, of damage as it
    /// is and of all else without its fraction. None for what is no number, or beyond the range of ints.
    static std::optional<NamedThing> ofArgument(NamedKind kind, float value);
    /// Reads "sound:1234" or "material:materials/knight/skin". None where the kind or the number is none.
    static std::optional<NamedThing> parse(const QString &text);
};

using NamedVisitor = std::function<void(const NamedThing &)>;

/// What a record names, one thing after the other; nothing for a record that is not there or names nothing.
/// Groups name nothing themselves.
void visitNamed(const SkinnedMesh &mesh, const RecordRef &record, const NamedVisitor &visit);
void visitNamed(const AnimFile &file, const RecordRef &record, const NamedVisitor &visit);
void visitNamed(const StaticMesh &mesh, const RecordRef &record, const NamedVisitor &visit);

/// Calls `visit` with every record of a model that may name something.
void visitNamingRecords(const SkinnedMesh &mesh, const std::function<void(const RecordRef &)> &visit);
void visitNamingRecords(const AnimFile &file, const std::function<void(const RecordRef &)> &visit);
void visitNamingRecords(const StaticMesh &mesh, const std::function<void(const RecordRef &)> &visit);
