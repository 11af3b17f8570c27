// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "JsonProblem.h"

#include <string_view>

/// What an edit of a list comes to.
struct ListEdit
{
    QString refusal;             ///< why nothing was changed, for the user; empty where something was
    QVector<RecordRef> selected; ///< what is to be selected of it; empty leaves that to the tree
    QString told;                ///< what else is to be known of it
};

/// What the records of a list are called. Texts for people are to be translated in the context RecordEdits.
struct ListWords
{
    const char *key; ///< by which a text has the list
    const char *name;
    const char *copy;
    const char *paste; ///< also the undo step
};

/// The words of all lists; a key is that of one of them.
const std::array<ListWords, 8> &listWords();
const ListWords &listWords(std::string_view key);

/// A kind of list whose records are copied as text and come back from it, and are cut, duplicated and moved.
/// Each edit is one undo step, or does nothing and says why.
class EditedList
{
public:
    virtual ~EditedList() = default;
    EditedList(const EditedList &) = delete;
    EditedList &operator=(const EditedList &) = delete;

    RecordKind kind() const { return m_kind; }
    /// What a list stands below, when it is empty, too.
    RecordKind group() const { return m_group; }
    const ListWords &words() const { return m_words; }

    /// `records` are those that are selected, ascending; `current` is one of them.
    virtual QByteArray text(const QVector<RecordIndex> &records, const RecordIndex &current) const = 0;
    virtual ListEdit cut(const QVector<RecordIndex> &records, const RecordIndex &current) = 0;
    virtual ListEdit duplicate(const QVector<RecordIndex> &records, const RecordIndex &current) = 0;
    /// `by`: 1 or -1.
    virtual ListEdit move(const QVector<RecordIndex> &records, const RecordIndex &current, int by) = 0;
    /// Puts the records of a text behind `current`, or first when that is the group. A problem that has a
    /// text says where that is no text of such records: then nothing is done.
    virtual JsonProblem paste(const QByteArray &text, const RecordRef &current, ListEdit &edit) = 0;

protected:
    EditedList(RecordKind kind, RecordKind group, const ListWords &words)
        : m_kind(kind)
        , m_group(group)
        , m_words(words)
    {}

    RecordRef ref(RecordIndex index, size_t component, int number) const
    {
        index[component] = number;
        return {m_kind, index};
    }

private:
    RecordKind m_kind;
    RecordKind m_group;
    const ListWords &m_words;
};

using EditedLists = std::vector<std::unique_ptr<EditedList>>;

/// Those of a document, which outlives them.
EditedLists editedLists(Document &document);
