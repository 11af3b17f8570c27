// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshPage.h"

StaticMeshPage::StaticMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Static Mesh"), parent)
{
    m_ui.setupUi(this);

    using Page = StaticMeshPage;
    bindVector<UC_StaticMeshBBMin, 3, Page>(Fields::StaticBoxMin,
                                            {{{m_ui.sbSTBBMinX, &Page::OnStaticMeshBBMinXChanged},
                                              {m_ui.sbSTBBMinY, &Page::OnStaticMeshBBMinYChanged},
                                              {m_ui.sbSTBBMinZ, &Page::OnStaticMeshBBMinZChanged}}});
    bindVector<UC_StaticMeshBBMax, 3, Page>(Fields::StaticBoxMax,
                                            {{{m_ui.sbSTBBMaxX, &Page::OnStaticMeshBBMaxXChanged},
                                              {m_ui.sbSTBBMaxY, &Page::OnStaticMeshBBMaxYChanged},
                                              {m_ui.sbSTBBMaxZ, &Page::OnStaticMeshBBMaxZChanged}}});
}

void StaticMeshPage::recordShown()
{
    m_ui.lblSTVersion->setNum(model().version);
}
