// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshCnodePage.h"

/// One entry of a bone's list of child bones.
class SkinnedMeshCnodePage : public RecordPage<Records::ChildBone>
{
    Q_OBJECT

public:
    SkinnedMeshCnodePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnSkinMeshCnodeChanged() { commit(m_ui.sbCNIIndex); }

private:
    Ui::SkinnedMeshCnodePage m_ui;
};
