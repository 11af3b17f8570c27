// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshTriIndexPage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshTriIndexPage::SkinnedMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                                 QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshTriIndexPage;
    bind<UC_SkinnedMeshTriIndex>(m_ui.sbSMTIIndex, Whole, tr("Triangle Index"),
                                 &Page::OnSkinMeshTriIndexChanged);
}

QString SkinnedMeshTriIndexPage::title() const
{
    return tr("Surface %1 - Triangle Index %2 Properties")
        .arg(QString::number(index()[0]), QString::number(index()[1]));
}

void SkinnedMeshTriIndexPage::recordShown()
{
    const quint16 *vertex = record();
    if (!vertex)
        return;
    m_ui.hintSMTIIndex->setTarget(IndexTargets::vertex(model(), *vertex));
    m_ui.lblSMTICorner->setText(IndexTargets::triangleCorner(index()[1]));
}
