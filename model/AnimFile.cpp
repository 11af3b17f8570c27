// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"

#include "BinaryFileReader.h"
#include "BinaryFileWriter.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {
// Bytes in the file.
constexpr qint64 BlockBytes = 44;
constexpr qint64 NodeBytes = 32;
constexpr qint64 FrameBytes = 4;
constexpr qint64 ActionBytes = 50;

/// Tracks without keys take no bytes, so no end of file stops a hostile count. Bones name tracks by 16-bit
/// indexes: more than these are no table, and as many in each of many blocks are no animation.
constexpr qint32 MaxEmptyTracks = 65536;
constexpr qint64 MaxEmptyTracksOfFile = 4 * qint64(MaxEmptyTracks);

qint64 emptyTracks(const AnimBlock &block)
{
    return block.frames.empty() ? qint64(block.translations.trackCount()) + block.rotations.trackCount() : 0;
}

/// Of translations and of rotations.
using TrackCounts = std::pair<int, int>;

TrackCounts trackCounts(const AnimBlock &block)
{
    return {block.translations.trackCount(), block.rotations.trackCount()};
}

/// How many of a block's tracks can be read back when the blocks before it leave `left` ones without keys,
/// and takes them from these.
TrackCounts readableTracks(const AnimBlock &block, qint64 &left)
{
    const auto readable = [&left](int count) {
        const qint64 taken = std::min<qint64>({count, MaxEmptyTracks, left});
        left -= taken;
        return int(taken);
    };
    if (!block.frames.empty())
        return trackCounts(block);
    const int translations = readable(block.translations.trackCount());
    return {translations, readable(block.rotations.trackCount())};
}

const QVector3D NeutralTranslation;
const QVector4D NeutralRotation(0.0f, 0.0f, 0.0f, 1.0f);

QString tracksWithoutFrames(qint64 count)
{
    return QCoreApplication::translate("ModelFiles", "Attempting to read %1 tracks without frames.")
        .arg(count);
}

template <typename Key>
constexpr qint64 KeyFloats = qint64(sizeof(Key) / sizeof(float));

template <typename Key>
TrackTable<Key> readTable(BinaryFileReader &reader, qint32 trackCount, qint32 frameCount)
{
    if (trackCount <= 0 || reader.hasError())
        return {0, std::max(frameCount, 0)};
    if (frameCount <= 0) {
        if (trackCount > MaxEmptyTracks) {
            reader.setErrorText(tracksWithoutFrames(trackCount));
            return {};
        }
        return {trackCount, 0};
    }
    const qint64 trackBytes = KeyFloats<Key> * qint64(sizeof(float)) * frameCount;
    if (!reader.holds(trackCount, trackBytes)) {
        // Cut off within the keys, whose components are all floats.
        reader.failAtEnd("float");
        return {};
    }
    TrackTable<Key> table(trackCount, frameCount);
    static_assert(sizeof(Key) == size_t(KeyFloats<Key>) * sizeof(float), "keys are plain floats");
    reader.readFloats(reinterpret_cast<float *>(table.data()), qint64(table.keys().size()) * KeyFloats<Key>);
    return table;
}

AnimAction readAction(BinaryFileReader &reader)
{
    AnimAction action;
    action.frame = reader.readUInt16();
    action.eventType = reader.readUInt16();
    action.node = reader.readUInt16();
    action.offset = reader.readVec3();
    reader.readFloats(action.args.data(), qint64(action.args.size()));
    return action;
}

AnimBlock readBlock(BinaryFileReader &reader)
{
    AnimBlock block;
    block.animId = reader.readInt32();
    const qint32 frameCount = reader.readInt32();
    const qint32 nodeCount = reader.readInt32();
    const qint32 initialNodeCount = reader.readInt32();
    const qint32 translationCount = reader.readInt32();
    const qint32 rotationCount = reader.readInt32();
    const qint32 actionCount = reader.readInt32();
    block.frameScale = reader.readFloat();
    block.blendLength = reader.readUInt16();
    block.blendStart = reader.readUInt16();
    block.blendEnd = reader.readUInt16();
    block.speed = reader.readFloat();
    block.loopFrame = reader.readUInt16();
    if (!reader.hasError() && nodeCount != initialNodeCount) {
        reader.setErrorText(QCoreApplication::translate(
            "ModelFiles", "nodeLength is different value than initialNodeLength. They should be the same."));
    }

    readRecords(reader, nodeCount, NodeBytes, block.nodes, [](BinaryFileReader &r) {
        AnimNode node;
        node.translationIndex = r.readUInt16();
        node.rotationIndex = r.readUInt16();
        return node;
    });
    AnimNode unkept;
    for (qint64 i = 0; i < nodeCount && !reader.hasError(); ++i) {
        AnimNode &node = block.nodes.empty() ? unkept : block.nodes[size_t(i)];
        node.initialPosition = reader.readVec3();
        node.initialRotation = reader.readVec4();
    }
    readRecords(reader, frameCount, FrameBytes, block.frames,
                [](BinaryFileReader &r) { return AnimFrame{r.readFloat()}; });
    block.translations = readTable<QVector3D>(reader, translationCount, frameCount);
    block.rotations = readTable<QVector4D>(reader, rotationCount, frameCount);
    readRecords(reader, actionCount, ActionBytes, block.actions, readAction);
    return block;
}

