// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_StaticMeshVertPage.h"

/// The fields of a static mesh vertex.
class StaticMeshVertPage : public RecordPage<Records::StaticVertex>
{
    Q_OBJECT

public:
    StaticMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

    QString title() const override;

private slots:
    void OnStaticMeshVertPosXChanged() { commit(m_ui.sbSTVertPositionX); }
    void OnStaticMeshVertPosYChanged() { commit(m_ui.sbSTVertPositionY); }
    void OnStaticMeshVertPosZChanged() { commit(m_ui.sbSTVertPositionZ); }
    void OnStaticMeshVertNormalXChanged() { commit(m_ui.sbSTVertNormalX); }
    void OnStaticMeshVertNormalYChanged() { commit(m_ui.sbSTVertNormalY); }
    void OnStaticMeshVertNormalZChanged() { commit(m_ui.sbSTVertNormalZ); }
    void OnStaticMeshVertUVXChanged() { commit(m_ui.sbSTVertUVX); }
    void OnStaticMeshVertUVYChanged() { commit(m_ui.sbSTVertUVY); }

private:
    Ui::StaticMeshVertPage m_ui;
};
