// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordValues.h"

#include <QStringList>

#include <vector>

/// A kind of records that can be looked for, none of them a group.
struct SearchedKind
{
    RecordKind kind;
    RecordKind root; ///< of the model that has them
    /// The kinds of their owners from above to below; the first index is the first one's number.
    std::vector<RecordKind> owners;
    const char *noun;   ///< in the context "Records"
    const char *plural; ///< the same
};

/// Some kinds of records.
class KindSet
{
public:
    KindSet() = default;
    explicit KindSet(RecordKind kind)
        : m_bits(quint64(1) << int(kind))
    {}
    static KindSet all() { return KindSet(~quint64(0)); }

    bool contains(RecordKind kind) const { return (m_bits >> int(kind) & 1) != 0; }
    bool isEmpty() const { return m_bits == 0; }
    KindSet operator|(KindSet other) const { return KindSet(m_bits | other.m_bits); }
    KindSet operator&(KindSet other) const { return KindSet(m_bits & other.m_bits); }

private:
    explicit KindSet(quint64 bits)
        : m_bits(bits)
    {}
    quint64 m_bits = 0;
};

/// What a word stands for in the records of one kind: one of their fields, their own or an owner's number, or
/// the argument of an action that its event calls so.
struct WordMeaning
{
    RecordKind kind = RecordKind::None;
    const RecordField *field = nullptr;
    int number = -1;        ///< of the indexes; -1 for none
    QByteArray arguments;   ///< by event type: 0 to 7, or -1 where the event has no such argument
    QLatin1String question; ///< what its value is the number of, one of Question; null for nothing
    bool isBone = false;    ///< its value is the number of a bone
    bool isItsOwn = false;  ///< it is the record's own number

    /// The field that it is in a record; null for a number, and for an action without such an argument.
    const RecordField *fieldOf(const RecordValues &values, const RecordIndex &index) const;
};

/// All that a word stands for.
struct RecordWord
{
    QString text; ///< as it is proposed
    KindSet kinds;
    std::vector<WordMeaning> meanings;
};

/// The words by which people name records and their fields: those of the pages in the language of the
/// program, and English ones in any.
namespace RecordWords {

const std::vector<SearchedKind> &kinds();
/// Null for groups.
const SearchedKind *kindOf(RecordKind kind);

/// What is left of words when it does not matter how they are parted and in what case: "damage scale" is
/// "damageScale".
QString plain(const QString &words);
/// Null for a word that stands for nothing.
const RecordWord *find(const QString &words);
/// Those that are proposed for models of these roots: fields as their pages call them, and kinds.
QStringList proposals(KindSet roots);
/// Those for fields that some of these kinds have.
QStringList fieldProposals(KindSet kinds);

} // namespace RecordWords
