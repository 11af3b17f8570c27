// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordFilter.h"

#include <QSet>

class RecordItem;
struct RecordRow;

/// Gives tree items that stand for records or groups what belongs below them. What belongs below the records
/// of a long list is left for later, when it is looked at: KVTreeView::complete().
class RecordFilling
{
public:
    /// With `hideData` lists of mesh or animation data are left out; `letThrough` counts as matching. What is
    /// named outlives the filling.
    RecordFilling(const Document &document, const RecordFilter &filter, const QSet<RecordRef> &letThrough,
                  bool hideData)
        : m_document(document)
        , m_filter(filter)
        , m_letThrough(letThrough)
        , m_hideData(hideData)
    {}

    static constexpr int LongList = 200; ///< records

    /// All groups and records below `owner`, which `item` stands for.
    void fill(RecordItem *item, const RecordRef &owner) const;
    /// Only those that match the filter, what is below them and what leads to them.
    void fillMatching(RecordItem *item, const RecordRef &owner) const;

private:
    bool hasBelow(const RecordRef &owner) const;
    void leaveForLater(RecordItem *item, const RecordRef &record) const;
    /// Whether a list that is usually hidden is what the filter is about.
    bool isAskedFor(const RecordRow &row) const;

    const Document &m_document;
    const RecordFilter &m_filter;
    const QSet<RecordRef> &m_letThrough;
    const bool m_hideData;
};
