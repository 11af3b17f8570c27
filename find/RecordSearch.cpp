// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordSearch.h"

namespace {
class Search
{
public:
    Search(const Condition &condition, const RecordValues &values, const std::atomic_bool *cancelled)
        : m_condition(condition)
        , m_values(values)
        , m_cancelled(cancelled)
    {}

    /// Looks through the records of a kind, below the owner whose first indexes are given.
    void look(const SearchedKind &kind, RecordIndex index = {}, size_t level = 0)
    {
        if (kind.kind == kind.root)
            return test({kind.kind, {}});
        const bool isLast = level == kind.owners.size();
        const int count = m_values.count(isLast ? kind.kind : kind.owners[level], index);
        for (int i = 0; i < count && !isCancelled(); ++i) {
            index[level] = i;
            if (isLast)
                test({kind.kind, index});
            else
                look(kind, index, level + 1);
        }
    }

    bool isCancelled() const { return m_cancelled && *m_cancelled; }
    std::vector<RecordRef> takeFound() { return std::move(m_found); }

private:
    void test(const RecordRef &record)
    {
        if (m_condition.matches(m_values, record))
            m_found.push_back(record);
    }

    const Condition &m_condition;
    const RecordValues &m_values;
    const std::atomic_bool *m_cancelled;
    std::vector<RecordRef> m_found;
};

/// What patches of models call the records of a kind.
QString pathWord(const SearchedKind &kind)
{
    if (kind.kind == RecordKind::AnimBlock)
        return QStringLiteral("block");
    if (kind.kind == RecordKind::TranslationTrack || kind.kind == RecordKind::RotationTrack)
        return QString::fromUtf8(kind.noun).remove(QLatin1String(" track"));
    if (kind.kind == RecordKind::TranslationKey || kind.kind == RecordKind::RotationKey)
        return QStringLiteral("key");
    return QString::fromUtf8(kind.noun);
}
} // namespace

std::vector<RecordRef> findRecords(const Condition &condition, const RecordValues &values, RecordKind root,
                                   const std::atomic_bool *cancelled)
{
    Search search(condition, values, cancelled);
    for (const SearchedKind &kind : RecordWords::kinds()) {
        if (kind.root == root && condition.concerns(kind.kind))
            search.look(kind);
    }
    return search.isCancelled() ? std::vector<RecordRef>() : search.takeFound();
}

QString recordPath(const RecordRef &record)
{
    const SearchedKind *kind = RecordWords::kindOf(record.kind);
    if (!kind || kind->kind == kind->root)
        return kind ? QString::fromUtf8(kind->noun) : QString();
    QString path;
    for (size_t i = 0; i < kind->owners.size(); ++i)
        path += QStringLiteral("%1 %2 ")
                    .arg(pathWord(*RecordWords::kindOf(kind->owners[i])))
                    .arg(record.index[i]);
    return path + QStringLiteral("%1 %2").arg(pathWord(*kind)).arg(record.index[kind->owners.size()]);
}
