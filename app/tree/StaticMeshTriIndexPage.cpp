// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshTriIndexPage.h"

#include "IndexTargets.h"
#include "StaticMeshCommands.h"

using namespace Parts;

StaticMeshTriIndexPage::StaticMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);

    using Page = StaticMeshTriIndexPage;
    bind<UC_StaticMeshTriIndex>(m_ui.sbSTTIIndex, Whole, tr("Triangle Index"),
                                &Page::OnStaticMeshTriIndexChanged);
}

QString StaticMeshTriIndexPage::title() const
{
    return tr("Surface %1 - Triangle Index %2 Properties")
        .arg(QString::number(index()[0]), QString::number(index()[1]));
}

void StaticMeshTriIndexPage::recordShown()
{
    const quint16 *vertex = record();
    if (!vertex)
        return;
    m_ui.hintSTTIIndex->setTarget(IndexTargets::vertex(model(), *vertex));
    m_ui.lblSTTICorner->setText(IndexTargets::triangleCorner(index()[1]));
}
