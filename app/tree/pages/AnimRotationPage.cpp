// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimRotationPage.h"

#include "AxisAngle.h"

AnimRotationPage::AnimRotationPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Rotation Track %2 - Frame %3 Properties"), parent)
{
    m_ui.setupUi(this);
    for (FloatSpinBox *editor :
         {m_ui.sbAnimRotationX, m_ui.sbAnimRotationY, m_ui.sbAnimRotationZ, m_ui.sbAnimRotationW})
        editor->setSingleStep(0.01);

    using Page = AnimRotationPage;
    bindVector<UC_AnimRotation, 4, Page>(Fields::RotationKey,
                                         {{{m_ui.sbAnimRotationX, &Page::OnAnimRotationXChanged},
                                           {m_ui.sbAnimRotationY, &Page::OnAnimRotationYChanged},
                                           {m_ui.sbAnimRotationZ, &Page::OnAnimRotationZChanged},
                                           {m_ui.sbAnimRotationW, &Page::OnAnimRotationWChanged}}});
    bind(m_ui.sbAnimRotationAngle, Fields::RotationKeyAngle, &Page::OnAnimRotationAngleChanged);
}

void AnimRotationPage::recordShown()
{
    if (const QVector4D *key = record())
        m_ui.lblAnimRotationAxis->setText(axisText(axisAngle(*key)));
}
