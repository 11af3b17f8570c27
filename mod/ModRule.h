// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"

/// What a file is checked for beside the rules of its own kind: whether it can be read, and how it goes with
/// the other files of game and mod. The order is that of lists of findings.
enum class ModRule {
    SettingsDamaged,
    SettingsUnknown,
    Unreadable,
    NameClash,
    AnimationBoneCount,
    TextureUnreadable,
    TextureNotPowerOfTwo,
    TextureTooLarge,
    MaterialUnused,
    SameAsGame,
};

/// A rule of either kind, for programs and lists.
struct RuleWords
{
    QLatin1String id; ///< never changes
    Severity severity;
    int order; ///< its place among allRuleWords()
};

RuleWords wordsOf(ModRule rule);
RuleWords wordsOf(Rule rule);
/// Those of all rules, first the rules of mods.
const std::vector<RuleWords> &allRuleWords();
/// Whether it is a rule of mods.
bool isModRule(const RuleWords &rule);
/// Whether a rule can be silenced: there is one of the name, and it is not about the settings themselves.
bool canBeSilenced(const QString &id);
