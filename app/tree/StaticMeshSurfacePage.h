// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_StaticMeshSurfacePage.h"

/// The fields of a static mesh surface.
class StaticMeshSurfacePage : public RecordPage<Records::StaticSurface>
{
    Q_OBJECT

public:
    StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

    QString title() const override;

protected:
    void recordShown() override;

private slots:
    void OnStaticMeshSurfaceMaterialChanged() { commit(m_ui.txtSTSurfaceMaterial); }

private:
    Ui::StaticMeshSurfacePage m_ui;
};
