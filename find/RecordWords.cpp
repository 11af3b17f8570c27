// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordWords.h"

#include "EventArguments.h"
#include "JsonFields.h"
#include "NameTables.h"

#include <QHash>

#include <algorithm>

namespace {
using K = RecordKind;

constexpr int ArgumentCount = 8;

/// Other words for kinds, beside their nouns.
struct OtherWord
{
    RecordKind kind;
    const char *word;
};
const OtherWord otherWords[] = {{K::AnimBlock, QT_TRANSLATE_NOOP("Records", "animation")},
                                {K::AnimBlock, QT_TRANSLATE_NOOP("Records", "animations")},
                                {K::AnimBlock, QT_TRANSLATE_NOOP("Records", "block")},
                                {K::AnimBlock, QT_TRANSLATE_NOOP("Records", "blocks")},
                                {K::ChildBone, QT_TRANSLATE_NOOP("Records", "child bone")},
                                {K::ChildBone, QT_TRANSLATE_NOOP("Records", "child bones")},
                                {K::TranslationKey, QT_TRANSLATE_NOOP("Records", "keys")},
                                {K::RotationKey, QT_TRANSLATE_NOOP("Records", "keys")},
                                {K::TranslationKey, QT_TRANSLATE_NOOP("Records", "frame")},
                                {K::RotationKey, QT_TRANSLATE_NOOP("Records", "frame")},
                                {K::TranslationTrack, QT_TRANSLATE_NOOP("Records", "track")},
                                {K::RotationTrack, QT_TRANSLATE_NOOP("Records", "track")}};

/// What questions ask for, as people call it.
const char *const questionWords[] = {
    QT_TRANSLATE_NOOP("Records", "actor"),  QT_TRANSLATE_NOOP("Records", "sound"),
    QT_TRANSLATE_NOOP("Records", "voice"),  QT_TRANSLATE_NOOP("Records", "particle"),
    QT_TRANSLATE_NOOP("Records", "impact"), QT_TRANSLATE_NOOP("Records", "damage")};

QString translatedNoun(const char *word)
{
    return QCoreApplication::translate("Records", word);
}

QLatin1String questionOf(const RecordField &field)
{
    switch (field.naming()) {
    case Naming::Animation:
        return Question::Animation;
    case Naming::HotPointEffect:
        return Question::Particle;
    default:
        return {}; // of bones and of lists of its own, or asked by the event
    }
}

class Dictionary
{
public:
    Dictionary()
    {
        for (const SearchedKind &each : RecordWords::kinds()) {
            addKind(each);
            for (const RecordField *field : RecordFields::of(each.kind))
                addField(*field);
        }
        for (const OtherWord &each : otherWords)
            addNoun(each.kind, each.word);
        addJsonWords<SkinnedMeshNode>({K::Bone});
        addJsonWords<SkinnedMeshHotPoint>({K::HotPoint});
        addJsonWords<SkinnedMeshVertex>({K::SkinnedVertex});
        addJsonWords<AnimNode>({K::AnimBone});
        addJsonWords<AnimAction>({K::AnimAction});
        addJsonWords<AnimBlock>({K::AnimBlock});
        addJsonWords<SkinnedMesh>({K::SkinnedMesh});
        addJsonWords<StaticMesh>({K::StaticMesh});
        addArguments();
    }

    const RecordWord *find(const QString &plain) const
    {
        const auto found = m_words.constFind(plain);
        return found == m_words.constEnd() ? nullptr : &*found;
    }
    const QHash<QString, RecordWord> &words() const { return m_words; }
    const QVector<QPair<RecordKind, QString>> &proposed() const { return m_proposed; }

private:
    RecordWord &word(const QString &text)
    {
        RecordWord &found = m_words[RecordWords::plain(text)];
        if (found.text.isEmpty())
            found.text = text;
        return found;
    }

