// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameTables.h"

#include "SkinnedMesh.h"

BoneSymbol boneSymbol(qint8 symbolFlags)
{
    const auto bits = quint8(symbolFlags);
    return {bits & 3, (bits >> 2) & 1, bits >> 6};
}

const QStringList &boneTypeNames()
{
    static const QStringList names{"Body", "Head", "Arm", "Leg"};
    return names;
}

const QStringList &bonePartNames(int type)
{
    static const QStringList names[4] = {
        {"Root", "Upper Torso", "Lower Torso", "Pelvis"},
        {"Skull", "Face", "Chin", "Neck"},
        {"Shoulder", "Upper Arm", "Lower Arm", "Hand"},
        {"Hip", "Upper Leg", "Lower Leg", "Foot"},
    };
    return names[type & 3];
}

const QStringList &impactTypeNames()
{
    static const QStringList names{"Default",        "Water",       "Metal", "Stone", "Flesh",
                                   "Creature Flesh", "Water Flesh", "Lava",  "Slime", "Forcefield"};
    return names;
}

QString boneSymbolName(const SkinnedMesh &mesh, int nodeIndex)
{
    if (nodeIndex < 0 || nodeIndex >= int(mesh.nodes.size()))
        return {};
    const BoneSymbol symbol = boneSymbol(mesh.nodes[size_t(nodeIndex)].symbolFlags);
    return QLatin1String(symbol.side == 0 ? "Left " : "Right ") + bonePartNames(symbol.type).at(symbol.part);
}
