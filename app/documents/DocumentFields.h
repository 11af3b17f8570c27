// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

class TypingField;

/// The fields that edit one document: those of its pages, and those that stand among another document's.
class DocumentFields
{
public:
    void setEditors(QWidget *editors) { m_editors = editors; }
    void add(QWidget *field) { m_elsewhere.append(field); }

    /// Stores what is typed there. Says what cannot be stored, and why.
    QStringList refused() const;
    /// The same; gives the first field that refuses what stands there, or null.
    TypingField *firstRefused() const;
    void discard() const;

private:
    QVector<TypingField *> all() const;

    QPointer<QWidget> m_editors;
    QVector<QPointer<QWidget>> m_elsewhere;
};
