// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PicturePlan.h"
#include "PictureThreads.h"
#include "PlannedScene.h"
#include "PosedModel.h"
#include "Validation.h"

#include <QStringList>

#include <functional>
#include <variant>

class QImage;
struct PictureWishes;

/// What is wanted of a sequence beside what is wanted of each of its pictures.
struct SequenceWishes
{
    bool hasFrames = false;    ///< otherwise the frame of the single picture
    bool hasAllFrames = false; ///< of the block
    PicturePlan plan;
};

/// Takes the pictures in their order.
using TakeShot = std::function<void(const PicturePlan::Shot &shot, const QImage &picture)>;

/// A model and all that its pictures have in common.
class ModelSequence
{
public:
    ModelSequence(const PictureWishes &wishes, const SequenceWishes &sequence)
        : m_wishes(wishes)
        , m_sequence(sequence)
    {}

    /// Reads what is to be drawn. Returns why there is nothing.
    [[nodiscard]] QString read(const QString &file, const MaterialFolders &chosen);
    const PicturePlan &plan() const { return m_sequence.plan; }
    /// The files of the pictures: numbered ones of the name `output`, or of the model's in such a folder.
    QStringList targets(const QString &output) const;

    /// Draws all on all cores, the camera framing them together, and writes them to `targets`, telling of
    /// each in their order; or has them taken. The first that fails is the last. Gives the exit code; or
    /// nothing but limits, which do not allow these pictures.
    std::variant<int, DrawingLimits> draw(const QStringList &targets, const TakeShot &take = {}) const;

private:
    PlannedScene frameTogether(OffscreenScene &scene, const std::vector<PicturePlan::Shot> &shots) const;

    const PictureWishes &m_wishes;
    SequenceWishes m_sequence;
    QString m_file;
    MaterialFolders m_folders;
    PosedModel m_subject;
};
