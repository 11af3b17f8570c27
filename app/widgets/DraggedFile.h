// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

class QMimeData;

/// A file of game or mod on its way out of a list of them.
struct DraggedFile
{
    enum class Kind {
        Model, ///< or an animation
        Materials,
        Texture,
    };

    Kind kind = Kind::Model;
    QString path;
    QStringList names; ///< by which fields name it; of materials one for each in the file

    /// For other programs it is the file, where that stands in a folder. The caller owns it.
    QMimeData *mime() const;
    /// None where something else is dragged.
    static std::optional<DraggedFile> of(const QMimeData &mime);
    /// What the list has to say that it drags.
    static QString mimeType();
};
