// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class Expression;

/// The records that share a field: an edit of it goes to all of them, as one undo step. What gives a text
/// says why nothing was changed; the text is empty when it was.
struct FieldRecords
{
    /// Whether their numbers are not all the same.
    std::function<bool()> differ;
    /// Gives each of them the number that the field shows.
    std::function<void()> setAll;
    /// Gives each what an expression makes of its own number and its place among them.
    std::function<QString(const Expression &)> calculate;
    /// Gives each several numbers at once: those of the vector that the field is a part of. Null for a field
    /// that stands alone.
    std::function<QString(const QStringList &)> paste;
    /// Lets the number be chosen by what it stands for, and whether that can be done now. Null for a number
    /// that stands for itself.
    std::function<void()> choose;
    std::function<bool()> canChoose;
};
