// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"

#include "Files.h"
#include "KMatWords.h"
#include "TextEncoding.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTextStream>

#include <optional>

namespace {
QString textOf(const QByteArray &bytes)
{
    return TextEncoding::of(bytes).decode(bytes);
}

/// Makes samplers of the words of a file.
struct SamplerReader
{
    const QString &path;
    std::vector<MaterialSampler> &samplers;
    QSet<QString> names{};
    QString error{};

    bool material(const QString &name, TextSpan)
    {
        if (names.contains(name)) {
            error = QCoreApplication::translate(
                        "ModelFiles",
                        ".kMat file has a material with the same name - %1. The file may be invalid - %2")
                        .arg(name, path);
            return true;
        }
        names.insert(name);
        samplers.push_back({name, {}, {}});
        return false;
    }

    bool sampler(const SamplerWords &words)
    {
        if (samplers.empty()) {
            error = QCoreApplication::translate(
                        "ModelFiles",
                        ".kMat file read a texture path with no material set. The file may be invalid - %1")
                        .arg(path);
            return true;
        }
        if (!samplers.back().sampler.isNull())
            samplers.push_back({samplers.back().material, {}, {}});
        MaterialSampler &added = samplers.back();
        added.sampler = words.name;
        added.sampler.remove(QLatin1Char('"'));
        if (added.sampler.isNull())
            added.sampler = QLatin1String("");
        added.texture = words.path;
        added.texture.remove(QLatin1Char('"'));
        return false;
    }
};

/// Where a material stands in a text: from its word "material", with the blanks before it on its line, to
/// behind its closing brace; without one to the next material.
struct MaterialBlock
{
    QString name;
    int begin;
    int end;
};

class MaterialBlocks
{
public:
    explicit MaterialBlocks(const QString &text)
        : m_text(text)
    {
        for (int at = 0; at < text.size();) {
            const int lineEnd = text.indexOf(QLatin1Char('\n'), at);
            const int next = lineEnd < 0 ? text.size() : lineEnd + 1;
            if (!text.midRef(at).startsWith(QLatin1String("//")))
                scanLine(at, next);
            at = next;
        }
    }

    const std::vector<MaterialBlock> &found() const { return m_found; }

private:
    void scanLine(int begin, int end)
    {
        bool quoted = false;
        int nameOf = -1; // where the material begins whose name comes next
        for (int at = begin; at < end;) {
            if (m_text[at].isSpace()) {
                ++at;
                continue;
            }
            int wordEnd = at;
            while (wordEnd < end && !m_text[wordEnd].isSpace())
                ++wordEnd;
            const QString word = m_text.mid(at, wordEnd - at);
            if (nameOf >= 0) {
                m_found.push_back({word, nameOf, m_text.size()});
                m_depth = 0;
                m_isOpen = true;
                nameOf = -1;
            } else if (word == QLatin1String("material")) {
                const bool leads = m_text.midRef(begin, at - begin).trimmed().isEmpty();
                nameOf = leads ? begin : at;
                close(nameOf);
            }
            for (; at < wordEnd; ++at)
                take(m_text[at], at, quoted);
        }
    }

    void take(QChar character, int at, bool &quoted)
    {
        if (character == QLatin1Char('"'))
            quoted = !quoted;
        else if (!quoted && character == QLatin1Char('{'))
            ++m_depth;
        else if (!quoted && character == QLatin1Char('}') && --m_depth <= 0)
            close(at + 1);
    }

    void close(int end)
    {
        if (m_isOpen)
            m_found.back().end = end;
        m_isOpen = false;
    }

    const QString &m_text;
    std::vector<MaterialBlock> m_found;
    int m_depth = 0;
    bool m_isOpen = false;
};

/// `from`, or behind the blank lines that follow there: one, and the rest of the line itself.
int behindBlankLines(const QString &text, int from)
{
    for (int lines = 0; lines < 2; ++lines) {
        int at = from;
        while (at < text.size() && text[at] != QLatin1Char('\n') && text[at].isSpace())
            ++at;
        if (at < text.size() && text[at] != QLatin1Char('\n'))
            break;
        from = qMin(at + 1, text.size());
    }
    return from;
}

/// None of a larger file than is read.
QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.size() <= MostMaterialBytes && file.open(QIODevice::ReadOnly)
               ? file.readAll()
               : QByteArray();
}

QString tooLarge(const QString &path)
{
    return QCoreApplication::translate("ModelFiles", "'%1' is larger than %2 MiB: it is no .kMat file")
        .arg(path, QString::number(MostMaterialBytes / 1024 / 1024));
}

