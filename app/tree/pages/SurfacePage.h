// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MaterialField.h"
#include "PropertyPage.h"
#include "ui_SurfacePage.h"

#include <limits>

/// The fields of a surface, of either kind of mesh.
template <typename RecordType>
class SurfacePage : public RecordPage<RecordType>
{
protected:
    SurfacePage(ModelDocument<typename RecordType::Model> &document, const KVTreeView &tree,
                MaterialCatalog &materials, QWidget *parent)
        : RecordPage<RecordType>(document, tree, PropertyPage::tr("Surface %1 Properties"), parent)
    {
        m_ui.setupUi(this);
        // A longer path in a file must not be cut by being shown.
        m_ui.txtSurfaceMaterial->setMaxLength(std::numeric_limits<int>::max());
        m_material = new MaterialField(m_ui.txtSurfaceMaterial, materials);
        this->connect(m_material, &MaterialField::told, this, &PropertyPage::told);
    }

    template <typename Row>
    void chooseFor(const Row &row)
    {
        this->connect(m_material, &MaterialField::chosen, this,
                      [this, row](const QString &path) { this->giveAll(row, path); });
    }

    void recordShown() override
    {
        const auto *surface = this->record();
        if (!surface)
            return;
        m_ui.lblSurfaceTriangles->setNum(int(surface->triangleIndexes.size() / 3));
        m_material->show(surface->materialPath, this->showsDifferences());
    }

    Ui::SurfacePage m_ui;
    MaterialField *m_material;
};

/// The fields of a skinned mesh surface.
class SkinnedMeshSurfacePage : public SurfacePage<Records::SkinnedSurface>
{
    Q_OBJECT

public:
    SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, MaterialCatalog &materials,
                           QWidget *parent = nullptr);

private slots:
    void OnSkinMeshSurfaceMaterialChanged() { commit(m_ui.txtSurfaceMaterial); }
};

/// The fields of a static mesh surface.
class StaticMeshSurfacePage : public SurfacePage<Records::StaticSurface>
{
    Q_OBJECT

public:
    StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, MaterialCatalog &materials,
                          QWidget *parent = nullptr);

private slots:
    void OnStaticMeshSurfaceMaterialChanged() { commit(m_ui.txtSurfaceMaterial); }
};
