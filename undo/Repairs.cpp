// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Repairs.h"

#include "AnimCommands.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"
#include "Transform.h"
#include "Validation.h"

#include <QUndoStack>

#include <algorithm>
#include <cmath>

namespace {
constexpr quint16 NoTrack = 0xFFFF;
constexpr quint8 NoParent = 255;

/// The commands of one repair: a single one is the step itself, several are a macro.
class Step
{
public:
    Step(QUndoStack &stack, Rule rule, size_t places)
        : m_stack(stack)
        , m_isMacro(places > 1 || rule == Rule::BoxInverted)
    {
        if (m_isMacro)
            stack.beginMacro(places > 1
                                 ? QCoreApplication::translate("UndoCommands", "Fix %1 Problems").arg(places)
                                 : QCoreApplication::translate("UndoCommands", "Fix Bounding Box"));
    }
    Step(const Step &) = delete;
    Step &operator=(const Step &) = delete;
    ~Step()
    {
        if (m_isMacro)
            m_stack.endMacro();
    }

    void push(QUndoCommand *command)
    {
        m_stack.push(command);
        ++count;
    }
    /// Two commands for one place.
    void push(QUndoCommand *command, QUndoCommand *second)
    {
        m_stack.push(command);
        push(second);
    }

    int count = 0;

private:
    QUndoStack &m_stack;
    bool m_isMacro;
};

/// The bone in whose child list each bone stands.
std::vector<size_t> listingBones(const SkinnedMesh &mesh)
{
    std::vector<size_t> bones(mesh.nodes.size(), NoParent);
    for (size_t b = 0; b < mesh.nodes.size(); ++b) {
        for (const quint16 child : mesh.nodes[b].childNodes) {
            if (child < bones.size())
                bones[child] = b;
        }
    }
    // The bone that everything hangs on has no parent, whoever lists it.
    if (!bones.empty())
        bones[0] = NoParent;
    return bones;
}

QVector4D normalised(const QVector4D &rotation)
{
    double squared = 0;
    for (int i = 0; i < 4; ++i)
        squared += double(rotation[i]) * double(rotation[i]);
    const double length = std::sqrt(squared);
    QVector4D result;
    for (int i = 0; i < 4; ++i)
        result[i] = float(double(rotation[i]) / length);
    return result;
}

template <typename Command>
void setRotation(Step &step, EditTarget<AnimFile> target, const RecordIndex &index, Rule rule)
{
    if (const auto *record = Command::Place::find(target.model(), index)) {
        const QVector4D rotation = Command::Field::get(*record);
        step.push(new Command(target, index,
                              rule == Rule::QuaternionZero ? QVector4D(0.0f, 0.0f, 0.0f, 1.0f)
                                                           : normalised(rotation)));
    }
}
} // namespace

int repair(Rule rule, std::vector<RecordRef> places, EditTarget<SkinnedMesh> target, QUndoStack &stack)
{
    if (places.empty())
        return 0;
    const SkinnedMesh &mesh = target.model();
    // From the last to the first, so that an entry that goes does not renumber those that are to go still.
    std::sort(places.begin(), places.end(),
              [](const RecordRef &a, const RecordRef &b) { return a.index > b.index; });
    const std::vector<size_t> listing = listingBones(mesh);
    const auto boxes = rule == Rule::BoxInverted ? boneBoxes(mesh) : std::vector<std::optional<Box>>();
    Step step(stack, rule, places.size());
    for (const RecordRef &place : places) {
        const int bone = place.index[0];
        switch (rule) {
        case Rule::ChildBoneOutOfRange:
        case Rule::BoneCycle:
        case Rule::BoneListedTwice:
            step.push(new UC_SkinnedMeshRemoveCnode(target, place.index));
            break;
        case Rule::BoneUnreachable:
            if (const SkinnedMeshNode *unreached = Records::element(mesh.nodes, bone)) {
                const int parent = unreached->parentNode;
                if (const SkinnedMeshNode *owner = Records::element(mesh.nodes, parent))
                    step.push(new UC_SkinnedMeshAddCnode(target, {parent, int(owner->childNodes.size()), 0},
                                                         quint16(bone)));
            }
            break;
        case Rule::ParentBoneOutOfRange:
        case Rule::ParentBoneMismatch:
            if (Records::element(mesh.nodes, bone))
                step.push(
                    new UC_SkinnedMeshNodeParentNode(target, place.index, quint8(listing[size_t(bone)])));
            break;
        case Rule::BoxInverted:
            if (place.kind == RecordKind::Bone) {
                const std::optional<Box> *box = Records::element(boxes, bone);
                if (box && *box)
                    step.push(new UC_SkinnedMeshNodeBBMin(target, place.index, (*box)->min),
                              new UC_SkinnedMeshNodeBBMax(target, place.index, (*box)->max));
            } else {
                // That of the whole model, which its vertices are not stored in.
                const Box box = boxBetween(mesh.bbMin, mesh.bbMax);
                step.push(new UC_SkinnedMeshBBMin(target, {}, box.min),
                          new UC_SkinnedMeshBBMax(target, {}, box.max));
            }
            break;
        default:
            break;
        }
    }
    return step.count;
}

int repair(Rule rule, const std::vector<RecordRef> &places, EditTarget<AnimFile> target, QUndoStack &stack)
{
    if (places.empty())
        return 0;
    Step step(stack, rule, places.size());
    for (const RecordRef &place : places) {
        const RecordIndex &index = place.index;
        switch (rule) {
        case Rule::TranslationTrackOutOfRange:
            step.push(new UC_AnimNodeTransIndex(target, index, NoTrack));
            break;
        case Rule::RotationTrackOutOfRange:
            step.push(new UC_AnimNodeRotIndex(target, index, NoTrack));
            break;
        case Rule::QuaternionZero:
        case Rule::QuaternionUnnormalised:
            if (place.kind == RecordKind::AnimBone)
                setRotation<UC_AnimNodeInitRot>(step, target, index, rule);
            else
                setRotation<UC_AnimRotation>(step, target, index, rule);
            break;
        case Rule::LoopFrameBeyondEnd:
            // An animation without frames has no last one: -1 is 65535, none.
            if (const AnimBlock *block = Records::element(target.model().blocks, index[0]))
                step.push(new UC_AnimBlockLoopFrame(target, index, quint16(block->frameCount() - 1)));
            break;
        default:
            break;
        }
    }
    return step.count;
}

int repair(Rule rule, const std::vector<RecordRef> &places, EditTarget<StaticMesh> target, QUndoStack &stack)
{
    const auto box = meshBox(target.model());
    if (places.empty() || rule != Rule::BoxInverted || !box)
        return 0;
    Step step(stack, rule, places.size());
    step.push(new UC_StaticMeshBBMin(target, {}, box->min), new UC_StaticMeshBBMax(target, {}, box->max));
    return step.count;
}
