// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"

#include <optional>

/// Takes in what the checks of one model find. A fault is often in thousands of places at once: the texts of
/// the first few are made, the rest of a rule is counted.
class FindingCollector
{
public:
    /// Lists at most `listed` findings of a rule.
    explicit FindingCollector(int listed);
    /// Collects nothing but the places where `only` can be repaired, at most `places`.
    FindingCollector(Rule only, int places);

    /// `text` is a function, called for what is listed only.
    template <typename Text>
    void add(Rule rule, const RecordRef &place, bool repairable, Text text)
    {
        if (hasRoom(rule, repairable))
            list({rule, place, text(), repairable});
        else
            count(rule, place, 1);
    }
    template <typename Text>
    void add(Rule rule, const RecordRef &place, Text text)
    {
        add(rule, place, false, text);
    }

    /// Whether the next finding of the rule would be listed.
    bool hasRoom(Rule rule, bool repairable = false) const;
    /// Counts findings that are not listed, the first of them at `first`.
    void count(Rule rule, const RecordRef &first, qint64 number);

    /// What was found, rule by rule, each with its closing line where there is more.
    std::vector<Finding> take();
    /// With a rule given: where it can be repaired.
    std::vector<RecordRef> takePlaces();

private:
    struct OfRule
    {
        std::vector<Finding> listed;
        RecordRef firstNotListed;
        qint64 notListed = 0;
    };

    void list(Finding finding);

    std::optional<Rule> m_only;
    size_t m_limit;
    std::vector<OfRule> m_rules;
};
