// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

#include <functional>

/// A material's path as one to compare by, "materials/mat_house/colormap": its file is found in any case, the
/// material in it by its very name.
QString materialKey(const QString &path);

class ModFiles;

/// What the meshes among the game's files name, as materialKey() has it. Meshes that have not
/// changed since they were asked for last are not read again. Ends early, with what it has, when `goesOn`
/// returns false. Any thread may call it.
QSet<QString> materialsOfGame(const ModFiles &game, const std::function<bool()> &goesOn);
