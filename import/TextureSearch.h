// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The file that a model at `modelPath` means by the texture's name that it stores: where the name says, seen
/// from the model's folder and from a folder "textures" in it; or under its bare name there, which is what is
/// left of a path from another computer. Each is tried with the stored extension first and as .png then; it
/// and its folder may be written in other letters, and as a link is ("my%20wall.png"). Empty when there is
/// none.
QString foundTexture(const QString &modelPath, const QString &stored);

/// Textures that a process which may not look everywhere has from one that may.
struct TexturesElsewhere
{
    QHash<QString, QString> files; ///< by the name that a model stores
    QStringList wanted;            ///< the names of more of which no file was found, or could be opened
};

/// The same where `elsewhere` is to be asked, too.
QString foundTexture(const QString &modelPath, const QString &stored, TexturesElsewhere &elsewhere);
/// So many names are looked up that a process gave which may have made them up.
constexpr int MostTextureNames = 256;
/// The pictures that a model means by the first of these names.
QHash<QString, QString> picturesNamed(const QString &modelPath, const QStringList &names);
