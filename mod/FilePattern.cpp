// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilePattern.h"

#include <algorithm>
#include <utility>

FilePattern::FilePattern(const QString &pattern)
{
    const QString folded = pattern.toCaseFolded();
    const auto isSign = [](QChar letter) { return letter == QLatin1Char('*') || letter == QLatin1Char('?'); };
    m_start = folded.left(int(std::find_if(folded.begin(), folded.end(), isSign) - folded.begin()));
    for (int i = 0; i < folded.size(); ++i) {
        if (folded[i] == QLatin1Char('?')) {
            m_parts.push_back({Kind::AnyLetter});
        } else if (folded[i] != QLatin1Char('*')) {
            m_parts.push_back({Kind::Letter, folded[i]});
        } else if (folded.midRef(i, 3) == QLatin1String("**/")) {
            m_parts.push_back({Kind::Folders});
            m_parts.push_back({Kind::FolderEnd});
            i += 2;
        } else if (folded.midRef(i, 2) == QLatin1String("**")) {
            m_parts.push_back({Kind::AnyLetters});
            ++i;
        } else {
            m_parts.push_back({Kind::Letters});
        }
    }
    m_parts.push_back({Kind::End});
}

void FilePattern::enter(size_t part, std::vector<bool> &parts) const
{
    while (!parts[part]) {
        parts[part] = true;
        const Kind kind = m_parts[part].kind;
        if (kind == Kind::Folders)
            enter(part + 2, parts);
        else if (kind != Kind::Letters && kind != Kind::AnyLetters)
            return;
        ++part;
    }
}

/// Goes through the path once, at all parts at a time that it may have come to.
bool FilePattern::matchesFolded(const QString &path) const
{
    if (m_parts.empty() || !path.startsWith(m_start))
        return false;
    if (m_parts.size() == size_t(m_start.size()) + 1) // and the end
        return path.size() == m_start.size();
    std::vector<bool> at(m_parts.size());
    std::vector<bool> next(m_parts.size());
    enter(0, at);
    for (const QChar letter : path) {
        next.assign(m_parts.size(), false);
        const bool isSlash = letter == QLatin1Char('/');
        bool any = false;
        for (size_t i = 0; i < m_parts.size(); ++i) {
            if (!at[i])
                continue;
            const Part &part = m_parts[i];
            const bool stays = part.kind == Kind::AnyLetters || part.kind == Kind::FolderEnd ||
                               (part.kind == Kind::Letters && !isSlash);
            const bool goesOn = (part.kind == Kind::Letter && part.letter == letter) ||
                                (part.kind == Kind::AnyLetter && !isSlash) ||
                                (part.kind == Kind::FolderEnd && isSlash);
            if (stays)
                enter(i, next);
            if (goesOn)
                enter(i + 1, next);
            any = any || stays || goesOn;
        }
        if (!any)
            return false;
        std::swap(at, next);
    }
    return at.back();
}
