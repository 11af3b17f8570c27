// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FindingCollector.h"

#include <QCoreApplication>

#include <iterator>

FindingCollector::FindingCollector(int listed)
    : m_limit(size_t(listed))
    , m_rules(allRules().size())
{}

FindingCollector::FindingCollector(Rule only, int places)
    : m_only(only)
    , m_limit(size_t(places))
    , m_rules(allRules().size())
{}

bool FindingCollector::hasRoom(Rule rule, bool repairable) const
{
    return m_rules[size_t(rule)].listed.size() < m_limit && (!m_only || (m_only == rule && repairable));
}

void FindingCollector::list(Finding finding)
{
    m_rules[size_t(finding.rule)].listed.push_back(std::move(finding));
}

void FindingCollector::count(Rule rule, const RecordRef &first, qint64 number)
{
    OfRule &found = m_rules[size_t(rule)];
    if (number > 0 && found.notListed == 0)
        found.firstNotListed = first;
    found.notListed += number;
}

std::vector<Finding> FindingCollector::take()
{
    std::vector<Finding> all;
    for (const Rule rule : allRules()) {
        OfRule &found = m_rules[size_t(rule)];
        std::move(found.listed.begin(), found.listed.end(), std::back_inserter(all));
        if (found.notListed > 0) {
            all.push_back(
                {rule, found.firstNotListed,
                 QCoreApplication::translate("Validation", "And %1 more like these.").arg(found.notListed),
                 false, found.notListed});
        }
        found = {};
    }
    return all;
}

std::vector<RecordRef> FindingCollector::takePlaces()
{
    std::vector<RecordRef> places;
    for (const Finding &finding : m_rules[size_t(*m_only)].listed)
        places.push_back(finding.place);
    return places;
}
