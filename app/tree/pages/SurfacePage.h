// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SurfacePage.h"

#include <limits>

/// The fields of a surface, of either kind of mesh.
template <typename RecordType>
class SurfacePage : public RecordPage<RecordType>
{
protected:
    SurfacePage(ModelDocument<typename RecordType::Model> &document, const KVTreeView &tree, QWidget *parent)
        : RecordPage<RecordType>(document, tree, PropertyPage::tr("Surface %1 Properties"), parent)
    {
        m_ui.setupUi(this);
        // A longer path in a file must not be cut by being shown.
        m_ui.txtSurfaceMaterial->setMaxLength(std::numeric_limits<int>::max());
    }

    void recordShown() override
    {
        if (const auto *surface = this->record())
            m_ui.lblSurfaceTriangles->setNum(int(surface->triangleIndexes.size() / 3));
    }

    Ui::SurfacePage m_ui;
};

/// The fields of a skinned mesh surface.
class SkinnedMeshSurfacePage : public SurfacePage<Records::SkinnedSurface>
{
    Q_OBJECT

public:
    SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnSkinMeshSurfaceMaterialChanged() { commit(m_ui.txtSurfaceMaterial); }
};

/// The fields of a static mesh surface.
class StaticMeshSurfacePage : public SurfacePage<Records::StaticSurface>
{
    Q_OBJECT

public:
    StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnStaticMeshSurfaceMaterialChanged() { commit(m_ui.txtSurfaceMaterial); }
};
