// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventArguments.h"
#include "NameTables.h"
#include "ReferenceIds.h"
#include "ValidationParts.h"

#include <QHash>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Validation;

namespace {
/// What indexes hold for "none", by convention.
constexpr quint16 None = 0xFFFF;
/// How far the square of a rotation's length may be from 1. The files' own are off by 1e-7, those of tools
/// that store rotations in 16 bits by 1e-4.
constexpr double LengthTolerance = 2e-3;

/// What an argument of an event may name: the rule for the numbers that its table does not have.
struct NamedArgument
{
    QLatin1String question;
    ReferenceKind table;
    Rule rule;
    const char *text;
};

const NamedArgument namedArguments[] = {
    {Question::Sound, ReferenceKind::Sounds, Rule::SoundUnknown,
     QT_TRANSLATE_NOOP("Validation",
                       "Action %1 of animation %2 names sound %3, which the table of sounds does not have: "
                       "nothing is heard, unless your mod adds it. Choose one from the Database tab.")},
    {Question::Particle, ReferenceKind::Particles, Rule::ParticleUnknown,
     QT_TRANSLATE_NOOP("Validation",
                       "Action %1 of animation %2 names particle %3, which the table of particles does not "
                       "have: nothing is seen, unless your mod adds it. Choose one from the Database tab.")},
    {Question::Actor, ReferenceKind::Actors, Rule::ActorUnknown,
     QT_TRANSLATE_NOOP("Validation",
                       "Action %1 of animation %2 names actor type %3, which the table of actors does not "
                       "have: nobody appears, unless your mod adds it. Choose one from the Database tab.")},
    {Question::Voice, ReferenceKind::Voices, Rule::VoiceUnknown,
     QT_TRANSLATE_NOOP("Validation",
                       "Action %1 of animation %2 names voice %3, which the table of voices does not have: "
                       "nothing is said, unless your mod adds it. Choose one from the Database tab.")},
    {Question::Impact, ReferenceKind::Impacts, Rule::ImpactTypeUnknown,
     QT_TRANSLATE_NOOP("Validation",
                       "Action %1 of animation %2 names impact type %3, which the table of impacts does not "
                       "have. Choose one from the Database tab.")},
};

/// The arguments that name something, for each type of event.
struct EventUse
{
    int argument;
    const NamedArgument *named;
};

const std::vector<EventUse> &namedArgumentsOf(int eventType)
{
    static const std::vector<std::vector<EventUse>> table = [] {
        std::vector<std::vector<EventUse>> uses(size_t(eventTypeNames().size()));
        for (size_t type = 0; type < uses.size(); ++type) {
            for (int argument = 0; argument < int(AnimAction().args.size()); ++argument) {
                const QLatin1String question = eventArgument(int(type), argument).question;
                for (const NamedArgument &named : namedArguments) {
                    if (named.question == question)
                        uses[type].push_back({argument, &named});
                }
            }
        }
        return uses;
    }();
    return table[size_t(eventType)];
}

/// A number as the game takes it from an argument: without its fraction.
std::optional<int> wholeNumber(float value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    if (!(double(value) > least - 1 && double(value) < most + 1))
        return {};
    return int(value);
}

class BlockCheck
{
public:
    BlockCheck(FindingCollector &found, const AnimBlock &block, int index, const ReferenceIds &ids)
        : m_found(found)
        , m_block(block)
        , m_index(index)
        , m_ids(ids)
    {}

    void check()
    {
        checkFinite(m_found, place(RecordKind::AnimBlock), std::pair(Field::frameScale, m_block.frameScale),
                    std::pair(Field::speed, m_block.speed));
        checkLoopFrame();
        for (int b = 0; b < int(m_block.nodes.size()); ++b)
            checkBone(b);
        for (int f = 0; f < m_block.frameCount(); ++f)
            checkFinite(m_found, place(RecordKind::AnimFrame, f),
                        std::pair(Field::yawOffset, m_block.frames[size_t(f)].yawOffset));
        checkTable(m_block.translations, RecordKind::TranslationTrack, &AnimNode::translationIndex);
        checkTable(m_block.rotations, RecordKind::RotationTrack, &AnimNode::rotationIndex);
        checkKeys();
        for (int a = 0; a < int(m_block.actions.size()); ++a)
            checkAction(a);
    }

private:
    RecordRef place(RecordKind kind, int second = 0, int third = 0) const
    {
        return {kind, {m_index, second, third}};
    }

