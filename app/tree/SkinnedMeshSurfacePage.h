// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshSurfacePage.h"

/// The fields of a skinned mesh surface.
class SkinnedMeshSurfacePage : public RecordPage<Records::SkinnedSurface>
{
    Q_OBJECT

public:
    SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

    QString title() const override;

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshSurfaceMaterialChanged() { commit(m_ui.txtSMSurfaceMaterial); }

private:
    Ui::SkinnedMeshSurfacePage m_ui;
};