    void addMeaning(const QString &text, const WordMeaning &meaning)
    {
        std::vector<WordMeaning> &meanings = word(text).meanings;
        const bool isKnown = std::any_of(meanings.begin(), meanings.end(), [&](const WordMeaning &each) {
            return each.kind == meaning.kind && each.field == meaning.field &&
                   each.number == meaning.number && each.arguments == meaning.arguments;
        });
        if (!isKnown)
            meanings.push_back(meaning);
    }

    void propose(RecordKind kind, const QString &text)
    {
        if (!m_proposed.contains({kind, text}))
            m_proposed.append({kind, text});
    }

    /// The kind itself, the record's own number by its noun, and its owners' numbers by theirs.
    void addKind(const SearchedKind &each)
    {
        addNoun(each.kind, each.noun);
        addNoun(each.kind, each.plural);
        propose(each.kind, translatedNoun(each.plural));
    }

    void addNoun(RecordKind kind, const char *noun)
    {
        for (const QString &text : {QString::fromUtf8(noun), translatedNoun(noun)})
            word(text).kinds = word(text).kinds | KindSet(kind);
        for (const SearchedKind &each : RecordWords::kinds()) {
            if (each.kind == each.root)
                continue;
            const int owners = int(each.owners.size());
            const auto at = std::find(each.owners.begin(), each.owners.end(), kind) - each.owners.begin();
            const int number = each.kind == kind ? owners : int(at) < owners ? int(at) : -1;
            if (number >= 0)
                addNumber(each.kind, number, noun, number == owners);
        }
    }

    void addNumber(RecordKind kind, int number, const char *noun, bool isItsOwn)
    {
        WordMeaning meaning;
        meaning.kind = kind;
        meaning.number = number;
        meaning.isItsOwn = isItsOwn;
        meaning.isBone = isItsOwn && (kind == K::Bone || kind == K::AnimBone);
        for (const QString &text : {QString::fromUtf8(noun), translatedNoun(noun)}) {
            // A field of that name is what is meant where there is one.
            if (!RecordFields::find(kind, text))
                addMeaning(text, meaning);
        }
    }

    void addField(const RecordField &field)
    {
        for (const QString &text : {field.title(), field.englishTitle(), field.id()})
            addFieldWord(field, text);
        const QString title = field.title();
        propose(field.kind(), title == field.englishTitle() ? title.toLower() : title);
    }

    void addFieldWord(const RecordField &field, const QString &text)
    {
        WordMeaning meaning;
        meaning.kind = field.kind();
        meaning.field = &field;
        meaning.isBone = field.namesBones();
        meaning.question = questionOf(field);
        addMeaning(text, meaning);
        // Without its axis, or its number, a word means all components.
        if (text.size() > 2 && (text[text.size() - 2] == ' ' || text[text.size() - 2] == '.'))
            addMeaning(text.chopped(2), meaning);
        else if (text.startsWith(QLatin1String("arg")) || text.startsWith(QLatin1String("effect")))
            addMeaning(text.chopped(1), meaning);
    }

    /// The words that models as text, and patches of them, have for the same fields.
    template <typename Record>
    void addJsonWords(const QVector<RecordKind> &kinds)
    {
        const Record record{};
        const auto addWord = [&](const JsonField &json, const auto &) {
            const QString key = QLatin1String(json.key);
            for (const RecordKind kind : kinds) {
                for (const RecordField *field : RecordFields::of(kind)) {
                    const QString rest =
                        field->id().startsWith(key) ? field->id().mid(key.size()) : QStringLiteral("?");
                    if (*json.also && (rest.isEmpty() || rest.startsWith('.')))
                        addFieldWord(*field, QLatin1String(json.also) + rest);
                }
            }
        };
        JsonFields<Record>::visit(addWord, record);
    }

