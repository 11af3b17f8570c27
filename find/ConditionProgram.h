// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordWords.h"

/// What a Condition was read into: steps of a calculation whose operands stand before it.
struct ConditionProgram
{
    /// Longer texts are refused.
    static constexpr int MostCharacters = 1000;
    /// More parentheses and "not" within one another are refused.
    static constexpr int MostDepth = 64;

    enum class Sign { None, Equal, Different, Less, AtMost, More, AtLeast, Contains, In };
    /// How a value is tested.
    enum class Way { Within, OneOf, HasBits, SameText, PartOfText, NotANumber };

    /// What one comparison asks of one thing that its word stands for.
    struct Test
    {
        WordMeaning meaning;
        Way way = Way::Within;
        double first = 0.0;
        double last = 0.0;
        bool isFirstOut = false; ///< not the bounds themselves
        bool isLastOut = false;
        std::vector<double> numbers; ///< ascending
        QString text;
    };
    struct Comparison
    {
        QString word; ///< as it was typed
        bool isNegated = false;
        std::vector<Test> tests; ///< any of which is enough
    };
    enum class Part { Kinds, Compare, Not, And, Or };
    struct Step
    {
        Part part;
        KindSet kinds;
        int comparison = -1;
    };

    std::vector<Step> steps;
    std::vector<Comparison> comparisons;
    KindSet kinds;          ///< of records that may meet it
    KindSet named;          ///< by a word for the kind alone
    bool isPlain = true;    ///< see Condition::isPlain()
    bool asksNames = false; ///< see Condition::asksNames()
};
