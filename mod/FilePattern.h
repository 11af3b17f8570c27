// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// A pattern of paths below a mod's folder: `*` and `?` stand for letters of one name, `**` for any letters,
/// `**` and a slash for any folders or none. Case does not matter. Matching takes time in proportion to the
/// lengths of pattern and path, whatever they are.
class FilePattern
{
public:
    /// Letters of a pattern; paths are shorter.
    static constexpr int MostLetters = 1000;

    /// Matches nothing.
    FilePattern() = default;
    explicit FilePattern(const QString &pattern);

    bool matches(const QString &path) const { return matchesFolded(path.toCaseFolded()); }
    /// The same of a path in one case, for who asks many patterns.
    bool matchesFolded(const QString &path) const;

private:
    enum class Kind {
        Letter,
        AnyLetter,
        Letters,    ///< of one name, or none
        AnyLetters, ///< or none
        Folders,    ///< begins them, or is passed over with the next
        FolderEnd,  ///< goes on up to a slash
        End,
    };
    struct Part
    {
        Kind kind;
        QChar letter{};
    };

    /// Marks a part, and those behind it that need no letter.
    void enter(size_t part, std::vector<bool> &parts) const;

    QString m_start; ///< up to the first sign that stands for letters: most paths are told from it by that
    std::vector<Part> m_parts;
};