    /// "Sound ID", and "sound" for short.
    void addArguments()
    {
        const int events = eventTypeNames().size();
        for (int event = 0; event < events; ++event) {
            for (int place = 0; place < ArgumentCount; ++place) {
                const EventArgument argument = eventArgument(event, place);
                if (!argument.label)
                    continue;
                const QString translated = QCoreApplication::translate("EventArguments", argument.label);
                QStringList texts{QString::fromUtf8(argument.label), translated};
                for (const char *word : questionWords) {
                    if (argument.question == QLatin1String(word))
                        texts << QString::fromUtf8(word) << translatedNoun(word);
                }
                for (const QString &text : qAsConst(texts))
                    addArgument(text, event, place, argument.question);
                propose(K::AnimAction, texts.last() == texts.first() ? texts.last().toLower() : texts.last());
            }
        }
    }

    void addArgument(const QString &text, int event, int place, QLatin1String question)
    {
        std::vector<WordMeaning> &meanings = word(text).meanings;
        auto found = std::find_if(meanings.begin(), meanings.end(),
                                  [](const WordMeaning &each) { return !each.arguments.isEmpty(); });
        if (found == meanings.end()) {
            WordMeaning meaning;
            meaning.kind = K::AnimAction;
            meaning.arguments = QByteArray(eventTypeNames().size(), char(-1));
            meaning.question = question;
            found = meanings.insert(meanings.end(), meaning);
        }
        found->arguments[event] = char(place);
    }

    QHash<QString, RecordWord> m_words;
    QVector<QPair<RecordKind, QString>> m_proposed;
};

const Dictionary &dictionary()
{
    static const Dictionary words; // after the translators were installed
    return words;
}

/// By number, from 0.
const RecordField *argumentField(int number)
{
    static const auto fields = [] {
        std::array<const RecordField *, ArgumentCount> found{};
        for (int i = 0; i < ArgumentCount; ++i)
            found[size_t(i)] = RecordFields::find(K::AnimAction, QStringLiteral("arg%1").arg(i + 1));
        return found;
    }();
    return fields[size_t(number)];
}
} // namespace

const RecordField *WordMeaning::fieldOf(const RecordValues &values, const RecordIndex &index) const
{
    if (arguments.isEmpty())
        return field;
    static const RecordField *event = RecordFields::find(K::AnimAction, QStringLiteral("event"));
    const FieldValue held = values.value(*event, index);
    const auto *type = std::get_if<double>(&held);
    const int place = type && *type >= 0 && *type < arguments.size() ? int(arguments[int(*type)]) : -1;
    return place >= 0 && place < ArgumentCount ? argumentField(place) : nullptr;
}

