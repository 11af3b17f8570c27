// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModRule.h"

#include <algorithm>
#include <iterator>

namespace {
struct ModRuleRow
{
    ModRule rule;
    const char *id;
    Severity severity;
};

constexpr ModRuleRow modRuleRows[] = {
    {ModRule::SettingsDamaged, "settings-damaged", Severity::Error},
    {ModRule::SettingsUnknown, "settings-unknown", Severity::Warning},
    {ModRule::Unreadable, "unreadable", Severity::Error},
    {ModRule::NameClash, "name-clash", Severity::Warning},
    {ModRule::AnimationBoneCount, "animation-bone-count", Severity::Error},
    {ModRule::TextureUnreadable, "texture-unreadable", Severity::Warning},
    {ModRule::TextureNotPowerOfTwo, "texture-not-power-of-two", Severity::Warning},
    {ModRule::TextureTooLarge, "texture-too-large", Severity::Warning},
    {ModRule::MaterialUnused, "material-unused", Severity::Note},
    {ModRule::SameAsGame, "same-as-game", Severity::Note},
};
static_assert(std::size(modRuleRows) == size_t(ModRule::SameAsGame) + 1, "every rule has its row");
} // namespace

RuleWords wordsOf(ModRule rule)
{
    const ModRuleRow &row = modRuleRows[size_t(rule)];
    return {QLatin1String(row.id), row.severity, int(rule)};
}

RuleWords wordsOf(Rule rule)
{
    return {ruleId(rule), severityOf(rule), int(std::size(modRuleRows)) + int(rule)};
}

const std::vector<RuleWords> &allRuleWords()
{
    static const std::vector<RuleWords> all = [] {
        std::vector<RuleWords> words;
        for (const ModRuleRow &row : modRuleRows)
            words.push_back(wordsOf(row.rule));
        for (const Rule rule : allRules())
            words.push_back(wordsOf(rule));
        return words;
    }();
    return all;
}

bool isModRule(const RuleWords &rule)
{
    return size_t(rule.order) < std::size(modRuleRows);
}

bool canBeSilenced(const QString &id)
{
    const std::vector<RuleWords> &all = allRuleWords();
    return id != wordsOf(ModRule::SettingsDamaged).id && id != wordsOf(ModRule::SettingsUnknown).id &&
           std::any_of(all.begin(), all.end(), [&id](const RuleWords &words) { return words.id == id; });
}
