// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshVertPage.h"

#include "StaticMeshCommands.h"

using namespace Parts;

StaticMeshVertPage::StaticMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                       QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);
    for (FloatSpinBox *editor : {m_ui.sbSTVertNormalX, m_ui.sbSTVertNormalY, m_ui.sbSTVertNormalZ,
                                 m_ui.sbSTVertUVX, m_ui.sbSTVertUVY})
        editor->setSingleStep(0.01f);

    using Page = StaticMeshVertPage;
    bind<UC_StaticMeshVertPos>(m_ui.sbSTVertPositionX, X, tr("Vertex Position X"),
                               &Page::OnStaticMeshVertPosXChanged);
    bind<UC_StaticMeshVertPos>(m_ui.sbSTVertPositionY, Y, tr("Vertex Position Y"),
                               &Page::OnStaticMeshVertPosYChanged);
    bind<UC_StaticMeshVertPos>(m_ui.sbSTVertPositionZ, Z, tr("Vertex Position Z"),
                               &Page::OnStaticMeshVertPosZChanged);
    bind<UC_StaticMeshVertNormal>(m_ui.sbSTVertNormalX, X, tr("Vertex Normal X"),
                                  &Page::OnStaticMeshVertNormalXChanged);
    bind<UC_StaticMeshVertNormal>(m_ui.sbSTVertNormalY, Y, tr("Vertex Normal Y"),
                                  &Page::OnStaticMeshVertNormalYChanged);
    bind<UC_StaticMeshVertNormal>(m_ui.sbSTVertNormalZ, Z, tr("Vertex Normal Z"),
                                  &Page::OnStaticMeshVertNormalZChanged);
    bind<UC_StaticMeshVertUV>(m_ui.sbSTVertUVX, X, tr("Vertex UV X"), &Page::OnStaticMeshVertUVXChanged);
    bind<UC_StaticMeshVertUV>(m_ui.sbSTVertUVY, Y, tr("Vertex UV Y"), &Page::OnStaticMeshVertUVYChanged);
}

QString StaticMeshVertPage::title() const
{
    return tr("Vertex %1 Properties").arg(index()[0]);
}
