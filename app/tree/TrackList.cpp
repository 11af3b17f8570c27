// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "BlockSizes.h"
#include "NumberedLists.h"
#include "RecordsJson.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
struct TrackTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordEdits)
};

template <typename Command>
inline constexpr bool isOfTranslations = std::is_same_v<Command, UC_AnimTranslationTracks>;

/// The numbers of the tracks of one block.
QVector<int> tracksBeside(const QVector<RecordIndex> &records, const RecordIndex &current)
{
    QVector<int> tracks;
    for (const RecordIndex &index : records) {
        if (index[0] == current[0])
            tracks += index[1];
    }
    return tracks;
}
} // namespace

template <typename Command>
TrackList<Command>::TrackList(AnimDocument &document)
    : EditedList(isOfTranslations<Command> ? RecordKind::TranslationTrack : RecordKind::RotationTrack,
                 isOfTranslations<Command> ? RecordKind::Translations : RecordKind::Rotations,
                 listWords(isOfTranslations<Command> ? "translations" : "rotations"))
    , m_document(document)
{}

template <typename Command>
const AnimBlock &TrackList<Command>::block(const RecordIndex &index) const
{
    return m_document.model().blocks[size_t(index[0])];
}

template <typename Command>
typename TrackList<Command>::Table TrackList<Command>::copied(const RecordIndex &index,
                                                              const QVector<int> &tracks) const
{
    const Table &from = State::table(block(index));
    Table copy(tracks.size(), from.frameCount());
    for (int i = 0; i < tracks.size(); ++i) {
        for (int frame = 0; frame < from.frameCount(); ++frame)
            copy.at(i, frame) = from.at(tracks.at(i), frame);
    }
    return copy;
}

/// Lets the state of a block have these tracks; why not, where that cannot be.
template <typename Command>
QString TrackList<Command>::arrange(State &state, const RecordIndex &index, const std::vector<int> &places,
                                    const Table &added) const
{
    const int most = std::max(mostEntries(block(index), group()), State::table(block(index)).trackCount());
    if (int(places.size()) > most)
        return TrackTexts::tr("The animation has room for %1 tracks; it would have %2.")
            .arg(QString::number(most), QString::number(places.size()));
    const std::optional<int> woken = state.arrange(places, added);
    if (!woken)
        return {};
    return TrackTexts::tr(
               "A bone follows track %1, which does not exist, but would then. Correct that first; "
               "it is among the problems.")
        .arg(*woken);
}

template <typename Command>
void TrackList<Command>::push(const RecordIndex &index, State state, const RecordRef &before,
                              const RecordRef &after)
{
    m_document.undoStack()->push(
        new Command(m_document.editTarget(), {index[0], 0, 0}, std::move(state), before, after));
}

template <typename Command>
QByteArray TrackList<Command>::text(const QVector<RecordIndex> &records, const RecordIndex &current) const
{
    return RecordsJson::text(words().key, copied(current, tracksBeside(records, current)));
}

template <typename Command>
ListEdit TrackList<Command>::cut(const QVector<RecordIndex> &records, const RecordIndex &current)
{
    ListEdit edit;
    const QVector<int> tracks = tracksBeside(records, current);
    if (tracks.size() < records.size()) {
        edit.refusal =
            TrackTexts::tr("The selected tracks are of several animations, whose lengths differ: cut "
                           "those of one at a time.");
        return edit;
    }
    std::vector<int> places = placesOf(State::table(block(current)).trackCount());
    places.erase(std::remove_if(places.begin(), places.end(),
                                [&tracks](int track) {
                                    return std::binary_search(tracks.begin(), tracks.end(), track);
                                }),
                 places.end());
    const int followers = State::followers(block(current), tracks);
    const RecordRef next = places.empty() ? RecordRef{group(), {current[0], 0, 0}}
                                          : ref(current, 1, std::min(tracks.first(), int(places.size()) - 1));
    State state(block(current));
    state.arrange(places, {}); // fewer are never refused
    QUndoStack &stack = *m_document.undoStack();
    stack.beginMacro(TrackTexts::tr("Cut"));
    push(current, std::move(state), ref(current, 1, tracks.first()), next);
    stack.endMacro();
    if (followers > 0)
        edit.told = isOfTranslations<Command>
                        ? TrackTexts::tr("Bones that followed what was cut keep their initial position: %1.")
                              .arg(followers)
                        : TrackTexts::tr("Bones that followed what was cut keep their initial rotation: %1.")
                              .arg(followers);
    return edit;
}

