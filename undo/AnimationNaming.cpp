// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimationNaming.h"

#include "AllCommands.h"
#include "ModelNames.h"

#include <QUndoStack>

#include <algorithm>

namespace {
std::optional<AnimationNaming::Mesh> &namingMesh()
{
    static std::optional<AnimationNaming::Mesh> mesh;
    return mesh;
}

bool isMeshOpen()
{
    return namingMesh() && namingMesh()->isOpen();
}

const AnimBlock *blockAt(const AnimFile &file, const RecordIndex &index)
{
    return Records::element(file.blocks, index[0]);
}

class AnimationNameField final : public ModelField<AnimFile>
{
public:
    AnimationNameField()
    {
        m_kind = RecordKind::AnimBlock;
        m_type = Type::Text;
        m_id = QStringLiteral("name");
        m_title = QCoreApplication::translate("RecordFields", "Name");
        m_englishTitle = QStringLiteral("Name");
        m_stepText = QCoreApplication::translate("UndoCommands", UC_SkinnedMeshAnimationNames::undoText);
        m_note = QCoreApplication::translate(
            "RecordFields", "The name belongs to the mesh, and is saved with it (Save All).");
    }

    FieldValue value(const AnimFile &file, const RecordIndex &index) const override
    {
        const AnimBlock *block = blockAt(file, index);
        if (!block)
            return {};
        return isMeshOpen() ? namingMesh()->target.model().animationNames.value(block->animId) : QString();
    }
    QUndoCommand *command(EditTarget<AnimFile>, const RecordIndex &, const FieldValue &) const override
    {
        return nullptr;
    }

protected:
    QString textRefusal(const QString &text) const override
    {
        if (!isMeshOpen())
            return QCoreApplication::translate("RecordFields", "Open the mesh to name its animations.");
        return text.isEmpty() || ModelNames::isName(text.simplified())
                   ? QString()
                   : QCoreApplication::translate("RecordFields", "A name has at most %1 characters.")
                         .arg(ModelNames::LongestName);
    }
};
} // namespace

void AnimationNaming::setMesh(const std::optional<Mesh> &mesh)
{
    namingMesh().reset();
    if (mesh)
        namingMesh().emplace(*mesh);
}

std::unique_ptr<ModelField<AnimFile>> AnimationNaming::field()
{
    return std::make_unique<AnimationNameField>();
}

bool AnimationNaming::isName(const FieldChange &change)
{
    return dynamic_cast<const AnimationNameField *>(change.field);
}

bool AnimationNaming::change(const QVector<FieldChange> &changes, const AnimFile &file)
{
    if (!isMeshOpen())
        return false;
    const EditTarget<SkinnedMesh> &target = namingMesh()->target;
    QHash<qint32, QString> names = target.model().animationNames;
    for (const FieldChange &each : changes) {
        const AnimBlock *block = isName(each) ? blockAt(file, each.index) : nullptr;
        const auto *text = std::get_if<QString>(&each.value);
        const QString name = block && text ? text->simplified() : QString();
        if (block && name.isEmpty())
            names.remove(block->animId);
        else if (block)
            names.insert(block->animId, name);
    }
    if (names == target.model().animationNames)
        return false;
    namingMesh()->stack->push(new UC_SkinnedMeshAnimationNames(target, {}, names));
    return true;
}
