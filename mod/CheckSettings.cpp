// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CheckSettings.h"

#include "Files.h"
#include "JsonEdit.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {
constexpr qint64 MostSettingsBytes = 1024 * 1024;
constexpr int MostTextureSide = 65536;

int lineOf(const QByteArray &text, int place)
{
    return 1 + int(std::count(text.begin(), text.begin() + std::min(place, text.size()), '\n'));
}

QByteArray jsonString(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

bool isThere(const JsonEdit::Span &span)
{
    return span.end > span.begin;
}

/// The text with these entries more in its list, or with a list of them where it has none, or with the whole
/// of `check`. Empty where the text is damaged.
QByteArray withEntries(const QByteArray &text, const QByteArray &check, const QByteArray &list,
                       const QByteArrayList &entries)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QJsonValue oldCheck = document.object().value(QLatin1String("check"));
    const QJsonValue oldList = oldCheck.toObject().value(QLatin1String("silence"));
    // What is there and is something else is not replaced.
    if (!document.isObject() || !(oldCheck.isObject() || oldCheck.isUndefined()) ||
        !(oldList.isArray() || oldList.isUndefined()))
        return {};
    QByteArray edited = text;
    const JsonEdit::Span root = JsonEdit::root(edited);
    const JsonEdit::Span checkSpan = JsonEdit::member(edited, root, "check");
    const JsonEdit::Span listSpan =
        isThere(checkSpan) ? JsonEdit::member(edited, checkSpan, "silence") : JsonEdit::Span();
    if (!isThere(checkSpan))
        JsonEdit::append(edited, root, {check});
    else if (!isThere(listSpan))
        JsonEdit::append(edited, checkSpan, {list});
    else
        JsonEdit::append(edited, listSpan, entries);
    return edited;
}
} // namespace

const QString CheckSettings::FileName = QStringLiteral(".korvane.json");

CheckSettings CheckSettings::of(const QString &modFolder)
{
    const QString path = QDir(modFolder).filePath(FileName);
    if (!Files::isFile(path))
        return {};
    QString reason;
    const std::unique_ptr<QIODevice> device = Files::open(path, &reason);
    if (device && device->size() <= MostSettingsBytes)
        return read(device->readAll());
    CheckSettings settings;
    settings.m_findings.push_back(
        {wordsOf(ModRule::SettingsDamaged), tr("The file cannot be read, so nothing is silenced: %1")
                                                .arg(device ? tr("it has more than 1 MiB.") : reason)});
    return settings;
}

CheckSettings CheckSettings::read(const QByteArray &text)
{
    CheckSettings settings;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject()) {
        const QString reason =
            error.error == QJsonParseError::NoError
                ? tr("it holds no object")
                : tr("line %1: %2").arg(QString::number(lineOf(text, error.offset)), error.errorString());
        settings.m_findings.push_back(
            {wordsOf(ModRule::SettingsDamaged),
             tr("The file is no JSON (%1), so nothing is silenced. Mend it, or remove it.").arg(reason)});
        return settings;
    }
    const QJsonObject root = document.object();
    for (const QString &key : root.keys()) {
        if (key != QLatin1String("check"))
            settings.doubt(tr("'%1' is not known, and is left out. What is known is 'check'.").arg(key));
    }
    const QJsonValue check = root.value(QLatin1String("check"));
    if (check.isObject())
        settings.readCheck(check.toObject());
    else if (!check.isUndefined())
        settings.doubt(tr("'%1' is not what it has to be, %2, and is left out.")
                           .arg(QStringLiteral("check"), tr("an object")));
    return settings;
}

void CheckSettings::readCheck(const QJsonObject &check)
{
    for (const QString &key : check.keys()) {
        const QJsonValue value = check.value(key);
        if (key == QLatin1String("largestTexture")) {
            const int side = value.toInt();
            if (side >= 1 && side <= MostTextureSide)
                m_largestTexture = side;
            else
                doubt(tr("'%1' is not what it has to be, %2, and is left out.")
                          .arg(key, tr("a whole number of pixels from 1 to %1").arg(MostTextureSide)));
        } else if (key == QLatin1String("silence") && value.isArray()) {
            const QJsonArray list = value.toArray();
            if (list.size() > MostSilences)
                doubt(tr("'silence' has more than %1 entries; those behind them silence nothing.")
                          .arg(MostSilences));
            for (int i = 0; i < std::min(list.size(), MostSilences); ++i) {
                if (list[i].isObject())
                    readSilence(list[i].toObject(), i);
                else
                    doubt(tr("Entry %1 of 'silence' is no object, and silences nothing.").arg(i + 1));
            }
        } else if (key == QLatin1String("silence")) {
            doubt(tr("'%1' is not what it has to be, %2, and is left out.").arg(key, tr("a list")));
        } else {
            doubt(tr("'%1' is not known, and is left out. What is known is 'largestTexture' and 'silence'.")
                      .arg(key));
        }
    }
}

