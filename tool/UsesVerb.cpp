// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "IndexCache.h"
#include "Output.h"
#include "RecordSearch.h"
#include "ReferenceReading.h"
#include "ReferenceTables.h"
#include "Verbs.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QThread>

#include <algorithm>

namespace {
/// As of other programs that search.
enum UsesCode : int { SomeUses = 0, NoUses = 1, UsesTrouble = 2 };

QString nameOf(const NamedThing &thing)
{
    const auto table = tableOf(thing.kind);
    return table ? ReferenceTables::shared().name(*table, thing.number) : QString();
}

/// "sound 1234 (Name)", "material materials/knight/skin".
QString titleOf(const NamedThing &thing)
{
    const QString name = nameOf(thing);
    const QString title = QStringLiteral("%1 %2").arg(namedKindId(thing.kind), thing.text());
    return name.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, name);
}

QStringList placesIn(const FileNaming &file, const NamedInFile &named)
{
    QStringList places;
    for (const RecordRef &place : file.placesOf(named))
        places += place.kind == RecordKind::None
                      ? QStringLiteral("material %1").arg(file.materials.value(place.index[0]))
                      : recordPath(place);
    return places;
}

/// Collects what is found, and writes it at the end or at once.
class UsesReport
{
public:
    explicit UsesReport(bool isJson)
        : m_isJson(isJson)
    {}

    bool isEmpty() const { return m_isEmpty; }
    void finish() const
    {
        if (m_isJson)
            Output::json(m_array);
    }

    void add(const FileNaming &file, const NamedInFile &named, const QString &via = {})
    {
        const QStringList places = placesIn(file, named);
        QJsonObject object = objectOf(named.thing);
        object[QStringLiteral("file")] = file.path;
        object[QStringLiteral("records")] = QJsonArray::fromStringList(places);
        object[QStringLiteral("count")] = named.count;
        if (!via.isEmpty())
            object[QStringLiteral("material")] = via;
        QString where = places.join(QStringLiteral(", "));
        if (named.count > places.size())
            where += QStringLiteral(" and %1 more").arg(named.count - places.size());
        put(QStringLiteral("%1: %2: %3").arg(file.path, where, titleOf(named.thing)), object);
    }

    void addCompanion(const QString &file, const QString &companion)
    {
        put(QStringLiteral("%1: goes with %2").arg(file, companion),
            {{QStringLiteral("file"), file}, {QStringLiteral("companion"), companion}});
    }

    void addUnused(const QString &file, const NamedThing &thing)
    {
        QJsonObject object = objectOf(thing);
        if (!file.isEmpty())
            object[QStringLiteral("file")] = file;
        put(file.isEmpty() ? titleOf(thing) : QStringLiteral("%1: %2").arg(file, titleOf(thing)), object);
    }

private:
    static QJsonObject objectOf(const NamedThing &thing)
    {
        QJsonObject object{{QStringLiteral("kind"), namedKindId(thing.kind)}};
        object[QStringLiteral("value")] =
            isNamedByPath(thing.kind) ? QJsonValue(thing.path) : QJsonValue(thing.number);
        const QString name = nameOf(thing);
        if (!name.isEmpty())
            object[QStringLiteral("name")] = name;
        return object;
    }

    void put(const QString &line, const QJsonObject &object)
    {
        m_isEmpty = false;
        if (m_isJson)
            m_array.append(object);
        else
            Output::line(line);
    }

    bool m_isJson;
    bool m_isEmpty = true;
    QJsonArray m_array;
};

ReferenceIndexPtr indexOf(const MaterialFolders &folders)
{
    const std::atomic_bool isCancelled{false};
    IndexProgress progress;
    return IndexCache::bringUpToDate(folders, nullptr, isCancelled, progress, QThread::idealThreadCount());
}

/// Says which files and folders could not be read. Returns true when there are some.
bool tellErrors(const ReferenceIndex &index)
{
    if (index.isCut())
        Output::complain(
            QStringLiteral("The folders hold more than a game and a mod can: the rest was not read."));
    for (const QString &gap : index.gaps())
        Output::complain(gap);
    for (const FileNamingPtr &file : index.unreadable())
        Output::complain(QStringLiteral("%1: %2").arg(file->path, file->error));
    return index.isCut() || !index.gaps().isEmpty() || !index.unreadable().empty();
}

void reportUses(const ReferenceIndex &index, const NamedThing &thing, UsesReport &report)
{
    for (const NamedUse &use : index.usesOf(thing))
        report.add(*use.file, use.named, use.via);
}

void reportUnused(const ReferenceIndex &index, NamedKind kind, UsesReport &report)
{
    if (const auto table = tableOf(kind)) {
        const QSet<int> named = index.numbersNamed(kind);
        QSet<int> told; // of several names of a number the first counts
        for (const ReferenceRow &row : ReferenceTables::shared().table(*table).rows) {
            if (row.id != QString::number(row.number) || named.contains(row.number) ||
                told.contains(row.number))
                continue;
            told.insert(row.number);
            report.addUnused({}, {kind, double(row.number)});
        }
        return;
    }
    // What the game's levels and scripts name, nobody here knows; the mod's own is another matter.
    const bool ofMod = !index.folders().outputDir.isEmpty();
    for (const auto &[file, path] :
         kind == NamedKind::Material ? index.unusedMaterials() : index.unusedTextures()) {
        if (file->isMod == ofMod)
            report.addUnused(file->path, {kind, 0.0, path});
    }
}