template <typename Key>
void writeTable(BinaryFileWriter &writer, const TrackTable<Key> &table)
{
    writer.writeFloats(reinterpret_cast<const float *>(table.keys().data()),
                       table.keys().size() * size_t(KeyFloats<Key>));
}

void writeBlock(BinaryFileWriter &writer, const AnimBlock &block)
{
    Q_ASSERT(block.translations.frameCount() == block.frameCount());
    Q_ASSERT(block.rotations.frameCount() == block.frameCount());

    writer.writeInt32(block.animId);
    writer.writeInt32(block.frameCount());
    writer.writeInt32(qint32(block.nodes.size()));
    writer.writeInt32(qint32(block.nodes.size()));
    writer.writeInt32(block.translations.trackCount());
    writer.writeInt32(block.rotations.trackCount());
    writer.writeInt32(qint32(block.actions.size()));
    writer.writeFloat(block.frameScale);
    writer.writeUInt16(block.blendLength);
    writer.writeUInt16(block.blendStart);
    writer.writeUInt16(block.blendEnd);
    writer.writeFloat(block.speed);
    writer.writeUInt16(block.loopFrame);

    for (const AnimNode &node : block.nodes) {
        writer.writeUInt16(node.translationIndex);
        writer.writeUInt16(node.rotationIndex);
    }
    for (const AnimNode &node : block.nodes) {
        writer.writeVec3(node.initialPosition);
        writer.writeVec4(node.initialRotation);
    }
    for (const AnimFrame &frame : block.frames)
        writer.writeFloat(frame.yawOffset);
    writeTable(writer, block.translations);
    writeTable(writer, block.rotations);
    for (const AnimAction &action : block.actions) {
        writer.writeUInt16(action.frame);
        writer.writeUInt16(action.eventType);
        writer.writeUInt16(action.node);
        writer.writeVec3(action.offset);
        writer.writeFloats(action.args.data(), action.args.size());
    }
}
} // namespace

void AnimBlock::setFrameCount(int count)
{
    count = std::max(count, 0);
    frames.resize(size_t(count));
    translations.setFrameCount(count, NeutralTranslation);
    rotations.setFrameCount(count, NeutralRotation);
}

void AnimBlock::setTranslationCount(int count)
{
    translations.setTrackCount(std::max(count, 0), NeutralTranslation);
}

void AnimBlock::setRotationCount(int count)
{
    rotations.setTrackCount(std::max(count, 0), NeutralRotation);
}

bool AnimFile::read(const QString &path, QString *errorText)
{
    return readModelFile(*this, path, errorText);
}

bool AnimFile::read(BinaryFileReader &reader)
{
    version = reader.readInt32();
    const qint32 blockCount = reader.readInt32();
    blocks.clear();
    qint64 empty = 0;
    readRecords(reader, blockCount, BlockBytes, blocks, [&empty](BinaryFileReader &r) {
        AnimBlock block = readBlock(r);
        empty += emptyTracks(block);
        if (empty > MaxEmptyTracksOfFile && !r.hasError())
            r.setErrorText(tracksWithoutFrames(empty));
        return block;
    });
    bytesBehind = reader.bytesLeft();
    return reader.hasError();
}

QString AnimFile::refusal() const
{
    if (blocks.empty())
        return QCoreApplication::translate("ModelFiles",
                                           "An animation file without an animation is not saved.");
    qint64 left = MaxEmptyTracksOfFile;
    qint64 empty = 0;
    bool all = true;
    for (const AnimBlock &block : blocks) {
        empty += emptyTracks(block);
        all = readableTracks(block, left) == trackCounts(block) && all;
    }
    return all ? QString()
               : QCoreApplication::translate("ModelFiles",
                                             "%1 tracks without frames are more than can be read back.")
                     .arg(empty);
}

bool AnimFile::write(const QString &path, QString *reason) const
{
    return writeModelFile(*this, path, reason);
}

bool AnimFile::write(BinaryFileWriter &writer) const
{
    if (!refusal().isEmpty())
        return true;
    writeDraft(writer);
    return false;
}

void AnimFile::writeDraft(BinaryFileWriter &writer) const
{
    writer.writeInt32(version);
    writer.writeInt32(qint32(blocks.size()));
    qint64 left = MaxEmptyTracksOfFile;
    for (const AnimBlock &block : blocks) {
        const TrackCounts readable = readableTracks(block, left);
        if (readable == trackCounts(block)) {
            writeBlock(writer, block);
            continue;
        }
        // Tracks without keys hold nothing: those that reading would refuse are left out.
        AnimBlock cut = block;
        cut.setTranslationCount(readable.first);
        cut.setRotationCount(readable.second);
        writeBlock(writer, cut);
    }
}
