// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TrackTable.h"

#include <QString>
#include <QVector3D>
#include <QVector4D>

#include <array>
#include <vector>

class BinaryFileReader;
class BinaryFileWriter;

/// One bone of an animation block. A track index at or beyond the table's track count (65535 by
/// convention) keeps the bone at its initial position or rotation.
struct AnimNode
{
    QVector3D initialPosition;
    QVector4D initialRotation{0.0f, 0.0f, 0.0f, 1.0f}; ///< quaternion x, y, z, w
    quint16 translationIndex = 0xFFFF;
    quint16 rotationIndex = 0xFFFF;
};

struct AnimFrame
{
    float yawOffset = 0.0f; ///< radians about z
};

/// A key frame action: a game event fired on a frame.
struct AnimAction
{
    quint16 frame = 0;
    quint16 eventType = 0;
    quint16 node = 0xFFFF; ///< 0xFFFF: no bone
    QVector3D offset;
    std::array<float, 8> args{}; ///< what each means depends on the event type
};

struct AnimBlock
{
    qint32 animId = 0;
    float frameScale = 1.0f;
    quint16 blendLength = 0;
    quint16 blendStart = 0;
    quint16 blendEnd = 0;
    float speed = 1.0f; ///< frames per second
    quint16 loopFrame = 0xFFFF;
    std::vector<AnimNode> nodes; ///< one per bone of the mesh
    std::vector<AnimFrame> frames;
    TrackTable<QVector3D> translations; ///< always frameCount() keys a track
    TrackTable<QVector4D> rotations;    ///< quaternions x, y, z, w; always frameCount() keys a track
    std::vector<AnimAction> actions;

    int frameCount() const { return int(frames.size()); }

    /// Cuts or extends frames and all tracks; over added frames every track holds its last key, and their
    /// yaw offset is 0. A negative count is 0.
    void setFrameCount(int count);
    /// Cuts or extends a table; added tracks repeat the last one. Track indexes of bones are not adjusted.
    void setTranslationCount(int count);
    void setRotationCount(int count);
};

/// All animations of one model: the contents of an .anim file, in file order.
struct AnimFile
{
    qint32 version = 0;
    std::vector<AnimBlock> blocks;
    qint64 bytesBehind = 0; ///< behind the last record of the file that was read; not saved

    /// Reads `path` into this (fresh) model. Returns true on failure; `errorText`, if given, then says why
    /// and is empty when the file could not be opened. A partly read model is to be thrown away.
    [[nodiscard]] bool read(const QString &path, QString *errorText = nullptr);
    [[nodiscard]] bool read(BinaryFileReader &reader);

    /// Why the model cannot be written at all; empty when it can.
    QString refusal() const;

    /// Writes the model to `path` in one step. Returns true on failure, with the old file untouched: when
    /// there are no blocks or when the file cannot be written. `reason`, if
    /// given, then says why.
    [[nodiscard]] bool write(const QString &path, QString *reason = nullptr) const;
    [[nodiscard]] bool write(BinaryFileWriter &writer) const;
    /// Writes what can be read back whatever is wrong with the model.
    void writeDraft(BinaryFileWriter &writer) const;
};
