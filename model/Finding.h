// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QLatin1String>
#include <QString>

#include <vector>

enum class Severity {
    Error,   ///< the file cannot be saved, read back, shown or played as it stands
    Warning, ///< a part of the model has no effect, or another one than it says
    Note,    ///< nothing goes wrong
};

/// What a model is checked for. The order is that of lists of findings.
enum class Rule {
    NoBones,
    NoAnimations,
    NoSurfaces,
    ChildBoneOutOfRange,
    BoneCycle,
    BoneListedTwice,
    BoneUnreachable,
    ParentBoneOutOfRange,
    ParentBoneMismatch,
    TooManyBones,
    HeadTrackOutOfRange,
    HotPointBoneOutOfRange,
    VertexBoneOutOfRange,
    TriangleIndexOutOfRange,
    TriangleIndexReserved,
    TriangleIncomplete,
    SurfaceEmpty,
    NormalZero,
    MaterialNotFound,
    TextureNotFound,
    NameCase,
    BoneCountMismatch,
    AnimationIdRepeated,
    TranslationTrackOutOfRange,
    RotationTrackOutOfRange,
    TrackUnused,
    QuaternionZero,
    QuaternionUnnormalised,
    LoopFrameBeyondEnd,
    ActionFrameBeyondEnd,
    ActionBoneOutOfRange,
    EventTypeUnknown,
    SoundUnknown,
    ParticleUnknown,
    ActorUnknown,
    VoiceUnknown,
    ImpactTypeUnknown,
    BoxInverted,
    TextNotKept,
    BytesBehindEnd,
    NotFinite,
};

/// Every rule, in order.
const std::vector<Rule> &allRules();
/// The rule's name for programs, such as "bone-cycle". It never changes.
QLatin1String ruleId(Rule rule);
Severity severityOf(Rule rule);
/// "error", "warning" or "note".
QLatin1String severityId(Severity severity);

/// One thing that is wrong with a model.
struct Finding
{
    Rule rule;
    RecordRef place;
    QString text; ///< what is wrong, what comes of it, how it is mended
    /// Whether there is a repair that leaves no choice; see repair() of the undo commands.
    bool repairable = false;
    /// In the line that closes a long list of one rule: how many findings are not listed. `place` is that of
    /// the first of them.
    qint64 notListed = 0;
};
