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
