// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EditedList.h"

#include <numeric>

/// The places of a list in their order.
inline std::vector<int> placesOf(int count)
{
    std::vector<int> places(static_cast<size_t>(count));
    std::iota(places.begin(), places.end(), 0);
    return places;
}

/// The tracks of a block, which bones follow by their numbers. `Command` exchanges them.
template <typename Command>
class TrackList final : public EditedList
{
public:
    explicit TrackList(AnimDocument &document);

    QByteArray text(const QVector<RecordIndex> &records, const RecordIndex &current) const override;
    ListEdit cut(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit duplicate(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit move(const QVector<RecordIndex> &records, const RecordIndex &current, int by) override;
    JsonProblem paste(const QByteArray &text, const RecordRef &current, ListEdit &edit) override;

private:
    using State = typename Command::State;
    using Table = TrackTable<typename State::Key>;

    const AnimBlock &block(const RecordIndex &index) const;
    Table copied(const RecordIndex &index, const QVector<int> &tracks) const;
    ListEdit insert(RecordIndex at, const Table &tracks, const QString &step);
    QString arrange(State &state, const RecordIndex &index, const std::vector<int> &places,
                    const Table &added) const;
    void push(const RecordIndex &index, State state, const RecordRef &before, const RecordRef &after);

    AnimDocument &m_document;
};

/// The bones of a mesh, whose numbers stand in bones, vertices, hot points and the head track.
class BoneList final : public EditedList
{
public:
    explicit BoneList(SkinnedMeshDocument &document);

    QByteArray text(const QVector<RecordIndex> &records, const RecordIndex &current) const override;
    ListEdit cut(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit duplicate(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit move(const QVector<RecordIndex> &records, const RecordIndex &current, int by) override;
    JsonProblem paste(const QByteArray &text, const RecordRef &current, ListEdit &edit) override;

private:
    ListEdit insert(int at, std::vector<SkinnedMeshNode> bones, const QVector<int> &numbers, int parent,
                    const QString &step);
    template <typename Edit>
    ListEdit push(Edit edit, const QVector<RecordIndex> &before, const QString &step);

    SkinnedMeshDocument &m_document;
};

/// The bones of the animations, which key frame actions name: those of all blocks with as many bones are
/// edited together, for they are a mesh's.
class BlockBoneList final : public EditedList
{
public:
    explicit BlockBoneList(AnimDocument &document);

    QByteArray text(const QVector<RecordIndex> &records, const RecordIndex &current) const override;
    ListEdit cut(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit duplicate(const QVector<RecordIndex> &records, const RecordIndex &current) override;
    ListEdit move(const QVector<RecordIndex> &records, const RecordIndex &current, int by) override;
    JsonProblem paste(const QByteArray &text, const RecordRef &current, ListEdit &edit) override;

private:
    const std::vector<AnimNode> &bones(const RecordIndex &index) const;
    std::vector<AnimNode> copied(const RecordIndex &index, const QVector<int> &numbers) const;
    ListEdit insert(RecordIndex at, const std::vector<AnimNode> &added, const QVector<int> &copied,
                    const QString &step);
    ListEdit arrange(const std::vector<int> &places, const std::vector<AnimNode> &added,
                     const QVector<int> &copied, const QVector<RecordRef> &selected, const RecordRef &before,
                     const QString &step);

    AnimDocument &m_document;
};
