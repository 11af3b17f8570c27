// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimTranslationPage.h"

AnimTranslationPage::AnimTranslationPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Translation Track %2 - Frame %3 Properties"), parent)
{
    m_ui.setupUi(this);

    using Page = AnimTranslationPage;
    bindVector<UC_AnimTranslation, 3, Page>(Fields::TranslationKey,
                                            {{{m_ui.sbAnimTranslationX, &Page::OnAnimTranslationXChanged},
                                              {m_ui.sbAnimTranslationY, &Page::OnAnimTranslationYChanged},
                                              {m_ui.sbAnimTranslationZ, &Page::OnAnimTranslationZChanged}}});
}
