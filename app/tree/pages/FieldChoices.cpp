// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FieldChoices.h"

#include "EventArguments.h"
#include "NameTables.h"
#include "ReferenceTables.h"
#include "Skeleton.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace {
struct ChoiceTexts
{
    Q_DECLARE_TR_FUNCTIONS(FieldChoices)
};

QString titleOf(ReferenceKind kind)
{
    switch (kind) {
    case ReferenceKind::Actors:
        return ChoiceTexts::tr("Actors");
    case ReferenceKind::Sounds:
        return ChoiceTexts::tr("Sounds");
    case ReferenceKind::Animations:
        return ChoiceTexts::tr("Animations");
    case ReferenceKind::Voices:
        return ChoiceTexts::tr("Voices");
    case ReferenceKind::Particles:
        return ChoiceTexts::tr("Particles");
    case ReferenceKind::Impacts:
        return ChoiceTexts::tr("Impact Types");
    }
    return {};
}

Choice choiceOf(int number, const QString &name, int depth = 0)
{
    return {number, QString::number(number), name, depth};
}

/// Every bone below its parent, those that hang from none behind them.
void appendBones(QVector<Choice> &choices, const SkinnedMesh &mesh)
{
    Skeleton skeleton;
    skeleton.follow(mesh, mesh.nodes.size());
    const auto &bones = skeleton.bones();
    std::vector<std::vector<int>> children(bones.size());
    for (size_t i = 1; i < bones.size(); ++i)
        children[size_t(bones[i].parent)].push_back(int(i));
    std::vector<bool> isListed(mesh.nodes.size());
    const auto append = [&](int bone, int depth) {
        const QString &own = mesh.nodes[size_t(bone)].name;
        const QString symbol = boneSymbolName(mesh, bone);
        choices.append(choiceOf(bone, own.isEmpty() ? symbol : own, depth));
        isListed[size_t(bone)] = true;
    };
    struct Visit
    {
        int place; ///< in `bones`
        int depth;
    };
    std::vector<Visit> visits; // no recursion: a file may have one long chain
    if (!bones.empty())
        visits.push_back({0, 0});
    while (!visits.empty()) {
        const auto [place, depth] = visits.back();
        visits.pop_back();
        append(bones[size_t(place)].index, depth);
        const auto &below = children[size_t(place)];
        for (auto child = below.rbegin(); child != below.rend(); ++child)
            visits.push_back({*child, depth + 1});
    }
    for (int bone = 0; bone < int(mesh.nodes.size()); ++bone) {
        if (!isListed[size_t(bone)])
            append(bone, 0);
    }
}
} // namespace

FieldChoices FieldChoice::named(QLatin1String question, const NumberRange &range, const SkinnedMesh *mesh)
{
    const auto kind = referenceOf(question);
    if (!kind)
        return {};
    FieldChoices found{titleOf(*kind), {}};
    QVector<Choice> &choices = found.choices;
    if (*kind == ReferenceKind::Animations && mesh) {
        for (auto own = mesh->animationNames.begin(); own != mesh->animationNames.end(); ++own)
            choices.append(choiceOf(own.key(), own.value()));
    }
    for (const ReferenceRow &row : ReferenceTables::shared().table(*kind).rows) {
        // What stands for no number names none.
        if (row.number >= range.least && row.number <= range.most && row.id == QString::number(row.number))
            choices.append(choiceOf(row.number, row.name.trimmed()));
    }
    std::stable_sort(choices.begin(), choices.end(),
                     [](const Choice &a, const Choice &b) { return a.number < b.number; });
    return found;
}

FieldChoices FieldChoice::bones(Naming naming, const SkinnedMesh &model, const RecordIndex &,
                                const SkinnedMesh *)
{
    FieldChoices found{ChoiceTexts::tr("Bones"), {}};
    if (naming == Naming::ParentBone && model.nodes.size() <= size_t(NoParentBone))
        found.choices.append(choiceOf(NoParentBone, ChoiceTexts::tr("no parent")));
    appendBones(found.choices, model);
    return found;
}

FieldChoices FieldChoice::bones(Naming naming, const AnimFile &model, const RecordIndex &index,
                                const SkinnedMesh *mesh)
{
    FieldChoices found{ChoiceTexts::tr("Bones"), {}};
    if (naming == Naming::ActionBone)
        found.choices.append(choiceOf(NoActionBone, ChoiceTexts::tr("no bone")));
    const AnimBlock *block = Records::Block::find(model, index);
    if (block && mesh && mesh->nodes.size() == block->nodes.size()) {
        appendBones(found.choices, *mesh);
    } else if (block) {
        for (int bone = 0; bone < int(block->nodes.size()); ++bone)
            found.choices.append(choiceOf(bone, {}));
    }
    return found;
}
