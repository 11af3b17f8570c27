// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordFields.h"

#include "AnimationNaming.h"
#include "EventArguments.h"
#include "Expression.h"
#include "Fields.h"
#include "ModelNames.h"
#include "NameTables.h"
#include "NumberText.h"

#include <QHash>
#include <QUndoStack>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>

QStringList Fields::boneTypes()
{
    return boneTypeNames();
}

QStringList Fields::sides()
{
    return {QCoreApplication::translate("RecordFields", "Left"),
            QCoreApplication::translate("RecordFields", "Right")};
}

QStringList Fields::impactTypes()
{
    return impactTypeNames();
}

QStringList Fields::eventTypes()
{
    return eventTypeNames();
}

namespace {
template <typename Value>
FieldValue untyped(const Value &value)
{
    if constexpr (std::is_same_v<Value, QString>)
        return value;
    else
        return double(value);
}

/// What the numbers of a kind of record stand for.
template <typename Record>
QLatin1String questionOf(const Record &, Naming naming, int)
{
    return naming == Naming::Animation ? Question::Animation : QLatin1String();
}

/// The first effect of one that deals damage is but the mark of that.
QLatin1String questionOf(const SkinnedMeshHotPoint &point, Naming naming, int component)
{
    if (naming != Naming::HotPointEffect)
        return {};
    if (!Fields::HotPointDamage.part.get(HotPointEffects::get(point)))
        return Question::Particle;
    return component == 0 ? QLatin1String() : Question::Damage;
}

QLatin1String questionOf(const AnimAction &action, Naming naming, int component)
{
    return naming == Naming::EventArgument ? eventArgument(action.eventType, component).question
                                           : QLatin1String();
}

template <typename Row>
class FieldOfRow final : public ModelField<typename Row::Command::Model>
{
    using Command = typename Row::Command;
    using Place = typename Command::Place;
    using Model = typename Command::Model;
    using Value = std::decay_t<typename Row::Value>;

public:
    explicit FieldOfRow(const Row &row)
        : m_row(row)
    {
        this->m_kind = Place::kind;
        this->m_id = row.id();
        this->m_title = row.titleText();
        this->m_englishTitle = row.englishTitle();
        this->m_stepText = row.stepText();
        this->m_degree = row.traits.inDegrees ? 1.0 : Expression::Radian;
        this->m_isFlags = row.traits.isFlags;
        this->m_isLatin1 = row.traits.isLatin1;
        this->m_names = row.traits.names;
        this->m_naming = row.traits.naming;
        if constexpr (std::is_same_v<Value, QString>) {
            this->m_type = RecordField::Type::Text;
        } else if constexpr (std::is_same_v<Value, bool>) {
            this->m_type = RecordField::Type::Switch;
            this->m_range = {0.0, 1.0, true};
        } else if constexpr (std::is_floating_point_v<Value>) {
            this->m_type = RecordField::Type::Real;
            this->m_range = NumberRange::ofFloats();
        } else {
            this->m_range = NumberRange::of<Value>();
            if (row.traits.most > 0)
                this->m_range = {0.0, double(row.traits.most), true};
        }
    }

    FieldValue value(const Model &model, const RecordIndex &index) const override
    {
        // Records are found in models that may be changed; this one is only read.
        const auto *record = Place::find(const_cast<Model &>(model), index);
        return record ? untyped(m_row.part.get(Command::Field::get(*record))) : FieldValue();
    }

    QLatin1String question(const Model &model, const RecordIndex &index) const override
    {
        const auto *record = Place::find(model, index);
        if (!record || this->m_naming == Naming::Nothing)
            return {};
        int component = 0;
        if constexpr (std::is_same_v<decltype(m_row.part), Parts::Component>)
            component = m_row.part.index;
        return questionOf(*record, this->m_naming, component);
    }

