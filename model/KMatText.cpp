// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMatText.h"

#include "KMat.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {
struct KMatTexts
{
    Q_DECLARE_TR_FUNCTIONS(KMatText)
};

/// Where the characters of a text without its carriage returns stand in the text itself.
class Places
{
public:
    explicit Places(const QString &text)
    {
        for (int at = text.indexOf(QLatin1Char('\r')); at >= 0; at = text.indexOf(QLatin1Char('\r'), at + 1))
            m_before.push_back(at - int(m_before.size()));
    }

    /// Of a character, behind the returns before it.
    int of(int at) const
    {
        return at + int(std::upper_bound(m_before.begin(), m_before.end(), at) - m_before.begin());
    }
    /// A word ends behind its last character, not behind returns that follow.
    TextSpan of(TextSpan span) const
    {
        return span.begin == span.end ? TextSpan{behind(span.end), behind(span.end)}
                                      : TextSpan{of(span.begin), behind(span.end)};
    }
    int behind(int at) const { return at == 0 ? 0 : of(at - 1) + 1; }

private:
    std::vector<int> m_before; ///< for each return the characters of other kinds before it
};

/// Makes materials of the words of a text.
struct MaterialReader
{
    const Places &places;
    std::vector<KMatMaterial> &materials;
    QString &problem;
    QSet<QString> names;

    bool material(const QString &name, TextSpan at)
    {
        if (names.contains(name) && problem.isEmpty())
            problem = KMatTexts::tr("Two materials have the name '%1': the file cannot be read.").arg(name);
        names.insert(name);
        materials.push_back({name, places.of(at), {}});
        return false;
    }

    bool sampler(const SamplerWords &words)
    {
        if (materials.empty()) {
            problem = KMatTexts::tr("A sampler stands before the first material: the file cannot be read.");
            return true;
        }
        QString name = words.name, texture = words.path;
        for (QString *each : {&name, &texture})
            each->remove(QLatin1Char('"'));
        materials.back().samplers.push_back(
            {name, texture, places.of(words.pathAt), places.behind(words.free)});
        return false;
    }
};

bool isWord(const QString &text)
{
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) { return c.isSpace() || c == QLatin1Char('"') || c.isNull(); });
}

bool isSameMaterial(const KMatMaterial &a, const KMatMaterial &b)
{
    return a.name == b.name &&
           std::equal(
               a.samplers.begin(), a.samplers.end(), b.samplers.begin(), b.samplers.end(),
               [](const KMatSampler &was, const KMatSampler &is) { return was.texture == is.texture; });
}

/// Whether `is` has what `was` had, but for one material.
bool differIn(const KMatText &was, const KMatText &is, int material, const KMatMaterial &wanted)
{
    if (was.materials().size() != is.materials().size())
        return false;
    for (size_t i = 0; i < was.materials().size(); ++i) {
        if (!isSameMaterial(is.materials()[i], int(i) == material ? wanted : was.materials()[i]))
            return false;
    }
    return true;
}

/// The ways of writing a texture in the place of a sampler's word, the one that changes least first.
std::vector<TextEdit> waysOfWriting(const QString &text, const KMatSampler &sampler, const QString &texture)
{
    const QChar quote = QLatin1Char('"');
    const QString quoted = quote + texture + quote;
    const TextSpan word = sampler.word;
    if (word.begin == word.end)
        return {{{sampler.free, sampler.free}, QLatin1Char(' ') + quoted}};
    std::vector<TextEdit> ways;
    if (text[word.begin] == quote) {
        // A path with a blank in it is more than a word, and what follows a quote may be part of one.
        const int close = text.indexOf(quote, word.begin + 1);
        const int lineEnd = text.indexOf(QLatin1Char('\n'), word.begin);
        if (close >= 0 && (lineEnd < 0 || close < lineEnd)) {
            ways.push_back({{word.begin + 1, close}, texture});
            ways.push_back({{word.begin, close + 1}, quoted + QLatin1Char(' ')});
        }
    } else {
        ways.push_back({word, texture});
    }
    ways.push_back({word, quoted});
    ways.push_back({word, QLatin1Char(' ') + quoted + QLatin1Char(' ')});
    return ways;
}
} // namespace

KMatText::KMatText(const QByteArray &bytes)
    : m_encoding(TextEncoding::of(bytes))
    , m_text(m_encoding.decode(bytes))
{
    read();
}

void KMatText::read()
{
    m_materials.clear();
    m_problem.clear();
    const Places places(m_text);
    MaterialReader reader{places, m_materials, m_problem, {}};
    readKMatWords(QString(m_text).remove(QLatin1Char('\r')), reader);
}

