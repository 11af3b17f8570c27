// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FoundRecords.h"

#include "Companions.h"
#include "ModelNames.h"
#include "RecordFields.h"
#include "Replacement.h"

#include <QUndoStack>

namespace {
RecordKind rootOf(const ModelJson::Model &model)
{
    constexpr RecordKind roots[] = {RecordKind::SkinnedMesh, RecordKind::AnimFile, RecordKind::StaticMesh};
    return roots[model.index()];
}

/// Nobody looks at the model while it is changed.
class NoView : public DocumentView
{
public:
    void aboutToChange() override {}
    void recordChanged(const RecordRef &) override {}
    void structureChanged(const StructureChange &) override {}
};
} // namespace

std::shared_ptr<const SkinnedMesh> namedMesh(const QString &file, const ModelJson::Model &model,
                                             Companions &companions)
{
    if (const auto *own = std::get_if<SkinnedMesh>(&model))
        return std::make_shared<const SkinnedMesh>(*own);
    const QString path = companions.find(file).path;
    auto mesh = std::make_shared<SkinnedMesh>();
    ModelNames names;
    if (path.isEmpty() || mesh->read(path))
        return nullptr;
    if (!names.read(ModelNames::pathFor(path)))
        names.giveTo(*mesh);
    return mesh;
}

std::unique_ptr<RecordValues> valuesOf(const ModelJson::Model &model)
{
    return std::visit(
        [](const auto &its) -> std::unique_ptr<RecordValues> {
            return std::make_unique<ModelValues<std::decay_t<decltype(its)>>>(its);
        },
        model);
}

QString FoundRecords::find(const QString &text, const QString &file, const ModelJson::Model &model,
                           Companions &companions)
{
    // Most conditions are about numbers alone, and need no mesh.
    QString reason = condition.read(text, nullptr);
    if (!std::holds_alternative<StaticMesh>(model) && (!reason.isEmpty() || condition.asksNames())) {
        mesh = namedMesh(file, model, companions);
        reason = condition.read(text, mesh.get());
    }
    if (reason.isEmpty())
        records = findRecords(condition, *valuesOf(model), rootOf(model));
    return reason;
}

QString FoundRecords::replace(ModelJson::Model &model, const QString &word, const QString &text,
                              std::vector<ReplacedField> &changes) const
{
    const auto values = valuesOf(model);
    const Replacement made = replacementOf(*values, records, word, text, 0, mesh.get());
    if (!made.reason.isEmpty()) {
        const QString place = recordPath(made.refusing);
        return place.isEmpty() ? made.reason : QStringLiteral("%1: %2").arg(place, made.reason);
    }
    for (size_t i = 0; i < records.size(); ++i) {
        const FieldChange &change = made.changes[int(i)];
        const FieldValue old = values->value(*change.field, change.index);
        const QString before = change.field->text(old);
        const QString after = change.field->text(change.value);
        if (before != after)
            changes.push_back({{recordPath(records[i]) + QLatin1Char(' ') + change.field->id(),
                                before.toUtf8(), after.toUtf8()},
                               records[i],
                               change.field});
    }
    NoView view;
    QUndoStack stack;
    std::visit(
        [&](auto &its) {
            RecordFields::change(made.changes, word, EditTarget<std::decay_t<decltype(its)>>(its, view),
                                 stack);
        },
        model);
    return {};
}
