// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionCommand.h"

#include "ModelNames.h"
#include "Records.h"

#include <algorithm>
#include <limits>
#include <set>
#include <unordered_map>
#include <utility>

using namespace Motion;

namespace {
QString applyTo(const RenumberIds &how, AnimBlock &block)
{
    const auto named = how.table.find(block.animId);
    const qint64 id = named != how.table.end() ? named->second : block.animId + how.offset;
    if (id < std::numeric_limits<qint32>::min() || id > std::numeric_limits<qint32>::max())
        return Texts::tr("Its id would be %1, which is more than 32 bits hold.").arg(id);
    block.animId = qint32(id);
    return {};
}

/// The blocks that would have an id.
struct Holders
{
    std::set<int> have; ///< had it before
    std::set<int> come; ///< would get it
};

/// Takes those changes back that would let two blocks have one id that have two now. What is taken back can
/// stand in the way of others.
void refuseRepeatedIds(const AnimFile &file, std::vector<BlockChange> &changes)
{
    std::map<int, BlockChange *> changeOf;
    for (BlockChange &change : changes) {
        if (change.refusal.isEmpty() && change.block.animId != file.blocks[size_t(change.index)].animId)
            changeOf[change.index] = &change;
    }
    std::unordered_map<qint32, Holders> holders;
    for (int index = 0; index < int(file.blocks.size()); ++index) {
        const auto change = changeOf.find(index);
        if (change == changeOf.end())
            holders[file.blocks[size_t(index)].animId].have.insert(index);
        else
            holders[change->second->block.animId].come.insert(index);
    }
    std::vector<qint32> open;
    for (const auto &[id, of] : holders) {
        if (!of.come.empty())
            open.push_back(id);
    }
    const auto oldId = [&file](int index) { return file.blocks[size_t(index)].animId; };
    while (!open.empty()) {
        const qint32 id = open.back();
        open.pop_back();
        Holders &of = holders[id];
        const auto other = [&](int index) {
            return std::find_if(of.come.begin(), of.come.end(),
                                [&](int each) { return oldId(each) != oldId(index); });
        };
        if (of.come.empty() || (of.have.empty() && other(*of.come.begin()) == of.come.end()))
            continue;
        for (const int index : of.come) {
            const int first = of.have.empty() ? *other(index) : *of.have.begin();
            changeOf[index]->refusal =
                Texts::tr("Its id would be %1, which animation %2 has.").arg(id).arg(first);
        }
        const std::set<int> back = std::exchange(of.come, {});
        for (const int index : back) {
            holders[oldId(index)].have.insert(index);
            open.push_back(oldId(index));
        }
    }
}
} // namespace

namespace Motion {
QString readIdTable(const QString &text, std::map<qint32, qint32> &table)
{
    for (const QString &pair : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (pair.trimmed().isEmpty())
            continue;
        const QStringList ids = pair.split(QLatin1Char('='));
        bool isFrom = false;
        bool isTo = false;
        const int from = ids.value(0).trimmed().toInt(&isFrom);
        const int to = ids.value(1).trimmed().toInt(&isTo);
        if (ids.size() != 2 || !isFrom || !isTo)
            return Texts::tr("'%1' is not an old id, an equals sign and a new id.").arg(pair.trimmed());
        if (!table.emplace(from, to).second)
            return Texts::tr("The id %1 stands in the table twice.").arg(from);
    }
    return {};
}

std::vector<BlockChange> changesBy(const Command &command, const AnimFile &file,
                                   const std::vector<int> &blocks, const SkinnedMesh *mesh,
                                   const std::atomic_bool &cancelled, std::atomic_int *percent)
{
    std::vector<BlockChange> changes;
    std::vector<BlockAccount> accounts;
    const std::set<int> wanted(blocks.begin(), blocks.end());
    for (const int index : wanted) {
        const AnimBlock *block = Records::element(file.blocks, index);
        if (cancelled)
            return changes;
        if (!block)
            continue;
        BlockChange change;
        change.index = index;
        change.block = *block;
        BlockAccount account;
        account.cancelled = &cancelled;
        change.refusal = std::visit(
            [&](const auto &how) {
                using How = std::decay_t<decltype(how)>;
                if constexpr (std::is_same_v<How, RenumberIds>)
                    return applyTo(how, change.block);
                else if constexpr (std::is_same_v<How, Mirror>)
                    return apply(how, change.block, account, mesh);
                else
                    return apply(how, change.block, account);
            },
            command);
        if (cancelled)
            return changes;
        changes.push_back(std::move(change));
        accounts.push_back(std::move(account));
        if (percent)
            *percent = int(100 * changes.size() / wanted.size());
    }
    if (std::holds_alternative<RenumberIds>(command))
        refuseRepeatedIds(file, changes);
    for (size_t i = 0; i < changes.size() && !cancelled; ++i) {
        BlockChange &change = changes[i];
        const AnimBlock &before = file.blocks[size_t(change.index)];
        if (!change.refusal.isEmpty()) {
            change.block = {};
            continue;
        }
        change.changes = !isSame(before, change.block);
        if (change.changes)
            change.words = differences(before, change.block, accounts[i]);
        else
            change.block = {};
    }
    return changes;
}

QString blockTitle(const AnimFile &file, int index, const SkinnedMesh *mesh)
{
    static const SkinnedMesh nameless;
    const qint32 id = file.blocks[size_t(index)].animId;
    const QString name = animationName(mesh ? *mesh : nameless, id);
    return name.isEmpty()
               ? Texts::tr("Animation %1 (id %2)").arg(index).arg(id)
               : Texts::tr("Animation %1 (%2: %3)").arg(QString::number(index), QString::number(id), name);
}
} // namespace Motion
