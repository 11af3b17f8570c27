// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct SkinnedMesh;

/// What a bone's symbolFlags byte says: type in bits 0-1, side in bit 2, part in bits 6-7. Bits 3-5 carry
/// no meaning and are to be kept.
struct BoneSymbol
{
    int type; ///< 0 body, 1 head, 2 arm, 3 leg
    int side; ///< 0 left, 1 right
    int part; ///< 0 to 3, see bonePartNames()
};

BoneSymbol boneSymbol(qint8 symbolFlags);

/// The four symbol types, in order.
const QStringList &boneTypeNames();
/// The names of parts 0 to 3 of a symbol type (0 to 3).
const QStringList &bonePartNames(int type);
/// The names of impact types 0 to 9.
const QStringList &impactTypeNames();

/// The names of key frame event types 0 to 34, each with its number in front. Several are the same on
/// purpose.
const QStringList &eventTypeNames();

/// "Left Upper Arm" and the like; the side stands before every part. Empty for an index beyond the bones.
QString boneSymbolName(const SkinnedMesh &mesh, int nodeIndex);
