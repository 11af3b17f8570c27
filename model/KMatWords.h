// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextStream>

/// A run of characters of a text.
struct TextSpan
{
    int begin = 0;
    int end = 0;

    bool operator==(const TextSpan &other) const { return begin == other.begin && end == other.end; }
};

/// What a sampler says in a text.
struct SamplerWords
{
    QString name; ///< with its quotes, as the path
    QString path; ///< empty where the line ends before it
    TextSpan pathAt{};
    int free = 0; ///< behind here a missing path can be written
};

/// Reads the words of a .kmat file that make materials, for all who want to know of them, so that they cannot
/// disagree. `text` has no carriage returns: a lone one ends no line, and within a word it counts for
/// nothing. Calls, in the order of the text and with places in it, `material(name, at)` and `sampler(words)`.
/// Ends when one of them returns true, and then does so itself.
template <typename Listener>
bool readKMatWords(const QString &text, Listener &listener)
{
    QString line, word;
    QTextStream words;
    for (int start = 0; start < text.size(); start += line.size() + 1) {
        const int end = text.indexOf(QLatin1Char('\n'), start);
        line = text.mid(start, end < 0 ? -1 : end - start);
        if (line.startsWith(QLatin1String("//")))
            continue;
        words.setString(&line, QIODevice::ReadOnly);
        const auto place = [&](const QString &read) {
            const int behind = start + int(words.pos());
            return TextSpan{behind - read.size(), behind};
        };
        for (words >> word; !word.isEmpty(); words >> word) {
            if (word == QLatin1String("material")) {
                words >> word;
                if (listener.material(word, place(word)))
                    return true;
            } else if (word == QLatin1String("sampler")) {
                SamplerWords sampler;
                int textureUnit = 0;
                words >> sampler.name;
                sampler.free = start + int(words.pos());
                // A unit that is no number is not consumed: it is then the path.
                words >> textureUnit;
                if (words.status() == QTextStream::Ok)
                    sampler.free = start + int(words.pos());
                words.resetStatus();
                words >> sampler.path;
                words.resetStatus();
                sampler.pathAt = place(sampler.path);
                if (listener.sampler(sampler))
                    return true;
            }
        }
    }
    return false;
}
