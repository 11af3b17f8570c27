// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimRotationPage.h"

/// A key of a rotation track, as a quaternion and as an axis and an angle.
class AnimRotationPage : public RecordPage<Records::RotationKey>
{
    Q_OBJECT

public:
    AnimRotationPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnAnimRotationXChanged() { commit(m_ui.sbAnimRotationX); }
    void OnAnimRotationYChanged() { commit(m_ui.sbAnimRotationY); }
    void OnAnimRotationZChanged() { commit(m_ui.sbAnimRotationZ); }
    void OnAnimRotationWChanged() { commit(m_ui.sbAnimRotationW); }
    void OnAnimRotationAngleChanged() { commit(m_ui.sbAnimRotationAngle); }

private:
    Ui::AnimRotationPage m_ui;
};
