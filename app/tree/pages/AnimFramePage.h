// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimFramePage.h"

/// The fields of a frame of an animation block.
class AnimFramePage : public RecordPage<Records::BlockFrame>
{
    Q_OBJECT

public:
    AnimFramePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnAnimFrameYawChanged() { commit(m_ui.sbAnimFrameYaw); }

private:
    Ui::AnimFramePage m_ui;
};
