// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimTranslationPage.h"

#include "AnimCommands.h"

using namespace Parts;

AnimTranslationPage::AnimTranslationPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);

    using Page = AnimTranslationPage;
    bind<UC_AnimTranslation>(m_ui.sbAnimTranslationX, X, tr("Animation Translation X"),
                             &Page::OnAnimTranslationXChanged);
    bind<UC_AnimTranslation>(m_ui.sbAnimTranslationY, Y, tr("Animation Translation Y"),
                             &Page::OnAnimTranslationYChanged);
    bind<UC_AnimTranslation>(m_ui.sbAnimTranslationZ, Z, tr("Animation Translation Z"),
                             &Page::OnAnimTranslationZChanged);
}

QString AnimTranslationPage::title() const
{
    return tr("Anim %1 - Translation Track %2 - Frame %3 Properties")
        .arg(QString::number(index()[0]), QString::number(index()[1]), QString::number(index()[2]));
}