TextEdit KMatText::apply(const TextEdit &edit)
{
    const int length = edit.span.end - edit.span.begin;
    TextEdit back{{edit.span.begin, edit.span.begin + edit.text.size()}, m_text.mid(edit.span.begin, length)};
    m_text.replace(edit.span.begin, length, edit.text);
    read();
    return back;
}

KMatText KMatText::after(const TextEdit &edit) const
{
    KMatText edited = *this;
    edited.apply(edit);
    return edited;
}

bool KMatText::isWritable() const
{
    const QByteArray written = bytes();
    return written.size() <= MostMaterialBytes && TextEncoding::of(written).decode(written) == m_text;
}

QString KMatText::findTextureEdit(int material, int sampler, const QString &texture, TextEdit &edit) const
{
    if (!isWord(texture))
        return KMatTexts::tr("The path of a texture has no blanks and no quotes: '%1'.").arg(texture);
    KMatMaterial wanted = m_materials[size_t(material)];
    const KMatSampler old = wanted.samplers[size_t(sampler)];
    wanted.samplers[size_t(sampler)].texture = texture;
    bool isReadable = false;
    for (const TextEdit &way : waysOfWriting(m_text, old, texture)) {
        const KMatText edited = after(way);
        if (!differIn(*this, edited, material, wanted) || edited.problem() != m_problem)
            continue;
        isReadable = true;
        if (!edited.isWritable())
            continue;
        edit = way;
        return {};
    }
    return isReadable
               ? KMatTexts::tr("The encoding of the file does not have all letters of '%1'.").arg(texture)
               : KMatTexts::tr("'%1' cannot be written there without changing other things.").arg(texture);
}

QString KMatText::refusalOf(const QString &name) const
{
    if (name.isEmpty() || !isWord(name))
        return KMatTexts::tr("The name of a material has no blanks and no quotes: '%1'.").arg(name);
    const bool isTaken = std::any_of(m_materials.begin(), m_materials.end(),
                                     [&name](const KMatMaterial &each) { return each.name == name; });
    return isTaken ? KMatTexts::tr("The file has a material '%1' already.").arg(name) : QString();
}

QString KMatText::findRenaming(int material, const QString &name, TextEdit &edit) const
{
    const QString refusal = refusalOf(name);
    if (!refusal.isEmpty())
        return refusal;
    KMatMaterial wanted = m_materials[size_t(material)];
    const TextSpan word = wanted.word;
    wanted.name = name;
    const TextEdit way{word, word.begin == word.end ? QLatin1Char(' ') + name : name};
    // Two materials of one name may be told apart by that, so what a reader refuses may be another thing.
    const KMatText edited = after(way);
    if (!differIn(*this, edited, material, wanted) || (m_problem.isEmpty() && !edited.problem().isEmpty()))
        return KMatTexts::tr("'%1' cannot be written there without changing other things.").arg(name);
    if (!edited.isWritable())
        return KMatTexts::tr("The encoding of the file does not have all letters of '%1'.").arg(name);
    edit = way;
    return {};
}

QString KMatText::findAddition(const QString &name, const QString &texture, TextEdit &edit) const
{
    const QString refusal = refusalOf(name);
    if (!refusal.isEmpty())
        return refusal;
    if (!isWord(texture))
        return KMatTexts::tr("The path of a texture has no blanks and no quotes: '%1'.").arg(texture);
    QString added = QString::fromUtf8(kmatBytes({{name, texture}}));
    // A text without a line gets the system's line ends.
    const QString &lines = m_text.contains(QLatin1Char('\n')) ? m_text : added;
    const QLatin1String lineEnd(lines.contains(QLatin1String("\r\n")) ? "\r\n" : "\n");
    added.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), lineEnd);
    if (!m_text.isEmpty() && !m_text.endsWith(QLatin1Char('\n')))
        added.prepend(lineEnd);
    const TextEdit way{{m_text.size(), m_text.size()}, added};
    const KMatText edited = after(way);
    const bool isReadable = edited.m_materials.size() == m_materials.size() + 1 &&
                            edited.m_materials.back().name == name &&
                            edited.m_materials.back().texture() == texture;
    if (!isReadable)
        return KMatTexts::tr("'%1' cannot be written there without changing other things.").arg(name);
    if (!edited.isWritable())
        return KMatTexts::tr("The encoding of the file does not have all letters of '%1'.")
            .arg(name + QLatin1Char(' ') + texture);
    edit = way;
    return {};
}