template <typename Command>
ListEdit TrackList<Command>::insert(RecordIndex at, const Table &tracks, const QString &step)
{
    ListEdit edit;
    if (tracks.trackCount() == 0)
        return edit;
    std::vector<int> places = placesOf(State::table(block(at)).trackCount());
    std::vector<int> fresh;
    for (int i = 0; i < tracks.trackCount(); ++i) {
        fresh.push_back(-1 - i);
        edit.selected.append(ref(at, 1, at[1] + i));
    }
    places.insert(places.begin() + at[1], fresh.begin(), fresh.end());
    const RecordRef before = at[1] > 0 ? ref(at, 1, at[1] - 1) : RecordRef{group(), {at[0], 0, 0}};
    State state(block(at));
    edit.refusal = arrange(state, at, places, tracks);
    if (!edit.refusal.isEmpty())
        return edit;
    QUndoStack &stack = *m_document.undoStack();
    stack.beginMacro(step);
    push(at, std::move(state), before, edit.selected.last());
    stack.endMacro();
    edit.told =
        TrackTexts::tr("No bone follows the new tracks yet: enter their numbers on the pages of bones.");
    return edit;
}

template <typename Command>
ListEdit TrackList<Command>::duplicate(const QVector<RecordIndex> &records, const RecordIndex &current)
{
    const QVector<int> tracks = tracksBeside(records, current);
    return insert({current[0], tracks.last() + 1, 0}, copied(current, tracks), TrackTexts::tr("Duplicate"));
}

template <typename Command>
ListEdit TrackList<Command>::move(const QVector<RecordIndex> &records, const RecordIndex &current, int by)
{
    ListEdit edit;
    QVector<int> tracks = tracksBeside(records, current);
    std::vector<int> places = placesOf(State::table(block(current)).trackCount());
    if (tracks.first() + by < 0 || tracks.last() + by >= int(places.size()))
        return edit;
    const RecordRef before = ref(current, 1, tracks.first());
    for (const int track : qAsConst(tracks))
        edit.selected.append(ref(current, 1, track + by));
    // Those in front go first, so that none has to pass another.
    if (by > 0)
        std::reverse(tracks.begin(), tracks.end());
    for (const int track : qAsConst(tracks))
        std::swap(places[size_t(track)], places[size_t(track + by)]);
    QUndoStack &stack = *m_document.undoStack();
    stack.beginMacro(by < 0 ? TrackTexts::tr("Move Up") : TrackTexts::tr("Move Down"));
    State state(block(current));
    state.arrange(places, {}); // as many as before
    push(current, std::move(state), before, edit.selected.last());
    stack.endMacro();
    return edit;
}

template <typename Command>
JsonProblem TrackList<Command>::paste(const QByteArray &text, const RecordRef &current, ListEdit &edit)
{
    Table tracks;
    JsonProblem problem = RecordsJson::read(text, words().key, tracks);
    if (!problem.text.isEmpty())
        return problem;
    const int frames = block(current.index).frameCount();
    if (tracks.trackCount() > 0 && tracks.frameCount() != frames) {
        edit.refusal =
            TrackTexts::tr("The tracks of the clipboard have %1 keys each, and the animation has %2 frames.")
                .arg(QString::number(tracks.frameCount()), QString::number(frames));
        return problem;
    }
    RecordIndex at = current.index;
    if (current.kind == kind())
        ++at[1];
    edit = insert(at, tracks, TrackTexts::tr(words().paste));
    return problem;
}

template class TrackList<UC_AnimTranslationTracks>;
template class TrackList<UC_AnimRotationTracks>;
