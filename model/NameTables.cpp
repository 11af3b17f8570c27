// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameTables.h"

#include "SkinnedMesh.h"

#include <QCoreApplication>

namespace {
struct Names
{
    Q_DECLARE_TR_FUNCTIONS(NameTables)
};
} // namespace

BoneSymbol boneSymbol(qint8 symbolFlags)
{
    const auto bits = quint8(symbolFlags);
    return {bits & 3, (bits >> 2) & 1, bits >> 6};
}

const QStringList &boneTypeNames()
{
    static const QStringList names{Names::tr("Body"), Names::tr("Head"), Names::tr("Arm"), Names::tr("Leg")};
    return names;
}

const QStringList &bonePartNames(int type)
{
    static const QStringList names[4] = {
        {Names::tr("Root"), Names::tr("Upper Torso"), Names::tr("Lower Torso"), Names::tr("Pelvis")},
        {Names::tr("Skull"), Names::tr("Face"), Names::tr("Chin"), Names::tr("Neck")},
        {Names::tr("Shoulder"), Names::tr("Upper Arm"), Names::tr("Lower Arm"), Names::tr("Hand")},
        {Names::tr("Hip"), Names::tr("Upper Leg"), Names::tr("Lower Leg"), Names::tr("Foot")},
    };
    return names[type & 3];
}

const QStringList &impactTypeNames()
{
    static const QStringList names{Names::tr("Default"),     Names::tr("Water"), Names::tr("Metal"),
                                   Names::tr("Stone"),       Names::tr("Flesh"), Names::tr("Creature Flesh"),
                                   Names::tr("Water Flesh"), Names::tr("Lava"),  Names::tr("Slime"),
                                   Names::tr("Forcefield")};
    return names;
}

const QStringList &eventTypeNames()
{
    static const QStringList names{
        Names::tr("00: Play Sound"),
        Names::tr("01: Spawn Particle"),
        Names::tr("02: Normal Damage"),
        Names::tr("03: Normal Radial Damage"),
        Names::tr("04: Normal Radial Damage"),
        Names::tr("05: Trigger (Unused)"),
        Names::tr("06: Unblock Region"),
        Names::tr("07: Block Region"),
        Names::tr("08: Spawn Particle"),
        Names::tr("09: Screen Flash"),
        Names::tr("10: Spawn Trails (Unused)"),
        Names::tr("11: Fire Weapon Particle"),
        Names::tr("12: Shake Screen Sinwave"),
        Names::tr("13: Shake Screen Random"),
        Names::tr("14: Display Text (Unused)"),
        Names::tr("15: Violent Radial Damage"),
        Names::tr("16: Violent Radial Damage"),
        Names::tr("17: Explosive Radial Damage"),
        Names::tr("18: Explosive Radial Damage"),
        Names::tr("19: Extreme Radial Damage"),
        Names::tr("20: Extreme Radial Damage"),
        Names::tr("21: Gamepad Rumble (Unused)"),
        Names::tr("22: User/Script Event"),
        Names::tr("23: Play Sound On Model"),
        Names::tr("24: Spawn Particle On Model"),
        Names::tr("25: Explosive Ground Radial Damage"),
        Names::tr("26: Turn On Hot Point"),
        Names::tr("27: Turn Off Hot Point"),
        Names::tr("28: Spawn Actor"),
        Names::tr("29: Play Material Sound"),
        Names::tr("30: Play Voice"),
        Names::tr("31: Play Looping Sound"),
        Names::tr("32: Stop Looping Sound"),
        Names::tr("33: Nuke Explosion"),
        Names::tr("34: Delete Actor"),
    };
    return names;
}

QString boneSymbolName(const SkinnedMesh &mesh, int nodeIndex)
{
    if (nodeIndex < 0 || nodeIndex >= int(mesh.nodes.size()))
        return {};
    const BoneSymbol symbol = boneSymbol(mesh.nodes[size_t(nodeIndex)].symbolFlags);
    const QString part = bonePartNames(symbol.type).at(symbol.part);
    return (symbol.side == 0 ? Names::tr("Left %1") : Names::tr("Right %1")).arg(part);
}
