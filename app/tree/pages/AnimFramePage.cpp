// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFramePage.h"

#include <QtMath>

AnimFramePage::AnimFramePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Frame %2 Properties"), parent)
{
    m_ui.setupUi(this);
    m_ui.sbAnimFrameYaw->setSingleStep(0.1);

    using Page = AnimFramePage;
    bind(m_ui.sbAnimFrameYaw, Fields::FrameYaw, &Page::OnAnimFrameYawChanged);
}

void AnimFramePage::recordShown()
{
    if (const AnimFrame *frame = record())
        m_ui.lblAnimFrameDegrees->setText(
            tr("%1\u00b0").arg(qRadiansToDegrees(double(frame->yawOffset)), 0, 'g', 5));
}
