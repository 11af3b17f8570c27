// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Finding.h"

namespace {
struct RuleRow
{
    Rule rule;
    const char *id;
    Severity severity;
};

const RuleRow ruleRows[] = {
    {Rule::NoBones, "no-bones", Severity::Error},
    {Rule::NoAnimations, "no-animations", Severity::Error},
    {Rule::NoSurfaces, "no-surfaces", Severity::Error},
    {Rule::ChildBoneOutOfRange, "child-bone-out-of-range", Severity::Error},
    {Rule::BoneCycle, "bone-cycle", Severity::Error},
    {Rule::BoneListedTwice, "bone-listed-twice", Severity::Warning},
    {Rule::BoneUnreachable, "bone-unreachable", Severity::Warning},
    {Rule::ParentBoneOutOfRange, "parent-bone-out-of-range", Severity::Warning},
    {Rule::ParentBoneMismatch, "parent-bone-mismatch", Severity::Warning},
    {Rule::TooManyBones, "too-many-bones", Severity::Error},
    {Rule::HeadTrackOutOfRange, "head-track-out-of-range", Severity::Warning},
    {Rule::HotPointBoneOutOfRange, "hot-point-bone-out-of-range", Severity::Error},
    {Rule::VertexBoneOutOfRange, "vertex-bone-out-of-range", Severity::Error},
    {Rule::TriangleIndexOutOfRange, "triangle-index-out-of-range", Severity::Error},
    {Rule::TriangleIndexReserved, "triangle-index-reserved", Severity::Error},
    {Rule::TriangleIncomplete, "triangle-incomplete", Severity::Error},
    {Rule::SurfaceEmpty, "surface-empty", Severity::Warning},
    {Rule::NormalZero, "normal-zero", Severity::Warning},
    {Rule::MaterialNotFound, "material-not-found", Severity::Warning},
    {Rule::TextureNotFound, "texture-not-found", Severity::Warning},
    {Rule::NameCase, "name-case", Severity::Note},
    {Rule::BoneCountMismatch, "bone-count-mismatch", Severity::Error},
    {Rule::AnimationIdRepeated, "animation-id-repeated", Severity::Warning},
    {Rule::TranslationTrackOutOfRange, "translation-track-out-of-range", Severity::Warning},
    {Rule::RotationTrackOutOfRange, "rotation-track-out-of-range", Severity::Warning},
    {Rule::TrackUnused, "track-unused", Severity::Note},
    {Rule::QuaternionZero, "quaternion-zero", Severity::Warning},
    {Rule::QuaternionUnnormalised, "quaternion-unnormalised", Severity::Warning},
    {Rule::LoopFrameBeyondEnd, "loop-frame-beyond-end", Severity::Warning},
    {Rule::ActionFrameBeyondEnd, "action-frame-beyond-end", Severity::Warning},
    {Rule::ActionBoneOutOfRange, "action-bone-out-of-range", Severity::Warning},
    {Rule::EventTypeUnknown, "event-type-unknown", Severity::Warning},
    {Rule::SoundUnknown, "sound-unknown", Severity::Warning},
    {Rule::ParticleUnknown, "particle-unknown", Severity::Warning},
    {Rule::ActorUnknown, "actor-unknown", Severity::Warning},
    {Rule::VoiceUnknown, "voice-unknown", Severity::Warning},
    {Rule::ImpactTypeUnknown, "impact-type-unknown", Severity::Warning},
    {Rule::BoxInverted, "box-inverted", Severity::Warning},
    {Rule::TextNotKept, "text-not-kept", Severity::Warning},
    {Rule::BytesBehindEnd, "bytes-behind-end", Severity::Warning},
    {Rule::NotFinite, "not-finite", Severity::Error},
};
constexpr size_t RuleCount = sizeof ruleRows / sizeof ruleRows[0];
static_assert(RuleCount == size_t(Rule::NotFinite) + 1, "every rule has its row");
} // namespace

const std::vector<Rule> &allRules()
{
    static const std::vector<Rule> all = [] {
        std::vector<Rule> rules;
        for (const RuleRow &row : ruleRows)
            rules.push_back(row.rule);
        return rules;
    }();
    return all;
}

QLatin1String ruleId(Rule rule)
{
    return QLatin1String(ruleRows[size_t(rule)].id);
}

Severity severityOf(Rule rule)
{
    return ruleRows[size_t(rule)].severity;
}

QLatin1String severityId(Severity severity)
{
    static const char *const ids[] = {"error", "warning", "note"};
    return QLatin1String(ids[size_t(severity)]);
}
