// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"
#include "FieldParts.h"
#include "NumberRange.h"

#include <QStringList>

/// What a field's numbers stand for: bones by their place in the mesh, some of them with a number for none;
/// or what one of the reference tables names.
enum class Naming { Nothing, Bone, ParentBone, ActionBone, Animation, HotPointEffect, EventArgument };

/// The numbers that stand for no bone.
inline constexpr int NoParentBone = 0xFF; ///< where there are not that many bones
inline constexpr int NoActionBone = 0xFFFF;

/// What a field is to those who show it, beside its type.
struct FieldTraits
{
    /// The names of its numbers, from 0; null where they have none.
    QStringList (*names)() = nullptr;
    /// The largest number that a file can hold, where that is less than the type's.
    int most = 0;
    /// It is an angle in degrees.
    bool inDegrees = false;
    /// Its bits are what counts.
    bool isFlags = false;
    /// A text that a file stores, which has only characters of Latin-1.
    bool isLatin1 = false;
    Naming naming = Naming::Nothing;
};

/// Of a field whose numbers stand for something.
constexpr FieldTraits standingFor(Naming naming)
{
    return {nullptr, 0, false, false, false, naming};
}

/// One field of one kind of record: the command that stores it and the part of the command's value that it
/// is.
template <typename CommandType, typename PartType>
struct FieldRow
{
    using Command = CommandType;
    using Value = decltype(std::declval<PartType>().get(std::declval<typename Command::Value &>()));

    /// Which never changes: for files and other programs. A part of a vector has its own letter behind it.
    const char *key;
    /// For people, in the context RecordFields.
    const char *title;
    /// What an edit of several records is called, in the same context; null for what a model has once, whose
    /// edit is called as its command.
    const char *step;
    PartType part{};
    FieldTraits traits{};
    /// The component that it is: X to W, or a digit; 0 for none. The letter stands in its names.
    char axis = '\0';
    /// The same in the name of its step.
    char stepAxis = '\0';

    QString stepText() const
    {
        if (!step)
            return {};
        QString text = QCoreApplication::translate("RecordFields", step);
        return stepAxis ? text.replace(QLatin1String("%1"), QString(QLatin1Char(stepAxis))) : text;
    }
    QString titleText() const { return withAxis(QCoreApplication::translate("RecordFields", title)); }
    QString englishTitle() const { return withAxis(QString::fromUtf8(title)); }
    QString id() const
    {
        const QString name = QString::fromLatin1(key);
        if (!axis)
            return name;
        const QLatin1Char letter(axis);
        return QChar(letter).isDigit() ? name + letter : name + QLatin1Char('.') + QChar(letter).toLower();
    }

private:
    QString withAxis(const QString &text) const
    {
        return axis ? text + QLatin1Char(' ') + QLatin1Char(axis) : text;
    }
};

/// The fields that a vector's or an array's components are. In the name of the undo step %1 is the axis.
template <typename CommandType, int Size>
struct VectorRow
{
    using Command = CommandType;
    static constexpr int size = Size;

    const char *key;
    const char *title;
    const char *step;
    const char *axes = "XYZW";
    const char *stepAxes = "XYZW";
    FieldTraits traits{};

    constexpr FieldRow<CommandType, Parts::Component> operator[](int i) const
    {
        return {key, title, step, {i}, traits, axes[i], stepAxes[i]};
    }
};
