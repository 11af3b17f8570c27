// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_StaticMeshPage.h"

/// The fields of a static mesh that belong to no record.
class StaticMeshPage : public RecordPage<Records::StaticMeshRoot>
{
    Q_OBJECT

public:
    StaticMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnStaticMeshBBMinXChanged() { commit(m_ui.sbSTBBMinX); }
    void OnStaticMeshBBMinYChanged() { commit(m_ui.sbSTBBMinY); }
    void OnStaticMeshBBMinZChanged() { commit(m_ui.sbSTBBMinZ); }
    void OnStaticMeshBBMaxXChanged() { commit(m_ui.sbSTBBMaxX); }
    void OnStaticMeshBBMaxYChanged() { commit(m_ui.sbSTBBMaxY); }
    void OnStaticMeshBBMaxZChanged() { commit(m_ui.sbSTBBMaxZ); }

private:
    Ui::StaticMeshPage m_ui;
};
