// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ConditionProgram.h"

#include <memory>

/// What records are looked for by, in the words of their fields: "sound = 1234", "frame 10-20", "damage scale
/// > 1", "surfaces material ~ tree", "bone in left arm, not flags = 0". RecordWords has the words.
///
/// A comparison is a word, one of = != < <= > >= ~ in, and a value: a number, a calculation, a range, a name,
/// or a text. A word and a number, or a range, need no sign. ~ finds what contains the text, or has the bits;
/// `in` finds a bone and all that hang from it. A word with several fields ("position", "arg") finds any of
/// them. A kind ("actions") restricts what follows. Comparisons are joined by commas, "and", "or", "not" and
/// parentheses; "and" binds more than "or".
///
/// What a record has no field for it neither meets nor fails: "not sound = 5" finds only what has a sound.
/// Read in the main thread, it may be used in any.
class Condition
{
public:
    /// Reads a text; `mesh`, which may be null, has the bones and names of animations that it may be about.
    /// Gives the reason why it is none, for the user, with the place; empty when it is one.
    [[nodiscard]] QString read(const QString &text, const SkinnedMesh *mesh);

    /// Nothing was read: nothing meets it.
    bool isEmpty() const { return !m_program; }
    /// Nothing but kinds, and words with numbers and ranges, without a sign: what a search for text knows,
    /// too.
    bool isPlain() const { return m_program && m_program->isPlain; }
    /// It has names of bones or of other things, so other meshes may give it another meaning.
    bool asksNames() const { return m_program && m_program->asksNames; }
    /// Whether records of a kind may meet it, and whether it names the kind.
    bool concerns(RecordKind kind) const { return m_program && m_program->kinds.contains(kind); }
    bool names(RecordKind kind) const { return m_program && m_program->named.contains(kind); }
    bool matches(const RecordValues &values, const RecordRef &record) const;

    /// The field by which a record is found, the first that the condition is about; null where it is about
    /// none.
    const RecordField *fieldOf(const RecordValues &values, const RecordRef &record) const;
    /// The word for it, as it was typed; empty where there is none.
    QString fieldWord() const;

    /// The text that was refused names something that is not there; else it is as it should be.
    bool lacksName() const { return m_lacksName; }

private:
    std::shared_ptr<const ConditionProgram> m_program;
    bool m_lacksName = false;
};
