// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimFilePage.h"

/// What an animation file says of itself; none of it can be edited.
class AnimFilePage : public RecordPage<Records::AnimFileRoot>
{
    Q_OBJECT

public:
    AnimFilePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private:
    Ui::AnimFilePage m_ui;
};
