// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportFilter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

QString importFilter()
{
    return QStringLiteral(
        "Wavefront Object (*.obj);;Collada (*.dae);;Autodesk (*.fbx);;Blender 3D (*.blend);;3ds Max 3DS "
        "(*.3ds);;"
        "3ds Max ASE (*.ase);;glTF (*.gltf, *.glb);;Industry Foundation Classes (IFC/Step) (*.ifc);;XGL "
        "(*.xgl, "
        "*.zgl);;Stanford Polygon Library (*.ply);;AutoCAD DXF (*.dxf);;LightWave (.lwo);;LightWave Scene "
        "(*.lws);;Modo (*.lxo);;Stereolithography (*.stl);;DirectX X (*.x);;AC3D (*.ac);;Milkshape 3D "
        "(*.ms3d);;TrueSpace (*.cob, *.scn);;Biovision BVH (*.bvh);;CharacterStudio Motion (*.csm);;Ogre XML "
        "(*.xml);;Irrlicht Mesh (*.irrmesh);;Irrlicht Scene (*.irr);;Quake I (*.mdl);;Quake II "
        "(*.md2);;Quake III "
        "Mesh (*.md3);;Quake III Map/BSP (*.pk3);;Return to Castle Wolfenstein (*.mdc);;Doom 3 "
        "(*.md5*);;Valve "
        "Model (*.smd, *.vta);;Open Game Engine Exchange (*.ogex);;Unreal (*.3d);;BlitzBasic 3D "
        "(*.b3d);;Quick3D (*.q3d, *.q3s);;Neutral File Format (*.nff);;Sense8 WorldToolKit (*.nff);;Object "
        "File "
        "Format (*.off);;PovRAY Raw (*.raw);;Terragen Terrain (*.ter);;3D GameStudio (3DGS) (*.mdl);;3D "
        "GameStudio (3DGS) Terrain (*.hmp);;Izware Nendo (*.ndo);;All (*.*)");
}

namespace {
QSet<QString> importExtensions()
{
    // Quick3D files of which the filter does not tell.
    QSet<QString> found{QStringLiteral("q3o")};
    static const QRegularExpression pattern(QStringLiteral("\\.([a-z0-9]+)"));
    for (auto match = pattern.globalMatch(importFilter()); match.hasNext();)
        found.insert(match.next().captured(1));
    return found;
}
} // namespace

QString importChoices()
{
    QStringList patterns;
    for (const QString &extension : importExtensions())
        patterns += QStringLiteral("*.") + extension + QLatin1String(extension == "md5" ? "*" : "");
    patterns.sort();
    return QCoreApplication::translate("ImportFilter", "All models (%1)")
               .arg(patterns.join(QLatin1Char(' '))) +
           QStringLiteral(";;") + importFilter();
}

bool isImportable(const QString &path)
{
    static const QSet<QString> extensions = importExtensions();
    const QString suffix = QFileInfo(path).suffix().toLower();
    return extensions.contains(suffix) || suffix.startsWith(QLatin1String("md5"));
}
