// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Dice.h"

#include <QStringList>
#include <QTemporaryDir>

/// The only folder that the monkey writes to: a home, a game and a mod folder with copies of the models that
/// there are, and foreign models to import.
class Playground
{
public:
    /// Makes the folder, and makes it home, temporary folder and current folder of the process. Call before
    /// the application is made.
    Playground();

    QString root() const { return m_root; }
    /// A path as the journal names it: the same in every run.
    QString shortName(const QString &path) const;

    /// Stores the settings that a user has who set the program up for these folders.
    void storeSettings() const;

    /// A file to open: one of our own, a foreign model, or (seldom) something that is neither.
    QString anyFile(Dice &dice) const;
    /// One of our own, of any kind.
    QString model(Dice &dice) const;
    QString foreignModel(Dice &dice) const;
    /// A copy of one of our own that was cut off or has wrong bytes in it.
    QString damagedModel(Dice &dice);
    /// A copy of one with fields at their borders, under a name with that number. One of an old number goes.
    QString mutant(int number, Dice &dice) const;
    QString folder(Dice &dice) const;
    /// What another program may do to a file: cuts it, appends to it, writes another file's bytes over it, or
    /// removes it. Says what it did.
    QString tamperWith(const QString &path, Dice &dice) const;

private:
    QString anyOf(const QStringList &folders, const QString &name, Dice &dice) const;

    QTemporaryDir m_folder;
    QString m_root;
    int m_damaged = 0;
};
