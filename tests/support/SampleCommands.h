// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AllCommands.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <type_traits>

/// Every command of the program on the records of a model.
namespace SampleCommands {
/// Shows nothing.
struct BlindView : DocumentView
{
    void aboutToChange() override {}
    void recordChanged(const RecordRef &) override {}
    void structureChanged(const StructureChange &) override {}
};

/// The odd model of a kind, and a real one where there is one.
template <typename Model>
std::vector<Model> oddAndReal()
{
    std::vector<Model> models{SampleModels::oddModel<Model>()};
    const QString path = TestSupport::shared(
        std::is_same_v<Model, SkinnedMesh> ? QString("gamedata/game/models/fox/fox.skinnedmesh")
        : std::is_same_v<Model, AnimFile>  ? QString("gamedata/game/anims/knight/knight.anim")
                                           : QString("gamedata/game/models/avocado/avocado.staticmesh"));
    Model real;
    if (!path.isEmpty() && !real.read(path))
        models.push_back(std::move(real));
    return models;
}

/// How many of the indexes a kind of record needs.
template <typename RecordType, typename = void>
inline constexpr size_t indexCount =
    std::is_same_v<typename RecordType::Record, typename RecordType::Model> ? 0 : 3;
template <typename RecordType>
inline constexpr size_t indexCount<RecordType, std::void_t<decltype(RecordType::component)>> =
    RecordType::component + 1;

template <typename Command, typename = void>
inline constexpr bool isField = false;
template <typename Command>
inline constexpr bool isField<Command, std::void_t<typename Command::Field>> = true;

/// Whether the command exchanges a list and all numbers that count in it.
template <typename Command, typename = void>
inline constexpr bool isExchange = false;
template <typename Command>
inline constexpr bool isExchange<Command, std::void_t<typename Command::State>> = true;

/// Whether the command changes a list: neither a field nor the whole model.
template <typename Command>
inline constexpr bool isStructure =
    !isField<Command> && !isExchange<Command> && !std::is_same_v<Command, UC_AnimKeys> &&
    (indexCount<typename Command::Place> > 0);

template <typename Command>
constexpr bool isInsertion()
{
    if constexpr (isStructure<Command>)
        return std::is_constructible_v<Command, EditTarget<typename Command::Model>, RecordIndex,
                                       typename Command::Record>;
    return false;
}

/// Whether the command exchanges the whole model for another one.
template <typename Command>
inline constexpr bool isReplacement =
    std::is_constructible_v<Command, EditTarget<typename Command::Model>, typename Command::Model, QString>;

/// A record of the kind, not the first where there is a choice.
template <typename RecordType>
RecordIndex someIndex(const typename RecordType::Model &model)
{
    for (const int owner : {1, 0, 2, 3, 4, 5}) {
        for (RecordIndex index :
             {RecordIndex{owner, 1, 1}, RecordIndex{owner, 1, 0}, RecordIndex{owner, 0, 0}}) {
            std::fill(index.begin() + indexCount<RecordType>, index.end(), 0);
            if (RecordType::find(model, index))
                return index;
        }
    }
    return {};
}

// Another value than the given one, of each type that a field has.
template <typename Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
Number other(Number value)
{
    return Number(value + 1);
}
inline float other(float value)
{
    return std::isfinite(value) && value + 1.5f != value ? value + 1.5f : 1.5f;
}
inline QString other(const QString &value)
{
    return value + QLatin1Char('x');
}
inline QHash<qint32, QString> other(QHash<qint32, QString> names)
{
    names[4] += QLatin1Char('x');
    return names;
}
template <typename Vector, std::enable_if_t<std::is_class_v<Vector>, int> = 0>
Vector other(Vector value)
{
    // The last component, so that a field that stores only its first is found out.
    auto &last = value[int(sizeof(Vector) / sizeof(value[0])) - 1];
    last = other(last);
    return value;
}

/// The bones of a mesh in another order.
template <typename State>
State otherState(const SkinnedMesh &mesh, const RecordIndex &)
{
    return *State::moved(mesh, {1}, 1).skeleton;
}
/// The tracks of a block without the last, or one where there was none; a bone more in the first blocks; a
/// longer block.
template <typename State>
State otherState(const AnimFile &file, const RecordIndex &index)
{
    if constexpr (std::is_same_v<State, BlockBones>) {
        State state(file, 0);
        std::vector<int> places(file.blocks[0].nodes.size());
        std::iota(places.begin(), places.end(), 0);
        places.push_back(-1);
        state.arrange(places, {AnimNode()}, {});
        return state;
    } else if constexpr (std::is_same_v<State, WholeBlock>) {
        AnimBlock block = file.blocks[size_t(index[0])];
        block.setFrameCount(block.frameCount() + 2);
        block.animId = other(block.animId);
        return {file.blocks[size_t(index[0])], std::move(block)};
    } else {
        const AnimBlock &block = file.blocks[size_t(index[0])];
        State state(block);
        std::vector<int> places(static_cast<size_t>(State::table(block).trackCount()));
        std::iota(places.begin(), places.end(), 0);
        if (places.empty())
            places.push_back(-1);
        else
            places.pop_back();
        state.arrange(places, {1, block.frameCount()});
        return state;
    }
}

/// A command that changes something at `index`, where a field or a list must be.
template <typename Command>
Command *make(EditTarget<typename Command::Model> target, const RecordIndex &index)
{
    if constexpr (isField<Command>) {
        return new Command(target, index,
                           other(Command::Field::get(*Command::Place::find(target.model(), index))));
    } else if constexpr (isExchange<Command>) {
        const RecordRef place{Command::Place::kind, index};
        return new Command(target, index, otherState<typename Command::State>(target.model(), index), place,
                           place);
    } else if constexpr (std::is_same_v<Command, UC_AnimKeys>) {
        const AnimBlock *block = Command::Place::find(target.model(), index);
        const int last = block->frameCount() - 1;
        BlockKeys keys;
        keys.setYaw(last, other(block->frames[size_t(last)].yawOffset));
        if (block->translations.trackCount() > 0)
            keys.setTranslation(0, last, other(block->translations.at(0, last)));
        if (block->rotations.trackCount() > 0)
            keys.setRotation(0, last, other(block->rotations.at(0, last)));
        keys.setYaw(last + 1, 1.0f); // which there is not
        return new Command(target, index, keys, {{Command::Place::kind, index}});
    } else if constexpr (isInsertion<Command>()) {
        const auto &list = *Command::Place::list(target.model(), index);
        return new Command(target, index, list.empty() ? typename Command::Record() : list.back());
    } else if constexpr (isStructure<Command>) {
        return new Command(target, index);
    } else if constexpr (isReplacement<Command>) {
        auto model = target.model();
        model.version = other(model.version);
        return new Command(target, model, QStringLiteral("a.glb"));
    } else if constexpr (std::is_constructible_v<Command, EditTarget<typename Command::Model>, float>) {
        return new Command(target, 3.0f);
    } else {
        return new Command(target, 10.0f, 20.0f, 30.0f);
    }
}

/// Calls `body(CommandTag<Command>())` for every command.
template <typename Body>
void forEach(Body body)
{
    std::apply([&body](auto... tags) { (body(tags), ...); }, allCommands);
}
} // namespace SampleCommands
