// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NamedThing.h"

#include "EventArguments.h"
#include "MaterialFiles.h"
#include "NameTables.h"
#include "NumberText.h"

#include <cmath>
#include <limits>

namespace {
/// In the first effect of a hot point: the second one is its damage.
constexpr quint16 DealsDamage = 0xFFFF;

struct KindRow
{
    const char *id;
    QLatin1String question;
};

/// By the kind's number.
const KindRow kindRows[] = {{"material", {}},
                            {"texture", {}},
                            {"animation", Question::Animation},
                            {"sound", Question::Sound},
                            {"particle", Question::Particle},
                            {"actor", Question::Actor},
                            {"voice", Question::Voice},
                            {"impact", Question::Impact},
                            {"damage", Question::Damage}};
static_assert(sizeof kindRows / sizeof kindRows[0] == namedKinds.size(), "every kind has its row");

std::optional<NamedKind> kindOfQuestion(QLatin1String question)
{
    for (const NamedKind kind : namedKinds) {
        if (!question.isEmpty() && kindRows[size_t(kind)].question == question)
            return kind;
    }
    return {};
}

/// An argument of an event that names something.
struct NamingArgument
{
    size_t place;
    NamedKind kind;
};

/// Those of each type of event.
const std::vector<NamingArgument> &namingArguments(int eventType)
{
    static const std::vector<std::vector<NamingArgument>> table = [] {
        std::vector<std::vector<NamingArgument>> rows(size_t(eventTypeNames().size()));
        for (size_t type = 0; type < rows.size(); ++type) {
            for (size_t place = 0; place < AnimAction().args.size(); ++place) {
                if (const auto kind = kindOfQuestion(eventArgument(int(type), int(place)).question))
                    rows[type].push_back({place, *kind});
            }
        }
        return rows;
    }();
    static const std::vector<NamingArgument> none;
    return size_t(eventType) < table.size() ? table[size_t(eventType)] : none;
}

void visitMaterial(const QString &path, const NamedVisitor &visit)
{
    if (!path.isEmpty())
        visit({NamedKind::Material, 0.0, path});
}

void visitList(RecordKind kind, size_t count, const std::function<void(const RecordRef &)> &visit)
{
    for (size_t i = 0; i < count; ++i)
        visit({kind, {int(i), 0, 0}});
}
} // namespace

QLatin1String namedKindId(NamedKind kind)
{
    return QLatin1String(kindRows[size_t(kind)].id);
}

std::optional<NamedKind> namedKindOf(const QString &id)
{
    for (const NamedKind kind : namedKinds) {
        if (id.compare(namedKindId(kind), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return {};
}

std::optional<ReferenceKind> tableOf(NamedKind kind)
{
    return referenceOf(kindRows[size_t(kind)].question);
}

QString pathKey(const QString &path)
{
    QString key = path.toCaseFolded();
    key.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return key;
}

QString NamedThing::text() const
{
    if (isNamedByPath(kind))
        return path;
    return number == std::trunc(number) && std::abs(number) < 1e15 ? QString::number(qint64(number))
                                                                   : NumberText::text(float(number));
}

std::optional<NamedThing> NamedThing::ofArgument(NamedKind kind, float value)
{
    if (kind == NamedKind::Damage)
        return std::isfinite(value) ? std::optional(NamedThing{kind, double(value)}) : std::nullopt;
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    if (!(double(value) > least - 1 && double(value) < most + 1))
        return {};
    return NamedThing{kind, double(int(value))};
}

std::optional<NamedThing> NamedThing::parse(const QString &text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    const auto kind = namedKindOf(text.left(colon).trimmed());
    const QString value = text.mid(colon + 1).trimmed();
    if (colon < 0 || !kind || value.isEmpty())
        return {};
    if (isNamedByPath(*kind))
        return NamedThing{*kind, 0.0, value};
    if (*kind == NamedKind::Damage) {
        float damage = 0.0f; // as files have it
        return NumberText::parse(value, damage) ? std::optional(NamedThing{*kind, double(damage)})
                                                : std::nullopt;
    }
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? std::optional(NamedThing{*kind, double(number)}) : std::nullopt;
}

void visitNamed(const SkinnedMesh &mesh, const RecordRef &record, const NamedVisitor &visit)
{
    switch (record.kind) {
    case RecordKind::Bone:
        if (const SkinnedMeshNode *bone = Records::Bone::find(mesh, record.index))
            visit({NamedKind::Impact, double(bone->impactType)});
        break;
    case RecordKind::HotPoint:
        if (const SkinnedMeshHotPoint *point = Records::HotPoint::find(mesh, record.index)) {
            const bool isDamage = point->particleEffect1 == DealsDamage;
            if (!isDamage)
                visit({NamedKind::Particle, double(point->particleEffect1)});
            visit({isDamage ? NamedKind::Damage : NamedKind::Particle, double(point->particleEffect2)});
        }
        break;
    case RecordKind::SkinnedSurface:
        if (const SkinnedMeshSurface *surface = Records::SkinnedSurface::find(mesh, record.index))
            visitMaterial(surface->materialPath, visit);
        break;
    default:
        break;
    }
}

void visitNamed(const StaticMesh &mesh, const RecordRef &record, const NamedVisitor &visit)
{
    const StaticMeshSurface *surface =
        record.kind == RecordKind::StaticSurface ? Records::StaticSurface::find(mesh, record.index) : nullptr;
    if (surface)
        visitMaterial(surface->materialPath, visit);
}

void visitNamed(const AnimFile &file, const RecordRef &record, const NamedVisitor &visit)
{
    if (record.kind == RecordKind::AnimBlock) {
        if (const AnimBlock *block = Records::Block::find(file, record.index))
            visit({NamedKind::Animation, double(block->animId)});
    } else if (record.kind == RecordKind::AnimAction) {
        const AnimAction *action = Records::BlockAction::find(file, record.index);
        if (!action)
            return;
        for (const NamingArgument &each : namingArguments(action->eventType)) {
            if (const auto thing = NamedThing::ofArgument(each.kind, action->args[each.place]))
                visit(*thing);
        }
    }
}

void visitNamingRecords(const SkinnedMesh &mesh, const std::function<void(const RecordRef &)> &visit)
{
    visitList(RecordKind::Bone, mesh.nodes.size(), visit);
    visitList(RecordKind::HotPoint, mesh.hotPoints.size(), visit);
    visitList(RecordKind::SkinnedSurface, mesh.surfaces.size(), visit);
}

void visitNamingRecords(const StaticMesh &mesh, const std::function<void(const RecordRef &)> &visit)
{
    visitList(RecordKind::StaticSurface, mesh.surfaces.size(), visit);
}

void visitNamingRecords(const AnimFile &file, const std::function<void(const RecordRef &)> &visit)
{
    for (size_t block = 0; block < file.blocks.size(); ++block) {
        visit({RecordKind::AnimBlock, {int(block), 0, 0}});
        for (size_t action = 0; action < file.blocks[block].actions.size(); ++action)
            visit({RecordKind::AnimAction, {int(block), int(action), 0}});
    }
}