const std::vector<SearchedKind> &RecordWords::kinds()
{
    // clang-format off
    static const std::vector<SearchedKind> all{
        {K::SkinnedMesh,          K::SkinnedMesh, {},                                 QT_TRANSLATE_NOOP("Records", "mesh"),              QT_TRANSLATE_NOOP("Records", "meshes")},
        {K::Bone,                 K::SkinnedMesh, {},                                 QT_TRANSLATE_NOOP("Records", "bone"),              QT_TRANSLATE_NOOP("Records", "bones")},
        {K::ChildBone,            K::SkinnedMesh, {K::Bone},                          QT_TRANSLATE_NOOP("Records", "child"),             QT_TRANSLATE_NOOP("Records", "children")},
        {K::HotPoint,             K::SkinnedMesh, {},                                 QT_TRANSLATE_NOOP("Records", "hot point"),         QT_TRANSLATE_NOOP("Records", "hot points")},
        {K::SkinnedSurface,       K::SkinnedMesh, {},                                 QT_TRANSLATE_NOOP("Records", "surface"),           QT_TRANSLATE_NOOP("Records", "surfaces")},
        {K::SkinnedTriangleIndex, K::SkinnedMesh, {K::SkinnedSurface},                QT_TRANSLATE_NOOP("Records", "triangle index"),    QT_TRANSLATE_NOOP("Records", "triangle indexes")},
        {K::SkinnedVertex,        K::SkinnedMesh, {},                                 QT_TRANSLATE_NOOP("Records", "vertex"),            QT_TRANSLATE_NOOP("Records", "vertices")},
        {K::AnimBlock,            K::AnimFile,    {},                                 QT_TRANSLATE_NOOP("Records", "anim"),              QT_TRANSLATE_NOOP("Records", "anims")},
        {K::AnimBone,             K::AnimFile,    {K::AnimBlock},                     QT_TRANSLATE_NOOP("Records", "bone"),              QT_TRANSLATE_NOOP("Records", "bones")},
        {K::AnimFrame,            K::AnimFile,    {K::AnimBlock},                     QT_TRANSLATE_NOOP("Records", "frame"),             QT_TRANSLATE_NOOP("Records", "frames")},
        {K::TranslationTrack,     K::AnimFile,    {K::AnimBlock},                     QT_TRANSLATE_NOOP("Records", "translation track"), QT_TRANSLATE_NOOP("Records", "translation tracks")},
        {K::TranslationKey,       K::AnimFile,    {K::AnimBlock, K::TranslationTrack}, QT_TRANSLATE_NOOP("Records", "translation key"),  QT_TRANSLATE_NOOP("Records", "translation keys")},
        {K::RotationTrack,        K::AnimFile,    {K::AnimBlock},                     QT_TRANSLATE_NOOP("Records", "rotation track"),    QT_TRANSLATE_NOOP("Records", "rotation tracks")},
        {K::RotationKey,          K::AnimFile,    {K::AnimBlock, K::RotationTrack},   QT_TRANSLATE_NOOP("Records", "rotation key"),      QT_TRANSLATE_NOOP("Records", "rotation keys")},
        {K::AnimAction,           K::AnimFile,    {K::AnimBlock},                     QT_TRANSLATE_NOOP("Records", "action"),            QT_TRANSLATE_NOOP("Records", "actions")},
        {K::StaticMesh,           K::StaticMesh,  {},                                 QT_TRANSLATE_NOOP("Records", "mesh"),              QT_TRANSLATE_NOOP("Records", "meshes")},
        {K::StaticSurface,        K::StaticMesh,  {},                                 QT_TRANSLATE_NOOP("Records", "surface"),           QT_TRANSLATE_NOOP("Records", "surfaces")},
        {K::StaticTriangleIndex,  K::StaticMesh,  {K::StaticSurface},                 QT_TRANSLATE_NOOP("Records", "triangle index"),    QT_TRANSLATE_NOOP("Records", "triangle indexes")},
        {K::StaticVertex,         K::StaticMesh,  {},                                 QT_TRANSLATE_NOOP("Records", "vertex"),            QT_TRANSLATE_NOOP("Records", "vertices")},
    };
    // clang-format on
    return all;
}

const SearchedKind *RecordWords::kindOf(RecordKind kind)
{
    const std::vector<SearchedKind> &all = kinds();
    const auto found =
        std::find_if(all.begin(), all.end(), [kind](const SearchedKind &each) { return each.kind == kind; });
    return found == all.end() ? nullptr : &*found;
}

QString RecordWords::plain(const QString &words)
{
    QString plain;
    for (const QChar character : words) {
        if (character.isLetterOrNumber())
            plain += character.toLower();
    }
    return plain;
}

const RecordWord *RecordWords::find(const QString &words)
{
    return dictionary().find(plain(words));
}

QStringList RecordWords::proposals(KindSet roots)
{
    QStringList texts;
    for (const auto &[kind, text] : dictionary().proposed()) {
        if (roots.contains(kindOf(kind)->root))
            texts << text;
    }
    texts.removeDuplicates();
    texts.sort(Qt::CaseInsensitive);
    return texts;
}

QStringList RecordWords::fieldProposals(KindSet kinds)
{
    QStringList texts; // in the order of their pages
    for (const auto &[kind, text] : dictionary().proposed()) {
        if (kinds.contains(kind) && text != translatedNoun(kindOf(kind)->plural) && !texts.contains(text))
            texts << text;
    }
    return texts;
}
