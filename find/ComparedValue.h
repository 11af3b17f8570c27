// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ConditionProgram.h"

class QRegularExpression;

/// What stands behind a word and a sign in a condition: a number, a range, a name or a text, depending on
/// what the word stands for.
class ComparedValue
{
public:
    using Sign = ConditionProgram::Sign;
    using Test = ConditionProgram::Test;

    /// The mesh, which may be null, has bones and names of animations.
    ComparedValue(const RecordWord &word, Sign sign, const QString &value, bool isQuoted,
                  const SkinnedMesh *mesh)
        : m_word(word)
        , m_sign(sign)
        , m_value(value)
        , m_isQuoted(isQuoted)
        , m_mesh(mesh)
    {}

    /// A number, or two as a range; both are captured.
    static const QRegularExpression &rangeExpression();

    /// Has the test of one of the word's meanings ask for the value; false when that cannot be.
    [[nodiscard]] bool fit(Test &test);
    /// Whether names were looked up.
    bool hasAskedNames() const { return m_hasAskedNames; }
    /// Whether the value would do if something were called so.
    bool couldBeName() const;
    /// Why it fits none of the meanings of the word, which was typed so.
    QString refusal(const QString &typed) const;

private:
    bool isForSame() const { return m_sign == Sign::Equal || m_sign == Sign::Different; }
    bool looksLikeName() const;
    bool fitText(Test &test);
    void fitAnimationName(Test &test);
    bool fitNumber(Test &test) const;
    bool fitRange(Test &test) const;
    bool fitName(Test &test);

    const RecordWord &m_word;
    const Sign m_sign;
    const QString m_value;
    const bool m_isQuoted;
    const SkinnedMesh *m_mesh;
    bool m_hasAskedNames = false;
};
