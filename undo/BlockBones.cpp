// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlockBones.h"

#include "MeshBones.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
struct BlockTexts
{
    Q_DECLARE_TR_FUNCTIONS(MeshBones)
};

/// The bone of another block that comes in for a new one.
AnimNode newBone(const std::vector<AnimNode> &bones, AnimNode added, int copied)
{
    if (const AnimNode *own = Records::element(bones, copied))
        return *own;
    added.translationIndex = added.rotationIndex = AnimNode().translationIndex; // none
    return added;
}
} // namespace

BlockBones::BlockBones(const AnimFile &file, int block)
    : m_named(block)
    , m_replaced(file.blocks[size_t(block)].nodes.size())
{
    for (size_t b = 0; b < file.blocks.size(); ++b) {
        const AnimBlock &each = file.blocks[b];
        if (each.nodes.size() != m_replaced)
            continue;
        m_blocks.push_back({int(b), each.nodes, {}});
        for (const AnimAction &action : each.actions)
            m_blocks.back().actionBones.push_back(action.node);
    }
}

QString BlockBones::arrange(const std::vector<int> &places, const std::vector<AnimNode> &added,
                            const QVector<int> &copied)
{
    const size_t count = m_replaced;
    if (places.size() > count && places.size() > MeshBones::MostBones)
        return BlockTexts::tr("The game poses %1 bones at most; the mesh would have %2.")
            .arg(QString::number(MeshBones::MostBones), QString::number(places.size()));
    if (count > 0 && (places.empty() || places.front() != 0))
        return BlockTexts::tr("Bone 0 stays where it is: every pose begins with it.");
    constexpr int Gone = -1;
    std::vector<int> numbers(count, Gone);
    for (size_t place = 0; place < places.size(); ++place) {
        if (places[place] >= 0)
            numbers[size_t(places[place])] = int(place);
    }
    for (const Block &block : m_blocks) {
        for (size_t a = 0; a < block.actionBones.size(); ++a) {
            const size_t bone = block.actionBones[a];
            const QString action = QString::number(a);
            if (bone < count && numbers[bone] == Gone)
                return BlockTexts::tr(
                           "Action %1 of animation %2 happens at bone %3. Enter another bone there first.")
                    .arg(action, QString::number(block.number), QString::number(bone));
            if (bone >= count && bone < places.size())
                return BlockTexts::tr(
                           "Action %1 of animation %2 names bone %3, which does not exist, but would then. "
                           "Correct that first; it is among the problems.")
                    .arg(action, QString::number(block.number), QString::number(bone));
        }
    }
    for (Block &block : m_blocks) {
        std::vector<AnimNode> made;
        for (const int from : places) {
            const int fresh = -1 - from;
            if (from >= 0)
                made.push_back(block.bones[size_t(from)]);
            else if (block.number == m_named)
                made.push_back(added[size_t(fresh)]);
            else
                made.push_back(newBone(block.bones, added[size_t(fresh)], copied.value(fresh, Gone)));
        }
        block.bones = std::move(made);
        for (quint16 &bone : block.actionBones)
            bone = bone < count ? quint16(numbers[bone]) : bone;
    }
    return {};
}

bool BlockBones::fits(const AnimFile &file, const RecordIndex &) const
{
    return std::all_of(m_blocks.begin(), m_blocks.end(), [&](const Block &each) {
        const AnimBlock *block = Records::Block::find(file, {each.number, 0, 0});
        return block && block->nodes.size() == m_replaced && block->actions.size() == each.actionBones.size();
    });
}

void BlockBones::exchange(AnimFile &file, const RecordIndex &)
{
    for (Block &each : m_blocks) {
        AnimBlock &block = file.blocks[size_t(each.number)];
        m_replaced = each.bones.size();
        std::swap(each.bones, block.nodes);
        for (size_t a = 0; a < each.actionBones.size(); ++a)
            std::swap(each.actionBones[a], block.actions[a].node);
    }
}
