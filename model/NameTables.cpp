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

const QStringList &eventTypeNames()
{
    static const QStringList names{
        "00: Play Sound",
        "01: Spawn Particle",
        "02: Normal Damage",
        "03: Normal Radial Damage",
        "04: Normal Radial Damage",
        "05: Trigger (Unused)",
        "06: Unblock Region",
        "07: Block Region",
        "08: Spawn Particle",
        "09: Screen Flash",
        "10: Spawn Trails (Unused)",
        "11: Fire Weapon Particle",
        "12: Shake Screen Sinwave",
        "13: Shake Screen Random",
        "14: Display Text (Unused)",
        "15: Violent Radial Damage",
        "16: Violent Radial Damage",
        "17: Explosive Radial Damage",
        "18: Explosive Radial Damage",
        "19: Extreme Radial Damage",
        "20: Extreme Radial Damage",
        "21: Gamepad Rumble (Unused)",
        "22: User/Script Event",
        "23: Play Sound On Model",
        "24: Spawn Particle On Model",
        "25: Explosive Ground Radial Damage",
        "26: Turn On Hot Point",
        "27: Turn Off Hot Point",
        "28: Spawn Actor",
        "29: Play Material Sound",
        "30: Play Voice",
        "31: Play Looping Sound",
        "32: Stop Looping Sound",
        "33: Nuke Explosion",
        "34: Delete Actor",
    };
    return names;
}

QString boneSymbolName(const SkinnedMesh &mesh, int nodeIndex)
{
    if (nodeIndex < 0 || nodeIndex >= int(mesh.nodes.size()))
        return {};
    const BoneSymbol symbol = boneSymbol(mesh.nodes[size_t(nodeIndex)].symbolFlags);
    return QLatin1String(symbol.side == 0 ? "Left " : "Right ") + bonePartNames(symbol.type).at(symbol.part);
}