    void checkLoopFrame()
    {
        const int loop = m_block.loopFrame;
        if (loop == None || loop < m_block.frameCount())
            return;
        m_found.add(Rule::LoopFrameBeyondEnd, place(RecordKind::AnimBlock), true, [&] {
            const QString mend = m_block.frames.empty()
                                     ? Texts::tr("Fixing it enters 65535: it loops from frame 0.")
                                     : Texts::tr("Fixing it enters the last frame.");
            return Texts::tr("Animation %1 loops to frame %2, which it does not have (%3), so it begins from "
                             "frame 0 again. %4")
                .arg(number(m_index), number(loop), range(m_block.frames.size()), mend);
        });
    }

    void checkBone(int b)
    {
        const AnimNode &bone = m_block.nodes[size_t(b)];
        const RecordRef bonePlace = place(RecordKind::AnimBone, b);
        checkFinite(m_found, bonePlace, std::pair(Field::initialPosition, bone.initialPosition),
                    std::pair(Field::initialRotation, bone.initialRotation));
        checkRotation(bonePlace, bone.initialRotation);
        checkTrack(Rule::TranslationTrackOutOfRange, bonePlace, bone.translationIndex,
                   m_block.translations.trackCount(),
                   QT_TRANSLATE_NOOP("Validation",
                                     "Bone %1 of animation %2 follows translation track %3, which does not "
                                     "exist (%4), so it keeps its initial position. Fixing it enters 65535, "
                                     "which says so."));
        checkTrack(Rule::RotationTrackOutOfRange, bonePlace, bone.rotationIndex,
                   m_block.rotations.trackCount(),
                   QT_TRANSLATE_NOOP("Validation",
                                     "Bone %1 of animation %2 follows rotation track %3, which does not "
                                     "exist (%4), so it keeps its initial rotation. Fixing it enters 65535, "
                                     "which says so."));
    }

    void checkTrack(Rule rule, const RecordRef &bone, int track, int count, const char *text)
    {
        if (track < count || track == None)
            return;
        m_found.add(rule, bone, true, [&] {
            return Texts::tr(text).arg(number(bone.index[1]), number(bone.index[0]), number(track),
                                       range(size_t(count)));
        });
    }

    /// Tells of tracks that no bone follows. There may be far more of them than bytes in the file.
    template <typename Table>
    void checkTable(const Table &table, RecordKind trackKind, quint16 AnimNode::*index)
    {
        m_used.clear();
        for (const AnimNode &bone : m_block.nodes) {
            if (bone.*index < table.trackCount())
                m_used.push_back(bone.*index);
        }
        std::sort(m_used.begin(), m_used.end());
        m_used.erase(std::unique(m_used.begin(), m_used.end()), m_used.end());

        int left = table.trackCount() - int(m_used.size());
        auto used = m_used.begin();
        for (int track = 0; left > 0; ++track) {
            if (used != m_used.end() && *used == track) {
                ++used;
                continue;
            }
            const RecordRef trackPlace = place(trackKind, track);
            if (!m_found.hasRoom(Rule::TrackUnused)) {
                m_found.count(Rule::TrackUnused, trackPlace, left);
                return;
            }
            m_found.add(Rule::TrackUnused, trackPlace, [&] {
                const QString text =
                    trackKind == RecordKind::TranslationTrack
                        ? Texts::tr("No bone follows translation track %1 of animation %2: it does nothing "
                                    "but make the file larger. Give it to a bone, or leave it.")
                        : Texts::tr("No bone follows rotation track %1 of animation %2: it does nothing "
                                    "but make the file larger. Give it to a bone, or leave it.");
                return text.arg(number(track), number(m_index));
            });
            --left;
        }
    }