    QUndoCommand *command(EditTarget<Model> target, const RecordIndex &index,
                          const FieldValue &value) const override
    {
        const auto *record = Place::find(target.model(), index);
        if (!record)
            return nullptr;
        auto field = Command::Field::get(*record);
        if constexpr (std::is_same_v<Value, QString>)
            m_row.part.set(field, std::get<QString>(value));
        else
            m_row.part.set(field, Value(std::get<double>(value)));
        return new Command(target, index, field);
    }

private:
    const Row m_row;
};

struct FieldLists
{
    FieldLists()
    {
        std::apply([this](const auto &...rows) { (add(rows), ...); }, Fields::all);
        owned.push_back(AnimationNaming::field());
        byKind[int(RecordKind::AnimBlock)].insert(1, owned.back().get()); // behind the id that it belongs to
    }

    template <typename Command, typename Part>
    void add(const FieldRow<Command, Part> &row)
    {
        owned.push_back(std::make_unique<FieldOfRow<FieldRow<Command, Part>>>(row));
        byKind[int(Command::Place::kind)].append(owned.back().get());
    }
    template <typename Command, int Size>
    void add(const VectorRow<Command, Size> &rows)
    {
        for (int i = 0; i < Size; ++i)
            add(rows[i]);
    }

    std::vector<std::unique_ptr<RecordField>> owned;
    QHash<int, QVector<const RecordField *>> byKind;
};

const FieldLists &fieldLists()
{
    static const FieldLists lists; // after the translators were installed
    return lists;
}

QString plainName(const QString &name)
{
    QString plain;
    for (const QChar c : name) {
        if (c.isLetterOrNumber())
            plain += c.toLower();
    }
    return plain;
}

bool isSameValue(const FieldValue &a, const FieldValue &b)
{
    const auto *x = std::get_if<double>(&a);
    const auto *y = std::get_if<double>(&b);
    // -0 is another float than 0.
    return a == b && (!x || !y || std::signbit(*x) == std::signbit(*y));
}

template <typename Model>
bool changeModel(const QVector<FieldChange> &changes, const QString &stepText, EditTarget<Model> target,
                 QUndoStack &stack)
{
    const auto fieldOf = [](const FieldChange &change) {
        return static_cast<const ModelField<Model> *>(change.field);
    };
    const bool isChange = std::any_of(changes.begin(), changes.end(), [&](const FieldChange &each) {
        return !isSameValue(fieldOf(each)->value(target.model(), each.index), each.value);
    });
    if (!isChange)
        return false;
    if (!stepText.isEmpty())
        stack.beginMacro(stepText);
    for (const FieldChange &each : changes) {
        if (QUndoCommand *command = fieldOf(each)->command(target, each.index, each.value))
            stack.push(command);
    }
    if (!stepText.isEmpty())
        stack.endMacro();
    return true;
}
} // namespace

const QVector<const RecordField *> &RecordFields::of(RecordKind kind)
{
    static const QVector<const RecordField *> none;
    const auto found = fieldLists().byKind.constFind(int(kind));
    return found == fieldLists().byKind.constEnd() ? none : *found;
}

const RecordField *RecordFields::find(RecordKind kind, const QString &name)
{
    const QString wanted = plainName(name);
    for (const RecordField *field : of(kind)) {
        if (plainName(field->id()) == wanted || plainName(field->title()) == wanted)
            return field;
    }
    return nullptr;
}

bool RecordFields::change(const QVector<FieldChange> &changes, const QString &stepText,
                          EditTarget<SkinnedMesh> target, QUndoStack &stack)
{
    return changeModel(changes, stepText, target, stack);
}

bool RecordFields::change(const QVector<FieldChange> &changes, const QString &stepText,
                          EditTarget<AnimFile> target, QUndoStack &stack)
{
    QVector<FieldChange> own;
    std::remove_copy_if(changes.begin(), changes.end(), std::back_inserter(own), AnimationNaming::isName);
    // Names first: they go by the ids that blocks have now.
    const bool isNamed = own.size() < changes.size() && AnimationNaming::change(changes, target.model());
    return changeModel(own, stepText, target, stack) || isNamed;
}

bool RecordFields::change(const QVector<FieldChange> &changes, const QString &stepText,
                          EditTarget<StaticMesh> target, QUndoStack &stack)
{
    return changeModel(changes, stepText, target, stack);
}
