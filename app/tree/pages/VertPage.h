// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_VertPage.h"

/// The fields of a vertex, of either kind of mesh.
template <typename RecordType>
class VertPage : public RecordPage<RecordType>
{
protected:
    /// `place`: in which space the vertex has its position.
    VertPage(ModelDocument<typename RecordType::Model> &document, const KVTreeView &tree,
             const QString &place, QWidget *parent)
        : RecordPage<RecordType>(document, tree, PropertyPage::tr("Vertex %1 Properties"), parent)
    {
        m_ui.setupUi(this);
        m_ui.lblVertPositionX->setToolTip(place);
        for (FloatSpinBox *editor : {m_ui.sbVertPositionX, m_ui.sbVertPositionY, m_ui.sbVertPositionZ})
            editor->setToolTip(place);
        for (FloatSpinBox *editor :
             {m_ui.sbVertNormalX, m_ui.sbVertNormalY, m_ui.sbVertNormalZ, m_ui.sbVertUVX, m_ui.sbVertUVY})
            editor->setSingleStep(0.01);
    }

    Ui::VertPage m_ui;
};

/// The fields of a skinned mesh vertex.
class SkinnedMeshVertPage : public VertPage<Records::SkinnedVertex>
{
    Q_OBJECT

public:
    SkinnedMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnSkinMeshVertPositionXChanged() { commit(m_ui.sbVertPositionX); }
    void OnSkinMeshVertPositionYChanged() { commit(m_ui.sbVertPositionY); }
    void OnSkinMeshVertPositionZChanged() { commit(m_ui.sbVertPositionZ); }
    void OnSkinMeshVertNormalXChanged() { commit(m_ui.sbVertNormalX); }
    void OnSkinMeshVertNormalYChanged() { commit(m_ui.sbVertNormalY); }
    void OnSkinMeshVertNormalZChanged() { commit(m_ui.sbVertNormalZ); }
    void OnSkinMeshVertUVXChanged() { commit(m_ui.sbVertUVX); }
    void OnSkinMeshVertUVYChanged() { commit(m_ui.sbVertUVY); }
    void OnSkinMeshVertNodeIndexChanged() { commit(m_ui.sbVertNodeIndex); }
};

/// The fields of a static mesh vertex.
class StaticMeshVertPage : public VertPage<Records::StaticVertex>
{
    Q_OBJECT

public:
    StaticMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnStaticMeshVertPosXChanged() { commit(m_ui.sbVertPositionX); }
    void OnStaticMeshVertPosYChanged() { commit(m_ui.sbVertPositionY); }
    void OnStaticMeshVertPosZChanged() { commit(m_ui.sbVertPositionZ); }
    void OnStaticMeshVertNormalXChanged() { commit(m_ui.sbVertNormalX); }
    void OnStaticMeshVertNormalYChanged() { commit(m_ui.sbVertNormalY); }
    void OnStaticMeshVertNormalZChanged() { commit(m_ui.sbVertNormalZ); }
    void OnStaticMeshVertUVXChanged() { commit(m_ui.sbVertUVX); }
    void OnStaticMeshVertUVYChanged() { commit(m_ui.sbVertUVY); }
};