/// An entry with a word that nobody knows might silence more than was meant.
void CheckSettings::readSilence(const QJsonObject &entry, int place)
{
    Silence silence;
    silence.place = place;
    const QString number = QString::number(place + 1);
    for (const QString &key : entry.keys()) {
        QString *text = key == QLatin1String("rule")    ? &silence.rule
                        : key == QLatin1String("files") ? &silence.files
                        : key == QLatin1String("why")   ? &silence.why
                                                        : nullptr;
        if (!text)
            return doubt(tr("Entry %1 of 'silence' silences nothing: '%2' is not known. What is known is "
                            "'rule', 'files' and 'why'.")
                             .arg(number, key));
        if (!entry.value(key).isString() || (key == QLatin1String("files") && entry.value(key) == QString()))
            return doubt(tr("Entry %1 of 'silence' silences nothing: '%2' is no text, or an empty one.")
                             .arg(number, key));
        *text = entry.value(key).toString();
    }
    if (!canBeSilenced(silence.rule))
        return doubt(tr("Entry %1 of 'silence' silences nothing: there is no rule '%2' that can be silenced.")
                         .arg(number, silence.rule));
    if (silence.files.size() > FilePattern::MostLetters)
        return doubt(tr("Entry %1 of 'silence' silences nothing: its pattern has more than %2 letters.")
                         .arg(number, QString::number(FilePattern::MostLetters)));
    silence.pattern = FilePattern(silence.files.isEmpty() ? QStringLiteral("**") : silence.files);
    m_silences.push_back(std::move(silence));
}

void CheckSettings::doubt(const QString &text)
{
    m_findings.push_back({wordsOf(ModRule::SettingsUnknown), text});
}

const CheckSettings::Silence *CheckSettings::silenceOf(QLatin1String rule, const QString &name) const
{
    if (m_silences.empty())
        return nullptr;
    const QString folded = name.toCaseFolded();
    const auto found =
        std::find_if(m_silences.begin(), m_silences.end(), [&rule, &folded](const Silence &silence) {
            return silence.rule == rule && silence.pattern.matchesFolded(folded);
        });
    return found == m_silences.end() ? nullptr : &*found;
}

QByteArray CheckSettings::withSilences(const QByteArray &text, const std::vector<RuleOfFiles> &added)
{
    QByteArrayList entries;
    for (const auto &[rule, files] : added) {
        const QByteArray where = files.isEmpty() ? QByteArray() : ", \"files\": " + jsonString(files);
        entries += "{\"rule\": " + jsonString(rule) + where + '}';
    }
    const QByteArray list = "\"silence\": [\n      " + entries.join(",\n      ") + "\n    ]";
    const QByteArray check = "\"check\": {\n    " + list + "\n  }";
    const QByteArray edited =
        text.trimmed().isEmpty() ? "{\n  " + check + "\n}\n" : withEntries(text, check, list, entries);
    // A key may be spelled so that readers and this do not agree on it, with a byte order mark in it: then
    // nothing is written.
    const bool areMore = read(edited).silences().size() == read(text).silences().size() + added.size();
    return areMore ? edited : QByteArray();
}

QByteArray CheckSettings::withoutSilences(const QByteArray &text, const std::set<int> &places)
{
    if (!QJsonDocument::fromJson(text).isObject())
        return {};
    QByteArray edited = text;
    const JsonEdit::Span check = JsonEdit::member(edited, JsonEdit::root(edited), "check");
    const JsonEdit::Span list =
        isThere(check) ? JsonEdit::member(edited, check, "silence") : JsonEdit::Span();
    if (isThere(list))
        JsonEdit::removeChildren(edited, list, places);
    return edited;
}
