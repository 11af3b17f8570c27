// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFilePage.h"

AnimFilePage::AnimFilePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);
}

QString AnimFilePage::title() const
{
    return tr("Animation File");
}

void AnimFilePage::recordShown()
{
    m_ui.lblAnimVersion->setNum(model().version);
    m_ui.lblAnimBlocks->setNum(int(model().blocks.size()));
}
