// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

struct SkinnedMesh;

/// What the bones and animations of a model are called, for which the game's formats have no place. It stands
/// beside the model as NAME.names.json: {"bones": {"0": "hips"}, "animations": {"12": "walk"}}, and the game
/// does not look at it.
struct ModelNames
{
    QHash<int, QString> bones;         ///< by number; only those that have a name
    QHash<qint32, QString> animations; ///< by id; only those that have a name

    static constexpr int LongestName = 128; ///< characters
    /// Whether a text can be a name: in one line, with nothing around it.
    static bool isName(const QString &text);

    bool isEmpty() const { return bones.isEmpty() && animations.isEmpty(); }
    bool operator==(const ModelNames &other) const
    {
        return bones == other.bones && animations == other.animations;
    }

    /// Those that a mesh holds, and giving it such; bones that it does not have are left out.
    static ModelNames of(const SkinnedMesh &mesh);
    void giveTo(SkinnedMesh &mesh) const;

    /// Where the names of the model stand that is saved at `modelPath`.
    static QString pathFor(const QString &modelPath);

    /// The file's bytes, in the order of the numbers.
    QByteArray toJson() const;
    /// Takes what `bytes` hold. Returns true on failure, with the names unchanged. Names that are too long or
    /// hold no character that can be seen are left out.
    [[nodiscard]] bool fromJson(const QByteArray &bytes);

    /// Reads the file; a file that is not there leaves no names. Returns true on failure; `errorText`, if
    /// given, then says why.
    [[nodiscard]] bool read(const QString &path, QString *errorText = nullptr);
};

/// What an animation is called by the model's own names, else by the reference table; empty when by neither.
QString animationName(const SkinnedMesh &mesh, qint32 id);
/// "12: head"; "12: Left Upper Arm" for a bone without a name of its own. Empty when there is no such bone.
QString boneTitle(const SkinnedMesh &mesh, int bone);
