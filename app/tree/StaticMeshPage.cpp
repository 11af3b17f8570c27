// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshPage.h"

#include "StaticMeshCommands.h"

using namespace Parts;

StaticMeshPage::StaticMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);

    using Page = StaticMeshPage;
    bind<UC_StaticMeshBBMin>(m_ui.sbSTBBMinX, X, {}, &Page::OnStaticMeshBBMinXChanged);
    bind<UC_StaticMeshBBMin>(m_ui.sbSTBBMinY, Y, {}, &Page::OnStaticMeshBBMinYChanged);
    bind<UC_StaticMeshBBMin>(m_ui.sbSTBBMinZ, Z, {}, &Page::OnStaticMeshBBMinZChanged);
    bind<UC_StaticMeshBBMax>(m_ui.sbSTBBMaxX, X, {}, &Page::OnStaticMeshBBMaxXChanged);
    bind<UC_StaticMeshBBMax>(m_ui.sbSTBBMaxY, Y, {}, &Page::OnStaticMeshBBMaxYChanged);
    bind<UC_StaticMeshBBMax>(m_ui.sbSTBBMaxZ, Z, {}, &Page::OnStaticMeshBBMaxZChanged);
}

QString StaticMeshPage::title() const
{
    return tr("Static Mesh");
}

void StaticMeshPage::recordShown()
{
    m_ui.lblSTVersion->setNum(model().version);
}
