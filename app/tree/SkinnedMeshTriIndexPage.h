// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshTriIndexPage.h"

/// One triangle index of a skinned mesh surface.
class SkinnedMeshTriIndexPage : public RecordPage<Records::SkinnedTriangleIndex>
{
    Q_OBJECT

public:
    SkinnedMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                            QWidget *parent = nullptr);

    QString title() const override;

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshTriIndexChanged() { commit(m_ui.sbSMTIIndex); }

private:
    Ui::SkinnedMeshTriIndexPage m_ui;
};