    void checkKeys()
    {
        const std::vector<QVector3D> &translations = m_block.translations.keys();
        for (size_t i = 0; i < translations.size(); ++i) {
            if (!isFinite(translations[i]))
                checkFinite(m_found, key(RecordKind::TranslationKey, i),
                            std::pair(Field::translation, translations[i]));
        }
        const std::vector<QVector4D> &rotations = m_block.rotations.keys();
        for (size_t i = 0; i < rotations.size(); ++i) {
            const RecordRef keyPlace = key(RecordKind::RotationKey, i);
            checkFinite(m_found, keyPlace, std::pair(Field::rotation, rotations[i]));
            checkRotation(keyPlace, rotations[i]);
        }
    }

    RecordRef key(RecordKind kind, size_t i) const
    {
        const auto frames = size_t(m_block.frameCount());
        return place(kind, int(i / frames), int(i % frames));
    }

    void checkRotation(const RecordRef &at, const QVector4D &rotation)
    {
        const double squared = lengthSquared(rotation);
        if (squared <= ZeroLengthSquared) {
            m_found.add(Rule::QuaternionZero, at, true, [&] {
                return Texts::tr("%1 is zero, which is no rotation at all: the view shows the bone unturned; "
                                 "the game may let it vanish. Fixing it enters 0, 0, 0, 1: unturned.")
                    .arg(rotationName(at));
            });
        } else if (std::isfinite(squared) && std::abs(squared - 1) > LengthTolerance) {
            m_found.add(Rule::QuaternionUnnormalised, at, true, [&] {
                return Texts::tr("%1 has the length %2 instead of 1: the view makes up for it; the game may "
                                 "shear the bone. Fixing it keeps the direction and makes the length 1.")
                    .arg(rotationName(at), QString::number(std::sqrt(squared), 'g', 4));
            });
        }
    }

    static QString rotationName(const RecordRef &at)
    {
        const RecordIndex &index = at.index;
        if (at.kind == RecordKind::AnimBone)
            return Texts::tr("The initial rotation of bone %1 of animation %2")
                .arg(number(index[1]), number(index[0]));
        return Texts::tr("The rotation at frame %1 of track %2 of animation %3")
            .arg(number(index[2]), number(index[1]), number(index[0]));
    }

    void checkAction(int a)
    {
        const AnimAction &action = m_block.actions[size_t(a)];
        const RecordRef at = place(RecordKind::AnimAction, a);
        const auto tell = [&](Rule rule, const char *text, int held, const QString &there = {}) {
            m_found.add(rule, at, [&] {
                const QString said = Texts::tr(text).arg(number(a), number(m_index), number(held));
                return there.isEmpty() ? said : said.arg(there);
            });
        };
        checkFinite(m_found, at, std::pair(Field::offset, action.offset),
                    std::pair(Field::arguments, action.args));
        if (action.frame >= m_block.frameCount()) {
            tell(Rule::ActionFrameBeyondEnd,
                 QT_TRANSLATE_NOOP("Validation",
                                   "Action %1 of animation %2 is due at frame %3, which does not exist (%4): "
                                   "it never happens. Enter a frame of the animation, or remove the action."),
                 action.frame, range(m_block.frames.size()));
        }
        if (action.node != None && action.node >= m_block.nodes.size()) {
            tell(Rule::ActionBoneOutOfRange,
                 QT_TRANSLATE_NOOP("Validation",
                                   "Action %1 of animation %2 happens at bone %3, which does not exist (%4). "
                                   "Enter a bone, or 65535 for none."),
                 action.node, range(m_block.nodes.size()));
        }
        if (action.eventType >= eventTypeNames().size()) {
            tell(Rule::EventTypeUnknown,
                 QT_TRANSLATE_NOOP("Validation",
                                   "Action %1 of animation %2 has the event type %3, which the game does not "
                                   "know: nothing happens. Choose one from the list."),
                 action.eventType);
            return;
        }
        for (const EventUse &use : namedArgumentsOf(action.eventType)) {
            const float value = action.args[size_t(use.argument)];
            const std::optional<int> id = wholeNumber(value);
            if (!std::isfinite(value) || (id && m_ids.knows(use.named->table, *id)))
                continue;
            m_found.add(use.named->rule, at, [&] {
                return Texts::tr(use.named->text).arg(number(a), number(m_index), number(double(value)));
            });
        }
    }

