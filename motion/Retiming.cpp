// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Retiming.h"

#include "KeyBlend.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Motion;

namespace {
/// What a new frame is made of: what stands between two old ones.
struct FrameSource
{
    int from;
    int to;
    double t;
};

template <typename Key>
TrackTable<Key> taken(const TrackTable<Key> &table, const std::vector<FrameSource> &sources,
                      const BlockAccount &account)
{
    TrackTable<Key> made(table.trackCount(), int(sources.size()));
    Key *key = made.data();
    for (int track = 0; track < table.trackCount() && !account.isCancelled(); ++track) {
        for (const FrameSource &source : sources)
            *key++ = between(table.at(track, source.from), table.at(track, source.to), source.t);
    }
    return made;
}

void takeFrames(AnimBlock &block, const std::vector<FrameSource> &sources, const BlockAccount &account)
{
    std::vector<AnimFrame> frames;
    frames.reserve(sources.size());
    for (const FrameSource &source : sources)
        frames.push_back({yawBetween(block.frames[size_t(source.from)].yawOffset,
                                     block.frames[size_t(source.to)].yawOffset, source.t)});
    block.translations = taken(block.translations, sources, account);
    block.rotations = taken(block.rotations, sources, account);
    block.frames = std::move(frames);
}

quint16 numbered(qint64 frame)
{
    return quint16(std::clamp<qint64>(frame, 0, None));
}

/// Lets key frame actions follow their frames. `where` tells where a frame goes; nothing, when it goes away.
template <typename Where>
void moveActions(AnimBlock &block, int oldCount, BlockAccount &account, Where where)
{
    std::vector<AnimAction> kept;
    kept.reserve(block.actions.size());
    for (AnimAction action : block.actions) {
        const std::optional<int> frame = action.frame < oldCount
                                             ? where(int(action.frame))
                                             : block.frameCount() + (action.frame - oldCount);
        if (!frame) {
            ++account.actionsDropped;
            continue;
        }
        const quint16 number = numbered(*frame);
        account.actionsMoved += number != action.frame ? 1 : 0;
        action.frame = number;
        kept.push_back(action);
    }
    block.actions = std::move(kept);
}

/// Lets the blend's ends go where `where` says of an old frame. One beyond the last frame stays as far beyond
/// it.
template <typename Where>
void moveBlend(AnimBlock &block, int oldCount, Where where)
{
    for (quint16 *end : {&block.blendStart, &block.blendEnd}) {
        if (*end < oldCount)
            *end = numbered(where(int(*end)));
        else if (*end != None)
            *end = numbered(qint64(*end) - oldCount + block.frameCount());
    }
}

/// The loop frame, too. One that was none is none afterwards.
template <typename Where>
void moveMarks(AnimBlock &block, int oldCount, Where where)
{
    if (block.loopFrame < oldCount)
        block.loopFrame = numbered(where(int(block.loopFrame)));
    else if (block.loopFrame < block.frameCount())
        block.loopFrame = None;
    moveBlend(block, oldCount, where);
}

/// Lets the blend go round with its frames, as long as that does not part it.
template <typename Where>
void moveBlendRound(AnimBlock &block, int period, BlockAccount &account, Where where)
{
    const int start = block.blendStart;
    const int end = block.blendEnd;
    const bool isAll = start == 0 && end >= period - 1;
    if (isAll || (start == 0 && end == 0) || std::max(start, end) >= block.frameCount())
        return;
    if ((where(start) < where(end)) == (start < end)) {
        block.blendStart = numbered(where(start));
        block.blendEnd = numbered(where(end));
    } else {
        account.notes << Texts::tr("It still blends in the frames %1 to %2, which show other poses now.")
                             .arg(start)
                             .arg(end);
    }
}

QString withoutFrames()
{
    return Texts::tr("It has no frames.");
}

/// Why a block cannot have so many frames.
QString tooManyFrames(const AnimBlock &block, qint64 frames)
{
    const qint64 keyBytes = qint64(sizeof(QVector3D)) * block.translations.trackCount() +
                            qint64(sizeof(QVector4D)) * block.rotations.trackCount();
    const qint64 most = std::min<qint64>(MostFrames, MostBytes / std::max<qint64>(keyBytes, 1));
    if (frames <= most)
        return {};
    return Texts::tr("It would have %1 frames; %2 is the most that it can have.").arg(frames).arg(most);
}

/// The pose that begins the block is the one that ends it, so that frame is shown once in a round.
bool endsAsItBegins(const AnimBlock &block)
{
    const int last = block.frameCount() - 1;
    for (int track = 0; track < block.translations.trackCount(); ++track) {
        if (!isNear(block.translations.at(track, 0), block.translations.at(track, last)))
            return false;
    }
    for (int track = 0; track < block.rotations.trackCount(); ++track) {
        if (!isNear(block.rotations.at(track, 0), block.rotations.at(track, last)))
            return false;
    }
    return isNearYaw(block.frames.front().yawOffset, block.frames.back().yawOffset);
}
/// An animation that loops to its last frame holds that.
void noteStandstill(int oldLoop, int oldCount, const AnimBlock &block, BlockAccount &account)
{
    if (oldLoop < oldCount - 1 && block.loopFrame == block.frameCount() - 1 && block.frameCount() > 1)
        account.notes << Texts::tr("It looped, and stands still on its last frame now.");
}

} // namespace

