// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentFields.h"

#include "TypingField.h"

QVector<TypingField *> DocumentFields::all() const
{
    QVector<TypingField *> found = m_editors ? TypingField::in(*m_editors) : QVector<TypingField *>();
    for (const QPointer<QWidget> &each : m_elsewhere) {
        if (auto *field = dynamic_cast<TypingField *>(each.data()))
            found.append(field);
    }
    return found;
}

QStringList DocumentFields::refused() const
{
    QStringList refusals;
    for (TypingField *field : all()) {
        if (field->commitText())
            refusals.append(field->refusal());
    }
    return refusals;
}

TypingField *DocumentFields::firstRefused() const
{
    TypingField *first = nullptr;
    for (TypingField *field : all()) {
        if (field->commitText() && !first)
            first = field;
    }
    return first;
}

void DocumentFields::discard() const
{
    for (TypingField *field : all())
        field->discardText();
}
