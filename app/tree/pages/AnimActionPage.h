// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimActionPage.h"

/// The fields of a key frame action.
class AnimActionPage : public RecordPage<Records::BlockAction>
{
    Q_OBJECT

public:
    /// `mesh` names the bones.
    AnimActionPage(ModelDocument<Model> &document, const KVTreeView &tree, const SkinnedMeshDocument &mesh,
                   QWidget *parent = nullptr);

protected:
    void recordShown() override;
    /// Every one, the fitting one (if any) first.
    QStringList questions(QLatin1String fitting) const override;

private slots:
    void OnAnimActionEventTypeChanged() { commit(m_ui.cbAnimActionEventType); }
    void OnAnimActionFrameChanged() { commit(m_ui.sbAnimActionFrame); }
    void OnAnimActionNodeChanged() { commit(m_ui.sbAnimActionNode); }
    void OnAnimActionOffsetXChanged() { commit(m_ui.sbAnimActionOffsetX); }
    void OnAnimActionOffsetYChanged() { commit(m_ui.sbAnimActionOffsetY); }
    void OnAnimActionOffsetZChanged() { commit(m_ui.sbAnimActionOffsetZ); }
    void OnAnimActionArgsChanged() { commit(qobject_cast<QWidget *>(sender())); }
    void OnAnimActionPositionToBone();

private:
    void nameArguments(int eventType);

    struct Argument
    {
        QLabel *label;
        FloatSpinBox *editor;
    };

    Ui::AnimActionPage m_ui;
    std::array<Argument, 8> m_arguments{};
};
