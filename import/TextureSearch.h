// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The file that a model at `modelPath` means by the texture's name that it stores: where the name says, seen
/// from the model's folder and from a folder "textures" in it; or under its bare name there, which is what is
/// left of a path from another computer. Each is tried with the stored extension first and as .png then; it
/// and its folder may be written in other letters, and as a link is ("my%20wall.png"). Empty when there is
/// none.
QString foundTexture(const QString &modelPath, const QString &stored);
