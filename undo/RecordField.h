// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"
#include "FieldRow.h"
#include "NumberRange.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

#include <variant>

class Expression;
class QUndoCommand;

/// What a field holds, without its type: nothing (there is no such record), a number (a float widened, a
/// switch as 0 or 1), or a text.
using FieldValue = std::variant<std::monostate, double, QString>;

/// One of the Fields for those who do not know its type: tables, searches, other programs.
class RecordField
{
public:
    enum class Type { Whole, Real, Switch, Text };

    RecordKind kind() const { return m_kind; }
    Type type() const { return m_type; }
    /// "damageScale", "origin.x", "arg1": see FieldRow.
    const QString &id() const { return m_id; }
    QString title() const { return m_title; }
    /// The same in English, whatever the language of the program.
    QString englishTitle() const { return m_englishTitle; }
    /// Of numbers.
    const NumberRange &range() const { return m_range; }
    /// What "45deg" is a multiple of 45 of.
    double degree() const { return m_degree; }
    bool isFlags() const { return m_isFlags; }
    /// The names of its numbers, from 0; none where they have none.
    QStringList names() const { return m_names ? m_names() : QStringList(); }
    Naming naming() const { return m_naming; }
    bool namesBones() const
    {
        return m_naming == Naming::Bone || m_naming == Naming::ParentBone || m_naming == Naming::ActionBone;
    }
    /// What an edit of several records is called.
    const QString &stepText() const { return m_stepText; }
    /// What there is to say to whoever has changed it; mostly nothing.
    const QString &note() const { return m_note; }

    /// A value as text that parse() reads back as the same one.
    QString text(const FieldValue &value) const;
    /// A value from a text, as it may be typed for a record that holds `old` and is the `place`th of those
    /// that are edited. Gives the reason why it is none, for the user; empty when it is one.
    [[nodiscard]] QString parse(const QString &text, const FieldValue &old, int place,
                                FieldValue &value) const;
    /// The same for an expression that was read, in a field of numbers.
    [[nodiscard]] QString calculate(const Expression &expression, const FieldValue &old, int place,
                                    FieldValue &value) const;

    virtual ~RecordField() = default;
    RecordField(const RecordField &) = delete;
    RecordField &operator=(const RecordField &) = delete;

protected:
    RecordField() = default;

    RecordKind m_kind = RecordKind::None;
    Type m_type = Type::Whole;
    QString m_id;
    QString m_title;
    QString m_englishTitle;
    NumberRange m_range;
    double m_degree = 1.0;
    bool m_isFlags = false;
    bool m_isLatin1 = false;
    QStringList (*m_names)() = nullptr;
    Naming m_naming = Naming::Nothing;
    QString m_stepText;
    QString m_note;

    /// Why a text cannot be stored, beside its characters.
    virtual QString textRefusal(const QString &) const { return {}; }
};

/// The same with the model that has the records.
template <typename Model>
class ModelField : public RecordField
{
public:
    virtual FieldValue value(const Model &model, const RecordIndex &index) const = 0;
    /// What the number stands for in that record, one of Question; null where no table names it.
    virtual QLatin1String question(const Model &, const RecordIndex &) const { return {}; }
    /// What the number of that record is called: by the table, or as boneTitle(). Empty when it has no name.
    /// `names` is the mesh that names bones and animations; null where there is none.
    QString name(const Model &model, const RecordIndex &index, const SkinnedMesh *names) const;
    /// Stores a value that parse() or calculate() gave. The caller owns the command. Null for a record that
    /// does not exist.
    virtual QUndoCommand *command(EditTarget<Model> target, const RecordIndex &index,
                                  const FieldValue &value) const = 0;
};

/// A value for a record's field.
struct FieldChange
{
    const RecordField *field;
    RecordIndex index;
    FieldValue value;
};
