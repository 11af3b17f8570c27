// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlockSizes.h"

#include <algorithm>

AnimBlock newBlock(const AnimFile &file, const SkinnedMesh &mesh)
{
    AnimBlock block;
    if (file.blocks.empty()) {
        block.nodes.resize(mesh.nodes.size());
    } else {
        for (const AnimNode &node : file.blocks.front().nodes) {
            AnimNode bone;
            bone.initialPosition = node.initialPosition;
            bone.initialRotation = node.initialRotation;
            block.nodes.push_back(bone);
        }
    }
    block.setFrameCount(1);
    return block;
}

int mostEntries(const AnimBlock &block, RecordKind group)
{
    constexpr qint64 MostBytes = 256 << 20;
    constexpr qint64 MostIndexes = 65535;
    const qint64 frames = block.frameCount();
    qint64 entryBytes = 0;
    if (group == RecordKind::AnimFrames)
        entryBytes = qint64(sizeof(QVector3D)) * block.translations.trackCount() +
                     qint64(sizeof(QVector4D)) * block.rotations.trackCount();
    else
        entryBytes =
            frames * qint64(group == RecordKind::Translations ? sizeof(QVector3D) : sizeof(QVector4D));
    return int(std::min(MostIndexes, MostBytes / std::max<qint64>(entryBytes, 1)));
}
