// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimActionPage.h"

#include "EventArguments.h"
#include "IndexTargets.h"
#include "NameTables.h"

AnimActionPage::AnimActionPage(ModelDocument<Model> &document, const KVTreeView &tree,
                               const SkinnedMeshDocument &mesh, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Key Frame Action %2 Properties"), parent)
{
    m_ui.setupUi(this);
    m_ui.cbAnimActionEventType->setNames(eventTypeNames());

    connect(&mesh, &Document::replaced, this, &AnimActionPage::showNames);
    connect(&mesh, &Document::recordsChanged, this, &AnimActionPage::showNames);

    using Page = AnimActionPage;
    bind(m_ui.cbAnimActionEventType, Fields::ActionEvent, &Page::OnAnimActionEventTypeChanged);
    bind(m_ui.sbAnimActionFrame, Fields::ActionFrame, &Page::OnAnimActionFrameChanged);
    bind(m_ui.sbAnimActionNode, Fields::ActionBone, &Page::OnAnimActionNodeChanged);
    bindVector<UC_AnimActionOffset, 3, Page>(
        Fields::ActionOffset, {{{m_ui.sbAnimActionOffsetX, &Page::OnAnimActionOffsetXChanged},
                                {m_ui.sbAnimActionOffsetY, &Page::OnAnimActionOffsetYChanged},
                                {m_ui.sbAnimActionOffsetZ, &Page::OnAnimActionOffsetZChanged}}});
    m_arguments = {{{m_ui.lblAnimActionArg1, m_ui.sbAnimActionArg1},
                    {m_ui.lblAnimActionArg2, m_ui.sbAnimActionArg2},
                    {m_ui.lblAnimActionArg3, m_ui.sbAnimActionArg3},
                    {m_ui.lblAnimActionArg4, m_ui.sbAnimActionArg4},
                    {m_ui.lblAnimActionArg5, m_ui.sbAnimActionArg5},
                    {m_ui.lblAnimActionArg6, m_ui.sbAnimActionArg6},
                    {m_ui.lblAnimActionArg7, m_ui.sbAnimActionArg7},
                    {m_ui.lblAnimActionArg8, m_ui.sbAnimActionArg8}}};
    std::array<QPair<FloatSpinBox *, void (Page::*)()>, 8> editors;
    for (size_t i = 0; i < editors.size(); ++i)
        editors[i] = {m_arguments[i].editor, &Page::OnAnimActionArgsChanged};
    bindVector<UC_AnimActionArgs, 8, Page>(Fields::ActionArgs, editors);
    connect(m_ui.btnAnimActionPositionToBone, &QPushButton::clicked, this, &Page::OnAnimActionPositionToBone);
}

void AnimActionPage::recordShown()
{
    const AnimAction *action = record();
    if (!action)
        return;
    const AnimBlock &block = model().blocks[size_t(index()[0])];
    m_ui.hintAnimActionFrame->setTarget(IndexTargets::actionFrame(block, action->frame));
    nameArguments(action->eventType);
}

QStringList AnimActionPage::questions(QLatin1String fitting) const
{
    QStringList questions{Question::Actor,    Question::Animation, Question::Sound, Question::Voice,
                          Question::Particle, Question::Impact,    Question::Damage};
    if (!fitting.isNull()) {
        questions.removeOne(fitting);
        questions.prepend(fitting);
    }
    return questions;
}

void AnimActionPage::nameArguments(int eventType)
{
    for (int i = 0; i < int(m_arguments.size()); ++i) {
        const auto &[label, editor] = m_arguments[size_t(i)];
        const EventArgument meaning = eventArgument(eventType, i);
        const bool isDamage = meaning.question == Question::Damage;
        label->setText(meaning.label ? QCoreApplication::translate("EventArguments", meaning.label)
                                     : tr("Arg %1").arg(i + 1));
        const QString toolTip = isDamage
                                    ? tr("Damage is this value / 256. Example: 64 damage = 16384\n"
                                         "By default most enemies head have damage scaling of 10.\n"
                                         "Which means head shots will take 640 damage.")
                                    : tr("Argument %1; what it means depends on the event type").arg(i + 1);
        label->setToolTip(toolTip);
        editor->setToolTip(toolTip);
    }
}

void AnimActionPage::OnAnimActionPositionToBone()
{
    // Offsets are relative to the bone that carries them, whatever its pose: its own place is the origin.
    edit<UC_AnimActionOffset>(Parts::Whole, QVector3D(), tr("Key Frame Action Position To Bone"));
}
