// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFilePage.h"

AnimFilePage::AnimFilePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Animation File"), parent)
{
    m_ui.setupUi(this);
}

void AnimFilePage::recordShown()
{
    m_ui.lblAnimVersion->setNum(model().version);
    m_ui.lblAnimBlocks->setNum(int(model().blocks.size()));
}