/// A file's bytes with the materials of the table in place of those of their names; the others stay. None
/// when the file's encoding lacks a letter.
std::optional<QByteArray> mergedBytes(const QByteArray &bytes, const MaterialTable &table)
{
    const TextEncoding encoding = TextEncoding::of(bytes);
    const QString text = encoding.decode(bytes);
    QString added = QString::fromUtf8(kmatBytes(table));
    // A file that has none yet gets the system's.
    const QString &lines = text.contains(QLatin1Char('\n')) ? text : added;
    const QLatin1String lineEnd(lines.contains(QLatin1String("\r\n")) ? "\r\n" : "\n");
    const MaterialBlocks blocks(text);
    QString merged;
    int at = 0;
    for (const MaterialBlock &block : blocks.found()) {
        if (table.count(block.name) == 0)
            continue;
        merged += text.midRef(at, block.begin - at);
        at = behindBlankLines(text, block.end);
    }
    merged += text.midRef(at);
    if (!merged.isEmpty() && !merged.endsWith(QLatin1Char('\n')))
        merged += lineEnd;
    merged += added.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), lineEnd);
    const QByteArray result = encoding.encode(merged);
    return encoding.decode(result) == merged ? std::optional(result) : std::nullopt;
}
} // namespace

QString readSamplers(QIODevice &text, const QString &path, std::vector<MaterialSampler> &samplers)
{
    samplers.clear();
    SamplerReader reader{path, samplers};
    // A lone carriage return ends no line; in bytes there is more than one way of writing it.
    if (readKMatWords(textOf(text.readAll()).remove(QLatin1Char('\r')), reader))
        samplers.clear();
    return reader.error;
}

QString readSamplers(const QStringList &candidates, std::vector<MaterialSampler> &samplers)
{
    samplers.clear();
    for (const QString &path : candidates) {
        const std::unique_ptr<QIODevice> file = Files::open(path);
        if (file)
            return file->size() <= MostMaterialBytes ? readSamplers(*file, path, samplers) : tooLarge(path);
    }
    return QCoreApplication::translate("ModelFiles", "Unable to read .kMat file at %1")
        .arg(candidates.isEmpty() ? QString() : candidates.last());
}

namespace {
/// Of several samplers the last counts.
MaterialTable tableOf(const std::vector<MaterialSampler> &samplers)
{
    MaterialTable table;
    for (const MaterialSampler &each : samplers)
        table[each.material] = each.texture;
    return table;
}
} // namespace

QString readKMat(QIODevice &text, const QString &path, MaterialTable &table)
{
    std::vector<MaterialSampler> samplers;
    const QString error = readSamplers(text, path, samplers);
    table = tableOf(samplers);
    return error;
}

QString readKMat(const QString &path, MaterialTable &table)
{
    return readKMat(QStringList(path), table);
}

QString readKMat(const QStringList &candidates, MaterialTable &table)
{
    std::vector<MaterialSampler> samplers;
    const QString error = readSamplers(candidates, samplers);
    table = tableOf(samplers);
    return error;
}

bool writeKMat(QIODevice &text, const MaterialTable &table)
{
    QTextStream out(&text);
    out.setCodec("UTF-8");
    for (const auto &[name, texturePath] : table) {
        out << "material " << name << " {\n"
            << "\tcull back\n"
            << "\tparam \"uLimitAlpha\" 0 \"0\"\n"
            << "\tparam \"uReflective\" 0 \"0\"\n"
            << "\tparam \"uPseduoColor\" 0 \"0\"\n" // the game's own spelling
            << "\tsort default\n"
            << "\tdepthtest\n"
            << "\tcolor_environment \"0.000000 0.000000 0.000000 1.000000\"\n"
            << "\tcolor_diffuse \"1.000000 1.000000 1.000000 1.000000\"\n"
            << "\tsampler \"diffuse\" 0 \"" << texturePath << "\" {\n"
            << "\t\tfilter      linear_anisotropic\n"
            << "\t\twrap        repeat\n"
            << "\t}\n"
            << "}\n"
            << "\n";
    }
    out.flush();
    return out.status() != QTextStream::Ok;
}

QByteArray kmatBytes(const MaterialTable &table)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    (void)!writeKMat(buffer, table); // memory takes all
    return buffer.data();
}

namespace {
QString writeText(const QString &path, const QByteArray &text)
{
    return writeWholeFile(path, text).isEmpty()
               ? QString()
               : QCoreApplication::translate("ModelFiles", "Unable to open file for writing - %1").arg(path);
}
} // namespace

QStringList otherMaterials(const QString &path, const MaterialTable &table)
{
    const QString text = textOf(fileBytes(path));
    const MaterialBlocks blocks(text);
    QStringList names;
    for (const MaterialBlock &block : blocks.found()) {
        if (table.count(block.name) == 0)
            names += block.name;
    }
    return names;
}

QString mergeKMat(const QString &path, const MaterialTable &table)
{
    if (QFileInfo(path).size() > MostMaterialBytes)
        return tooLarge(path);
    const std::optional<QByteArray> merged = mergedBytes(fileBytes(path), table);
    return merged ? writeText(path, *merged)
                  : QCoreApplication::translate(
                        "ModelFiles",
                        "'%1' is in Latin-1, which does not have all letters of the new materials.")
                        .arg(path);
}

QString writeKMat(const QString &path, const MaterialTable &table)
{
    return writeText(path, kmatBytes(table));
}
