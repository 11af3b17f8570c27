// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QVector>

/// The language of the program's texts. The texts stand in English in the sources; every other language is a
/// file of the resources.
namespace Language {
struct Choice
{
    QString code; ///< as in ISO 639; empty for the desktop's language
    QString name; ///< in the language itself; empty for the desktop's
};

/// What can be chosen, the desktop's language first.
const QVector<Choice> &choices();

/// The code of the language that a choice stands for: of the desktop's languages the first that there is, and
/// English where there is none. A code that is no choice stands for the desktop's.
QString resolve(const QString &choice);

/// Gives the texts that are made from now on a language, those of the toolkit included. Texts that are shown
/// already stay. Takes the place of the language installed before.
void install(const QString &code);

/// The code of the language that is installed; English at first.
QString installed();

/// What dates and numbers within texts are written by: the desktop's, if it is of the installed language.
QLocale locale();
} // namespace Language
