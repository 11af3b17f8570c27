// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ChoiceBox.h"
#include "FlagsEditor.h"
#include "FloatSpinBox.h"
#include "IntSpinBox.h"
#include "TextField.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <array>
#include <type_traits>

/// What a property page needs of every kind of editor: its value, a way to show one without any signal, and
/// the signal by which the user's edits arrive.
namespace Editors {

inline float value(const FloatSpinBox *editor)
{
    return editor->value();
}
inline int value(const IntSpinBox *editor)
{
    return editor->value();
}
inline int value(const ChoiceBox *editor)
{
    return editor->value();
}
inline qint32 value(const FlagsEditor *editor)
{
    return editor->value();
}
inline bool value(const QCheckBox *editor)
{
    return editor->isChecked();
}
inline QString value(const TextField *editor)
{
    return editor->value();
}

inline void show(FloatSpinBox *editor, float value)
{
    editor->setValue(value);
}
inline void show(IntSpinBox *editor, int value)
{
    editor->setValue(value);
}
inline void show(ChoiceBox *editor, int value)
{
    editor->setValue(value);
}
inline void show(FlagsEditor *editor, qint32 value)
{
    editor->setValue(value);
}
inline void show(QCheckBox *editor, bool value)
{
    const QSignalBlocker blocker(editor);
    editor->setChecked(value);
}
inline void show(TextField *editor, const QString &value)
{
    editor->setValue(value);
}

template <typename Receiver>
void onEdited(FloatSpinBox *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &FloatSpinBox::valueEdited, receiver, slot);
}
template <typename Receiver>
void onEdited(IntSpinBox *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &IntSpinBox::valueEdited, receiver, slot);
}
template <typename Receiver>
void onEdited(ChoiceBox *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &ChoiceBox::valueEdited, receiver, slot);
}
template <typename Receiver>
void onEdited(FlagsEditor *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &FlagsEditor::valueEdited, receiver, slot);
}
template <typename Receiver>
void onEdited(QCheckBox *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &QCheckBox::clicked, receiver, slot);
}
template <typename Receiver>
void onEdited(TextField *editor, Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(editor, &TextField::valueEdited, receiver, slot);
}

} // namespace Editors

/// The parts of a field that one editor may stand for: read out of a field's value, and put into one with
/// everything else of it kept.
namespace Parts {

struct WholeField
{
    template <typename Value>
    Value get(const Value &value) const
    {
        return value;
    }
    template <typename Value>
    void set(Value &value, const Value &part) const
    {
        value = part;
    }
};

template <typename>
struct IsArray : std::false_type
{};
template <typename Element, size_t Size>
struct IsArray<std::array<Element, Size>> : std::true_type
{};

/// One component of a vector, or one element of an array.
struct Component
{
    int index;

    template <typename Vector>
    auto get(const Vector &vector) const
    {
        return element(vector);
    }
    template <typename Vector, typename Part>
    void set(Vector &vector, Part part) const
    {
        element(vector) = part;
    }

private:
    template <typename Vector>
    decltype(auto) element(Vector &vector) const
    {
        if constexpr (IsArray<std::remove_const_t<Vector>>::value)
            return vector[size_t(index)];
        else
            return vector[index];
    }
};

/// Some bits of a signed byte.
struct Bits
{
    int shift;
    int width;

    int get(qint8 value) const { return quint8(value) >> shift & mask(); }
    void set(qint8 &value, int part) const
    {
        value = qint8((quint8(value) & ~(mask() << shift)) | (part & mask()) << shift);
    }

private:
    int mask() const { return (1 << width) - 1; }
};

/// The bits of a flags field that an edit is about.
struct MaskedBits
{
    qint32 mask;

    qint32 get(qint32 value) const { return value & mask; }
    void set(qint32 &value, qint32 part) const { value = (value & ~mask) | (part & mask); }
};

inline constexpr WholeField Whole;
inline constexpr Component X{0};
inline constexpr Component Y{1};
inline constexpr Component Z{2};
inline constexpr Component W{3};

} // namespace Parts
