// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimBlockPage.h"

#include "FrameChoice.h"
#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

#include <QKeyEvent>

AnimBlockPage::AnimBlockPage(ModelDocument<Model> &document, const KVTreeView &tree,
                             SkinnedMeshDocument &mesh, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 Properties"), parent)
    , m_anim(document)
    , m_tree(tree)
    , m_mesh(mesh)
{
    m_ui.setupUi(this);
    m_ui.sbAnimFrameScale->setSingleStep(0.1);

    using Page = AnimBlockPage;
    bind(m_ui.sbAnimAnimID, Fields::BlockId, &Page::OnAnimBlockAnimIDChanged);
    bindName();
    bind(m_ui.sbAnimSpeed, Fields::BlockSpeed, &Page::OnAnimBlockSpeedChanged);
    bind(m_ui.sbAnimLoopFrame, Fields::BlockLoopFrame, &Page::OnAnimBlockLoopFrameChanged);
    bind(m_ui.sbAnimFrameScale, Fields::BlockFrameScale, &Page::OnAnimBlockFrameScaleChanged);
    bind(m_ui.sbAnimBlendLength, Fields::BlockBlendLength, &Page::OnAnimBlockBlendLengthChanged);
    bind(m_ui.sbAnimBlendStart, Fields::BlockBlendStart, &Page::OnAnimBlockBlendStartChanged);
    bind(m_ui.sbAnimBlendEnd, Fields::BlockBlendEnd, &Page::OnAnimBlockBlendEndChanged);
}

/// A name is no field of the block: the mesh has one for each id.
void AnimBlockPage::bindName()
{
    TextField *editor = m_ui.txtAnimName;
    const auto mark = [this, editor](const QVector<RecordIndex> &others) {
        const QString shown = nameOf(record());
        const bool differs = std::any_of(others.begin(), others.end(), [&](const RecordIndex &other) {
            return nameOf(Records::Block::find(m_anim.model(), other)) != shown;
        });
        setItalic(editor, differs);
        return differs;
    };
    addBinding({editor, [this, editor] { editor->setValue(nameOf(record())); },
                [this, editor] { nameSelected(editor->value()); }, mark});
    editor->setProperty(FieldProperty, QStringLiteral("name"));
    Editors::onEdited(editor, this, &AnimBlockPage::OnAnimBlockNameChanged);
    m_mesh.addField(editor);
}

QString AnimBlockPage::nameOf(const AnimBlock *block) const
{
    return block ? m_mesh.model().animationNames.value(block->animId) : QString();
}

void AnimBlockPage::nameSelected(const QString &name)
{
    if (nameOf(record()) == name)
        return;
    const QVector<RecordIndex> records = m_tree.selectedRecords(RecordKind::AnimBlock);
    if (records.isEmpty())
        return;
    QHash<qint32, QString> names = m_mesh.model().animationNames;
    for (const RecordIndex &index : records) {
        const qint32 id = m_anim.model().blocks[size_t(index[0])].animId;
        if (name.isEmpty())
            names.remove(id);
        else
            names.insert(id, name);
    }
    m_mesh.undoStack()->push(new UC_SkinnedMeshAnimationNames(m_mesh.editTarget(), {}, names));
    emit told(tr("The name belongs to %1, and is saved with it (Save All).").arg(m_mesh.fileName()));
}

/// Whether a key there is an undo or redo that is not about what is being typed, which the field takes back
/// itself. `step` is then where it leads in the mesh's history, which has the steps of names; none when the
/// next is another.
bool AnimBlockPage::isStepOfName(const QObject *watched, QEvent *event, std::optional<int> &step) const
{
    if (watched != m_ui.txtAnimName ||
        (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress))
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isUndo = key->matches(QKeySequence::Undo);
    const bool isRedo = key->matches(QKeySequence::Redo) ||
                        (key->key() == Qt::Key_Y && key->modifiers() == Qt::ControlModifier);
    const TextField &field = *m_ui.txtAnimName;
    if (isUndo == isRedo || field.isTyping() || (isUndo ? field.isUndoAvailable() : field.isRedoAvailable()))
        return false;
    const QUndoStack *stack = m_mesh.undoStack();
    const int about = stack->index() - (isUndo ? 1 : 0);
    step.reset();
    if (about >= 0 && about < stack->count() &&
        dynamic_cast<const UC_SkinnedMeshAnimationNames *>(stack->command(about)))
        step = isUndo ? about : about + 1;
    return true;
}

bool AnimBlockPage::eventFilter(QObject *watched, QEvent *event)
{
    std::optional<int> step;
    if (!isStepOfName(watched, event, step))
        return RecordPage::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    else if (!step)
        emit told(tr("In this field undo and redo are about names, and the next step is none."));
    else if (!m_mesh.returnToTyping() && isStepOfName(watched, event, step) && step)
        m_mesh.undoStack()->setIndex(*step);
    return true;
}

void AnimBlockPage::recordShown()
{
    const AnimBlock *block = record();
    if (!block)
        return;
    m_ui.txtAnimName->setEnabled(m_mesh.isOpen());
    m_ui.txtAnimName->setPlaceholderText(m_mesh.isOpen() ? QString() : tr("Open the mesh to name it"));
    m_ui.hintAnimLoopFrame->setTarget(IndexTargets::loopFrame(*block, block->loopFrame));
    m_ui.lblAnimFrames->setNum(block->frameCount());
    m_ui.lblAnimBones->setNum(int(block->nodes.size()));
    const float seconds = std::max(playDuration(*block), 0.0f);
    m_ui.lblAnimDuration->setText(tr("%1 s").arg(double(seconds), 0, 'f', 2));
}
