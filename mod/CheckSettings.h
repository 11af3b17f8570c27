// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileCheck.h"
#include "FilePattern.h"

#include <QCoreApplication>

#include <set>
#include <utility>

class QJsonObject;

/// What a mod wants to be checked for, as the file of that name in its folder says:
///
///     {"check": {"largestTexture": 2048,
///                "silence": [{"rule": "same-as-game", "files": "models/old/**", "why": "kept on purpose"}]}}
///
/// A pattern of files is a FilePattern. Without "files" a rule is silenced for all of them. What cannot be
/// understood silences nothing and is a finding.
class CheckSettings
{
    Q_DECLARE_TR_FUNCTIONS(CheckSettings)

public:
    static const QString FileName;
    static constexpr int MostSilences = 1000;   ///< further entries silence nothing
    static constexpr int LargestTexture = 4096; ///< pixels a side, unless the file says otherwise

    struct Silence
    {
        QString rule;
        QString files; ///< empty for all
        QString why;
        int place = 0; ///< its number in the list of the file
        FilePattern pattern{};
    };

    CheckSettings() = default;
    /// Reads the file in a mod's folder or archive; where there is none, nothing is silenced.
    static CheckSettings of(const QString &modFolder);
    static CheckSettings read(const QByteArray &text);

    int largestTexture() const { return m_largestTexture; }
    const std::vector<Silence> &silences() const { return m_silences; }
    /// What silences a rule for a file, by its path below the mod's folder; null when nothing does.
    const Silence *silenceOf(QLatin1String rule, const QString &name) const;
    /// What is wrong with the file.
    const std::vector<FileFinding> &findings() const { return m_findings; }

    /// A rule, and a pattern of files; of an empty one all are meant.
    using RuleOfFiles = std::pair<QString, QString>;
    /// The text of the file with more rules silenced. The rest stays as it is written. Empty where the text
    /// is damaged, or has no room for so many.
    static QByteArray withSilences(const QByteArray &text, const std::vector<RuleOfFiles> &added);
    /// The text without the entries of these numbers in the list. Empty where the text is damaged.
    static QByteArray withoutSilences(const QByteArray &text, const std::set<int> &places);

private:
    void readCheck(const QJsonObject &check);
    void readSilence(const QJsonObject &entry, int place);
    void doubt(const QString &text);

    int m_largestTexture = LargestTexture;
    std::vector<Silence> m_silences;
    std::vector<FileFinding> m_findings;
};