    FindingCollector &m_found;
    const AnimBlock &m_block;
    const int m_index;
    const ReferenceIds &m_ids;
    std::vector<int> m_used;
};

/// Whether the animations fit the mesh, or at least each other.
void checkBoneCounts(FindingCollector &found, const AnimFile &file, const SkinnedMesh *mesh)
{
    const size_t first = file.blocks.front().nodes.size();
    const auto isLikeFirst = [first](const AnimBlock &block) { return block.nodes.size() == first; };
    if (mesh && mesh->nodes.size() != first &&
        std::all_of(file.blocks.begin(), file.blocks.end(), isLikeFirst)) {
        found.add(Rule::BoneCountMismatch, {RecordKind::AnimFile, {}}, [&] {
            return Texts::tr("The animations are for %1 bones, but the open mesh has %2: they cannot be "
                             "played on it. Open the mesh and the animations that belong together.")
                .arg(number(first), number(mesh->nodes.size()));
        });
        return;
    }
    const size_t expected = mesh ? mesh->nodes.size() : first;
    for (size_t i = 0; i < file.blocks.size(); ++i) {
        const size_t bones = file.blocks[i].nodes.size();
        if (bones == expected)
            continue;
        found.add(Rule::BoneCountMismatch, {RecordKind::AnimBlock, {int(i), 0, 0}}, [&] {
            const QString text = mesh
                                     ? Texts::tr("Animation %1 is for %2 bones, but the mesh has %3: it "
                                                 "cannot be played right. Replace it by one for this mesh.")
                                     : Texts::tr("Animation %1 is for %2 bones, but animation 0 for %3: they "
                                                 "cannot be for the same mesh. Replace one of them.");
            return text.arg(number(i), number(bones), number(expected));
        });
    }
}

void checkIds(FindingCollector &found, const AnimFile &file)
{
    QHash<int, size_t> first;
    for (size_t i = 0; i < file.blocks.size(); ++i) {
        const int id = file.blocks[i].animId;
        const auto known = first.constFind(id);
        if (known == first.constEnd()) {
            first.insert(id, i);
            continue;
        }
        found.add(Rule::AnimationIdRepeated, {RecordKind::AnimBlock, {int(i), 0, 0}}, [&] {
            return Texts::tr("Animation %1 has the id %2, as animation %3 has: the game finds only one of "
                             "them. Give it an id of its own.")
                .arg(number(i), number(id), number(*known));
        });
    }
}

void check(FindingCollector &found, const AnimFile &file, const SkinnedMesh *mesh, const ReferenceIds &ids)
{
    if (file.blocks.empty()) {
        found.add(Rule::NoAnimations, {RecordKind::AnimFile, {}}, [] {
            return Texts::tr("The file has no animations: there is nothing to play, and it cannot be saved. "
                             "Add one.");
        });
        return;
    }
    checkBoneCounts(found, file, mesh);
    checkIds(found, file);
    for (size_t i = 0; i < file.blocks.size(); ++i)
        BlockCheck(found, file.blocks[i], int(i), ids).check();
}
} // namespace

std::vector<Finding> validate(const AnimFile &file, const SkinnedMesh *mesh, const ReferenceIds &ids,
                              int listed)
{
    FindingCollector found(listed);
    check(found, file, mesh, ids);
    checkEnd(found, {RecordKind::AnimFile, {}}, file.bytesBehind);
    return found.take();
}

std::vector<RecordRef> repairablePlaces(Rule rule, const AnimFile &file, int most)
{
    FindingCollector found(rule, most);
    check(found, file, nullptr, {});
    return found.takePlaces();
}
