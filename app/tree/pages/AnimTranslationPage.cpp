// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimTranslationPage.h"

#include "AnimCommands.h"

using namespace Parts;

AnimTranslationPage::AnimTranslationPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Translation Track %2 - Frame %3 Properties"), parent)
{
    m_ui.setupUi(this);

    using Page = AnimTranslationPage;
    bindVector<UC_AnimTranslation, Page>(tr("Animation Translation %1"),
                                         {{m_ui.sbAnimTranslationX, &Page::OnAnimTranslationXChanged},
                                          {m_ui.sbAnimTranslationY, &Page::OnAnimTranslationYChanged},
                                          {m_ui.sbAnimTranslationZ, &Page::OnAnimTranslationZChanged}});
}
