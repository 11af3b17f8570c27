// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ExportNames.h"
#include "GltfExtras.h"
#include "GltfScene.h"
#include "GltfText.h"
#include "UpdateAccount.h"

#include <QHash>

#include <vector>

/// Which surface of a mesh a material of the file is; those that are none become surfaces behind the others.
template <typename Mesh>
class SurfaceNumbers
{
public:
    SurfaceNumbers(const GltfScene &scene, Mesh &mesh, UpdateAccount &account)
        : m_scene(scene)
        , m_mesh(mesh)
        , m_account(account)
        , m_numbers(scene.materials.size() + 1, -1)
        , m_noted(scene.materials.size(), -1)
    {
        // A copy of a material has its extras too.
        for (size_t i = 0; i < scene.materials.size(); ++i) {
            const auto surface = GltfExtras::read<GltfExtras::Surface>(scene.materials[i].extras);
            if (!surface || surface->number < 0 || size_t(surface->number) >= mesh.surfaces.size())
                continue;
            m_noted[i] = surface->number;
            const int before = m_originals.value(surface->number, -1);
            if (before < 0 ||
                (isCopyName(scene.materials[size_t(before)].name) && !isCopyName(scene.materials[i].name)))
                m_originals.insert(surface->number, int(i));
        }
    }

    size_t of(int material)
    {
        int &number = m_numbers[size_t(material + 1)];
        if (number < 0)
            number = find(material);
        return size_t(number);
    }

private:
    static constexpr size_t MostSurfaces = 4096;

    int find(int material)
    {
        const GltfScene::Material none;
        const GltfScene::Material &each = material < 0 ? none : m_scene.materials[size_t(material)];
        const int number = material < 0 ? -1 : m_noted[size_t(material)];
        const bool isCopy = number >= 0 && m_originals.value(number) != material;
        const int known = number >= 0 && !isCopy ? number : isCopy ? -1 : findByName(material);
        if (known >= 0)
            return known;
        if (m_mesh.surfaces.size() >= MostSurfaces)
            return 0;
        m_mesh.surfaces.push_back({pathFor(each.name), {}});
        m_account.add(UpdateLine::New, Gltf::tr("Surface %1: '%2'")
                                           .arg(QString::number(m_mesh.surfaces.size() - 1),
                                                m_mesh.surfaces.back().materialPath));
        return int(m_mesh.surfaces.size()) - 1;
    }

    /// Materials of one name get numbers behind it from other programs: the second one is the second surface.
    int findByName(int material) const
    {
        if (material < 0)
            return -1;
        const auto nameOf = [&](int index) {
            return withoutCopyNumber(m_scene.materials[size_t(index)].name);
        };
        const QString name = nameOf(material);
        int before = 0;
        for (int i = 0; i < material; ++i)
            before += nameOf(i) == name ? 1 : 0;
        for (size_t i = 0; i < m_mesh.surfaces.size() && !name.isEmpty(); ++i) {
            const QString &path = m_mesh.surfaces[i].materialPath;
            if ((path == name || path.endsWith(QLatin1Char('/') + name)) && before-- == 0)
                return int(i);
        }
        return -1;
    }

    /// Beside the materials of the others, in characters that a model can hold.
    QString pathFor(const QString &name) const
    {
        QString usable;
        for (const QChar each : name)
            usable +=
                each.isSpace() || each.unicode() < ' ' || each.unicode() > 255 ? QLatin1Char('_') : each;
        if (usable.isEmpty() || m_mesh.surfaces.empty() || usable.contains(QLatin1Char('/')))
            return usable.isEmpty() ? QStringLiteral("_white") : usable;
        const QString &beside = m_mesh.surfaces[0].materialPath;
        return beside.left(beside.lastIndexOf(QLatin1Char('/')) + 1) + usable;
    }

    const GltfScene &m_scene;
    Mesh &m_mesh;
    UpdateAccount &m_account;
    std::vector<int> m_numbers;  ///< by material, the one of none first
    std::vector<int> m_noted;    ///< surfaces by material, as the export noted them; -1: none
    QHash<int, int> m_originals; ///< materials by surface that they are
};