/// What a file names, and who names what it has. Returns true when it cannot be read.
bool reportFile(const ReferenceIndex &index, const QString &path, UsesReport &report)
{
    FileNamingPtr file = index.file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (!file) {
        FileNaming read;
        read.path = path;
        const auto type = indexedTypeOf(path);
        if (!type) {
            Output::complain(
                QStringLiteral("%1: This is neither a model nor a material file nor a picture.").arg(path));
            return true;
        }
        read.type = *type;
        readNaming(read);
        if (!read.error.isEmpty()) {
            Output::complain(QStringLiteral("%1: %2").arg(path, read.error));
            return true;
        }
        file = std::make_shared<const FileNaming>(std::move(read));
    }
    for (const NamedInFile &named : file->names)
        report.add(*file, named);
    if (file->type == IndexedType::SkinnedMesh || file->type == IndexedType::Anim) {
        const QString companion = Companions(index.folders()).find(file->path).path;
        if (!companion.isEmpty())
            report.addCompanion(file->path, companion);
    }
    for (int i = 0; i < file->materials.size() && !file->relative.isEmpty(); ++i)
        reportUses(index, {NamedKind::Material, 0.0, file->materialPath(i)}, report);
    if (file->type == IndexedType::Picture && !file->relative.isEmpty())
        reportUses(index, {NamedKind::Texture, 0.0, file->relative}, report);
    return false;
}

/// "materials" and "material".
std::optional<NamedKind> kindInPlural(const QString &word)
{
    const auto kind = namedKindOf(word);
    return kind || !word.endsWith(QLatin1Char('s')) ? kind : namedKindOf(word.chopped(1));
}
} // namespace

int uses(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("uses"), QStringLiteral("[FILE...]"),
        QStringLiteral(
            "Says what files name, and which files of game and mod name what they hold: materials, textures, "
            "and the numbers of animations, sounds, particles, actors, voices, impact types and damage. "
            "With --of, who names one such thing; with --unused, what nobody names. What was read once is "
            "kept, and only files that have changed are read again. Exit status: 0 something found, 1 "
            "nothing, 2 trouble."));
    line.option({QStringLiteral("of")}, QStringLiteral("kind:value"),
                QStringLiteral("List who names this, such as sound:1234, material:materials/knight/skin or "
                               "texture:textures/knight.png; of a texture also the models that have it by a "
                               "material. Can be given several times."));
    line.option(
        {QStringLiteral("unused")}, QStringLiteral("kind"),
        QStringLiteral("List the materials or textures of the mod, or without one of the game, that no model "
                       "or no material names; or the sounds, particles, actors, voices, impacts or "
                       "animations of the tables whose numbers no file names."));
    line.flag(QStringLiteral("json"), QStringLiteral("Write a JSON array with an object for each line."));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    line.setOperandsOptional();
    if (const auto end = line.parse(arguments, true))
        return *end;

    std::vector<NamedThing> things;
    for (const QString &text : line.values(QStringLiteral("of"))) {
        const auto thing = NamedThing::parse(text);
        if (!thing)
            return line.refuse(QStringLiteral("--of takes a kind and a value, such as sound:1234 or "
                                              "material:materials/knight/skin, not '%1'.")
                                   .arg(text));
        things.push_back(*thing);
    }
    std::vector<NamedKind> unused;
    for (const QString &word : line.values(QStringLiteral("unused"))) {
        const auto kind = kindInPlural(word);
        if (!kind || *kind == NamedKind::Damage)
            return line.refuse(QStringLiteral("--unused takes materials, textures, animations, sounds, "
                                              "particles, actors, voices or impacts, not '%1'.")
                                   .arg(word));
        unused.push_back(*kind);
    }
    const QStringList files = line.operands();
    if (files.isEmpty() && things.empty() && unused.empty())
        return line.refuse(QStringLiteral("A file, --of or --unused is wanted."));
    MaterialFolders folders = chosenFolders(line);
    if (!files.isEmpty())
        folders = foldersAround(files.first(), folders);
    if (folders.gamePath.isEmpty() && folders.outputDir.isEmpty() && files.isEmpty())
        return line.refuse(QStringLiteral("Neither a game folder nor a mod folder is known; --game-path and "
                                          "--mod-path name them."));

    const ReferenceIndexPtr index = indexOf(folders);
    bool isTrouble = tellErrors(*index);
    UsesReport report(line.isSet(QStringLiteral("json")));
    for (const QString &file : files)
        isTrouble |= reportFile(*index, file, report);
    for (const NamedThing &thing : things)
        reportUses(*index, thing, report);
    for (const NamedKind kind : unused)
        reportUnused(*index, kind, report);
    report.finish();
    return isTrouble ? UsesTrouble : report.isEmpty() ? NoUses : SomeUses;
}
