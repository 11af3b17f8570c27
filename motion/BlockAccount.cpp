// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlockAccount.h"

#include "BinaryFileWriter.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace Motion;

namespace {
QString shortest(double value)
{
    return QString::number(value, 'g', 6);
}

QString seconds(const AnimBlock &block)
{
    return QString::number(std::max(block.frameCount() - 1, 0) / rateOf(block), 'f', 2);
}

/// How many differ, by bits; none where there are others in number, which other words tell.
template <typename Value>
qint64 changed(const std::vector<Value> &before, const std::vector<Value> &after)
{
    qint64 count = 0;
    for (size_t i = 0; before.size() == after.size() && i < after.size(); ++i)
        count += std::memcmp(&before[i], &after[i], sizeof(Value)) != 0 ? 1 : 0;
    return count;
}

/// How many bones follow tracks of other numbers, while there are as many tracks.
qint64 rewired(const AnimBlock &before, const AnimBlock &after)
{
    const bool movesAlike = before.translations.trackCount() == after.translations.trackCount();
    const bool turnsAlike = before.rotations.trackCount() == after.rotations.trackCount();
    qint64 count = 0;
    for (size_t bone = 0; bone < std::min(before.nodes.size(), after.nodes.size()); ++bone) {
        const AnimNode &a = before.nodes[bone];
        const AnimNode &b = after.nodes[bone];
        const bool isOther = (movesAlike && a.translationIndex != b.translationIndex) ||
                             (turnsAlike && a.rotationIndex != b.rotationIndex);
        count += isOther ? 1 : 0;
    }
    return count;
}

std::vector<uchar> bytesOf(const AnimBlock &block)
{
    AnimFile file;
    file.blocks.push_back(block);
    BinaryFileWriter writer;
    file.writeDraft(writer);
    return writer.bytes();
}
} // namespace

namespace Motion {
double rateOf(const AnimBlock &block)
{
    return block.speed >= 1 ? double(block.speed) : 1;
}

qint64 fileBytes(const AnimBlock &block)
{
    const qint64 frames = block.frameCount();
    return 44 + 32 * qint64(block.nodes.size()) + 4 * frames + 12 * frames * block.translations.trackCount() +
           16 * frames * block.rotations.trackCount() + 50 * qint64(block.actions.size());
}

bool isSame(const AnimBlock &a, const AnimBlock &b)
{
    return fileBytes(a) == fileBytes(b) && bytesOf(a) == bytesOf(b);
}

QStringList differences(const AnimBlock &before, const AnimBlock &after, const BlockAccount &account)
{
    QStringList lines;
    const auto tell = [&lines](const QString &text, const QString &from, const QString &to) {
        if (from != to)
            lines << text.arg(from, to);
    };
    const auto count = [&lines](const QString &text, qint64 found) {
        if (found > 0)
            lines << text.arg(found);
    };
    const auto number = [](auto value) { return QString::number(value); };
    const auto mark = [](quint16 frame) {
        return frame == None ? Texts::tr("none") : QString::number(frame);
    };
    tell(Texts::tr("id: %1 → %2"), number(before.animId), number(after.animId));
    tell(Texts::tr("frames: %1 → %2"), number(before.frameCount()), number(after.frameCount()));
    tell(Texts::tr("speed: %1 → %2 frames a second"), shortest(double(before.speed)),
         shortest(double(after.speed)));
    tell(Texts::tr("duration: %1 → %2 s"), seconds(before), seconds(after));
    tell(Texts::tr("loop frame: %1 → %2"), mark(before.loopFrame), mark(after.loopFrame));
    tell(Texts::tr("blend: %1 → %2"),
         Texts::tr("%1 frames, %2 to %3").arg(before.blendLength).arg(before.blendStart).arg(before.blendEnd),
         Texts::tr("%1 frames, %2 to %3").arg(after.blendLength).arg(after.blendStart).arg(after.blendEnd));
    count(Texts::tr("key frame actions moved: %1"), account.actionsMoved);
    count(Texts::tr("key frame actions dropped: %1"), account.actionsDropped);
    tell(Texts::tr("translation tracks: %1 → %2"), number(before.translations.trackCount()),
         number(after.translations.trackCount()));
    tell(Texts::tr("rotation tracks: %1 → %2"), number(before.rotations.trackCount()),
         number(after.rotations.trackCount()));
    if (before.frameCount() == after.frameCount()) {
        count(Texts::tr("translation keys that change: %1"),
              changed(before.translations.keys(), after.translations.keys()));
        count(Texts::tr("rotation keys that change: %1"),
              changed(before.rotations.keys(), after.rotations.keys()));
        count(Texts::tr("frames whose yaw changes: %1"), changed(before.frames, after.frames));
    }
    count(Texts::tr("bones that follow other tracks: %1"), rewired(before, after));
    tell(Texts::tr("bytes: %1 → %2"), number(fileBytes(before)), number(fileBytes(after)));
    return lines + account.notes;
}
} // namespace Motion
