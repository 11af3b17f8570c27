// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimTranslationPage.h"

/// A key of a translation track.
class AnimTranslationPage : public RecordPage<Records::TranslationKey>
{
    Q_OBJECT

public:
    AnimTranslationPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnAnimTranslationXChanged() { commit(m_ui.sbAnimTranslationX); }
    void OnAnimTranslationYChanged() { commit(m_ui.sbAnimTranslationY); }
    void OnAnimTranslationZChanged() { commit(m_ui.sbAnimTranslationZ); }

private:
    Ui::AnimTranslationPage m_ui;
};