namespace Motion {
QString apply(const Resample &how, AnimBlock &block, BlockAccount &account)
{
    const int old = block.frameCount();
    if (old == 0)
        return withoutFrames();
    const double oldRate = rateOf(block);
    if (!std::isfinite(oldRate))
        return Texts::tr("Its speed is infinite.");
    const int oldSpan = std::max(old - 1, 1);
    double speed = double(block.speed);
    double frames = how.frames;
    if (how.rate != 0) {
        if (!(how.rate >= 1))
            return Texts::tr("The game plays no animation slower than one frame a second.");
        frames = old == 1 ? 1 : std::max(std::round((old - 1) * how.rate / oldRate), 1.0) + 1;
        speed = how.rate;
    }
    if (!(frames >= 1))
        return Texts::tr("An animation has one frame at least.");
    const QString refusal = tooManyFrames(block, qint64(std::min(frames, 1e9)));
    if (!refusal.isEmpty())
        return refusal;
    const int count = int(frames);
    const double ratio = double(count - 1) / oldSpan;
    if (how.rate == 0 && !how.keepSpeed && count != old && count > 1 && old > 1)
        speed = oldRate * ratio;
    if (speed != double(block.speed) && speed < 1)
        return Texts::tr("To last as long, it would have to play %1 frames a second; the game plays one at "
                         "least.")
            .arg(speed, 0, 'g', 3);
    if (count != old) {
        std::vector<FrameSource> sources;
        for (int frame = 0; frame < count; ++frame) {
            // Whole numbers say exactly where an old frame is met.
            const qint64 way = count == 1 ? 0 : qint64(frame) * (old - 1);
            const int span = std::max(count - 1, 1);
            const int from = int(way / span);
            sources.push_back({from, std::min(from + 1, old - 1), double(way % span) / span});
        }
        takeFrames(block, sources, account);
        const auto where = [&](int frame) {
            return old == 1 ? frame : int(std::lround(double(frame) * (count - 1) / (old - 1)));
        };
        moveActions(block, old, account, where);
        moveMarks(block, old, where);
        // So many frames take as long as before, unless it is the motion that takes longer.
        if (!how.keepSpeed && block.blendLength > 0 && old > 1 && count > 1)
            block.blendLength = numbered(std::max<qint64>(std::llround(block.blendLength * ratio), 1));
    }
    block.speed = float(speed);
    return {};
}

QString apply(const Reverse &, AnimBlock &block, BlockAccount &account)
{
    const int count = block.frameCount();
    if (count == 0)
        return withoutFrames();
    std::vector<FrameSource> sources;
    for (int frame = count - 1; frame >= 0; --frame)
        sources.push_back({frame, frame, 0});
    takeFrames(block, sources, account);
    const auto where = [count](int frame) { return count - 1 - frame; };
    moveActions(block, count, account, where);
    // None at all is written as 0 to 0.
    if (std::max(block.blendStart, block.blendEnd) > 0 &&
        std::max(block.blendStart, block.blendEnd) < count) {
        moveBlend(block, count, where);
        std::swap(block.blendStart, block.blendEnd);
    }
    if (block.loopFrame > 0 && block.loopFrame < count - 1)
        account.notes << Texts::tr("It still loops to frame %1, which shows what frame %2 showed.")
                             .arg(block.loopFrame)
                             .arg(where(block.loopFrame));
    return {};
}

QString apply(const Trim &how, AnimBlock &block, BlockAccount &account)
{
    const int old = block.frameCount();
    if (old == 0)
        return withoutFrames();
    if (how.first < 0 || how.first > how.last || how.last >= old)
        return Texts::tr("It has the frames 0 to %1, not %2 to %3.")
            .arg(old - 1)
            .arg(how.first)
            .arg(how.last);
    if (how.first == 0 && how.last == old - 1)
        return {};
    std::vector<FrameSource> sources;
    for (int frame = how.first; frame <= how.last; ++frame)
        sources.push_back({frame, frame, 0});
    takeFrames(block, sources, account);
    const auto isKept = [&](int frame) { return frame >= how.first && frame <= how.last; };
    moveActions(block, old, account, [&](int frame) {
        return isKept(frame) ? std::optional<int>(frame - how.first) : std::nullopt;
    });
    const int loop = block.loopFrame;
    const bool loses = loop < old - 1 && !isKept(loop);
    moveMarks(block, old, [&](int frame) { return std::clamp(frame, how.first, how.last) - how.first; });
    if (loses)
        account.notes << Texts::tr("What was frame %1, to which it looped, goes: it loops to frame %2 now.")
                             .arg(loop)
                             .arg(block.loopFrame);
    noteStandstill(loop, old, block, account);
    return {};
}

QString apply(const Shift &how, AnimBlock &block, BlockAccount &account)
{
    const int count = block.frameCount();
    if (count == 0)
        return withoutFrames();
    const bool goesRound =
        how.around == Shift::Around::Always || (how.around == Shift::Around::Loops && block.loopFrame == 0);
    if (!goesRound) {
        if (std::abs(qint64(how.frames)) >= count)
            return Texts::tr("It has %1 frames: nothing would be left of it.").arg(count);
        if (how.frames == 0)
            return {};
        std::vector<FrameSource> sources;
        for (int frame = 0; frame < count; ++frame) {
            const int from = std::clamp(frame - how.frames, 0, count - 1);
            sources.push_back({from, from, 0});
        }
        takeFrames(block, sources, account);
        const auto where = [&](int frame) -> std::optional<int> {
            const int moved = frame + how.frames;
            return moved >= 0 && moved < count ? std::optional<int>(moved) : std::nullopt;
        };
        moveActions(block, count, account, where);
        const auto held = [&](int frame) { return std::clamp(frame + how.frames, 0, count - 1); };
        // One that holds its last frame still does.
        const int loop = block.loopFrame;
        if (loop < count - 1)
            block.loopFrame = numbered(held(loop));
        noteStandstill(loop, count, block, account);
        if (std::max(block.blendStart, block.blendEnd) > 0)
            moveBlend(block, count, held);
        account.notes << (how.frames > 0 ? Texts::tr("Frames for which the first pose stands longer: %1.")
                                         : Texts::tr("Frames for which the last pose stands longer: %1."))
                             .arg(std::abs(how.frames));
        return {};
    }
    const bool isClosed = count > 1 && endsAsItBegins(block);
    const int period = isClosed ? count - 1 : count;
    const auto round = [period](qint64 frame) { return int(((frame % period) + period) % period); };
    if (round(how.frames) == 0)
        return {};
    std::vector<FrameSource> sources;
    for (int frame = 0; frame < count; ++frame) {
        const int from = round(qint64(frame) - how.frames);
        sources.push_back({from, from, 0});
    }
    takeFrames(block, sources, account);
    const auto where = [&](int frame) { return round(qint64(frame) + how.frames); };
    moveActions(block, count, account, where);
    moveBlendRound(block, period, account, where);
    if (block.loopFrame > 0 && block.loopFrame < count - 1)
        account.notes
            << Texts::tr("It still loops to frame %1, which shows another pose now.").arg(block.loopFrame);
    if (isClosed)
        account.notes << Texts::tr("It ends as it begins, so a round has %1 frames; it does afterwards, too.")
                             .arg(period);
    return {};
}

QString apply(const CloseLoop &how, AnimBlock &block, BlockAccount &account)
{
    const int count = block.frameCount();
    if (count < 2)
        return Texts::tr("It takes two frames at least to loop.");
    const int target = block.loopFrame < count - 1 ? block.loopFrame : 0;
    if (how.frames < 1 || how.frames > count - 1 - target)
        return Texts::tr("From 1 to %1 frames can go over into frame %2.")
            .arg(count - 1 - target)
            .arg(target);
    std::vector<FrameSource> sources;
    for (int frame = 0; frame < count; ++frame) {
        const int part = std::max(frame - (count - 1 - how.frames), 0);
        sources.push_back({frame, part > 0 ? target : frame, double(part) / how.frames});
    }
    takeFrames(block, sources, account);
    account.notes << Texts::tr("Frames %1 to %2 go over into frame %3.")
                         .arg(count - how.frames)
                         .arg(count - 1)
                         .arg(target);
    if (block.loopFrame == count - 1)
        account.notes << Texts::tr("It still holds its last frame, since that is its loop frame.");
    return {};
}
} // namespace Motion
