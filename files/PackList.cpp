// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PackList.h"

#include "FileNames.h"
#include "FileSearch.h"
#include "Files.h"
#include "ZipArchive.h"
#include "ZipNames.h"
#include "ZipWriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {
struct PackTexts
{
    Q_DECLARE_TR_FUNCTIONS(Packing)
};

/// Names that never belong into a mod's archive, and what they are.
struct Stranger
{
    const char *names; ///< a regular expression, for names in any case
    const char *what;
};

const Stranger strangers[] = {
    {"^.*(~|\\.(bak|old|orig|tmp|temp|swp|part|rej))$", QT_TRANSLATE_NOOP("Packing", "a backup")},
    // A save that was killed leaves what it had written under the file's name and six letters more.
    {"^.*\\.(skinnedmesh|anim|staticmesh|kmat|png|jpe?g|tga|bmp|gif|json)\\.[a-z0-9]{6}$",
     QT_TRANSLATE_NOOP("Packing", "left by a save that was cut off")},
    {"^.*\\.names\\.json$", QT_TRANSLATE_NOOP("Packing", "names of bones and animations, for Korvane")},
    {"^.*\\.(blend[0-9]*|fbx|obj|mtl|dae|gltf|glb|3ds|max|ma|mb|c4d|lwo|ztl|zpr|spp|sbs|sbsar|psd|psb|xcf|"
     "kra|"
     "ora|pdn|svg|ai)$",
     QT_TRANSLATE_NOOP("Packing", "a source, for other programs")},
    {"^.*\\.(kpf|zip|7z|rar|gz|xz)$", QT_TRANSLATE_NOOP("Packing", "an archive")},
    {"^.*\\.(exe|dll|bat|cmd|ps1|sh|py|lnk|desktop)$", QT_TRANSLATE_NOOP("Packing", "a program")},
    {"^(thumbs\\.db|ehthumbs\\.db|desktop\\.ini)$", QT_TRANSLATE_NOOP("Packing", "of the desktop")},
};

/// The same by the last part of the path.
QString strangeness(const QString &name)
{
    static const std::vector<std::pair<QRegularExpression, const char *>> kinds = [] {
        std::vector<std::pair<QRegularExpression, const char *>> made;
        for (const Stranger &each : strangers)
            made.emplace_back(
                QRegularExpression(QLatin1String(each.names), QRegularExpression::CaseInsensitiveOption),
                each.what);
        return made;
    }();
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&name](const auto &kind) { return kind.first.match(name).hasMatch(); });
    return found == kinds.end() ? QString() : PackTexts::tr(found->second);
}

/// What the user leaves out.
class Patterns
{
public:
    explicit Patterns(const QStringList &patterns)
    {
        for (const QString &each : patterns) {
            const QString expression = QRegularExpression::wildcardToRegularExpression(each);
            (each.contains(QLatin1Char('/')) ? m_paths : m_names)
                .emplace_back(expression, QRegularExpression::CaseInsensitiveOption);
        }
    }

    bool have(const QString &path, const QString &name) const
    {
        return isAny(m_paths, path) || isAny(m_names, name);
    }

private:
    static bool isAny(const std::vector<QRegularExpression> &patterns, const QString &text)
    {
        return std::any_of(patterns.begin(), patterns.end(),
                           [&text](const QRegularExpression &each) { return each.match(text).hasMatch(); });
    }

    std::vector<QRegularExpression> m_paths;
    std::vector<QRegularExpression> m_names;
};

/// Why a file cannot be read back from an archive under its name; empty when it can.
QString problemOf(const PackedFile &file)
{
    const QByteArray bytes = file.name.toUtf8();
    const ZipName name = zipName(bytes, true);
    if (name.isRefused || name.path != file.name || QString::fromUtf8(bytes) != file.name)
        return PackTexts::tr("'%1' is no name that an archive can hold.").arg(file.name);
    const QString problem = FileNames::problem(file.name);
    if (!problem.isEmpty())
        return QStringLiteral("'%1': %2").arg(file.name, problem);
    if (file.bytes > ZipArchive::MostBytes)
        return PackTexts::tr("'%1' is larger than %2 MiB.")
            .arg(file.name, QString::number(ZipArchive::MostBytes / 1024 / 1024));
    return {};
}

/// Files that the game cannot tell apart: in the archive they would be one.
QStringList clashes(const std::vector<PackedFile> &files)
{
    QHash<QString, QString> seen; // by their names in one case
    QStringList told;
    for (const PackedFile &file : files) {
        QString &other = seen[file.name.toCaseFolded()];
        if (other.isEmpty())
            other = file.name;
        else
            told += PackTexts::tr("'%1' and '%2' differ only in upper and lower case.").arg(other, file.name);
    }
    return told;
}

template <typename File>
void sortByName(std::vector<File> &files)
{
    std::sort(files.begin(), files.end(),
              [](const File &a, const File &b) { return a.name.toUtf8() < b.name.toUtf8(); });
}
} // namespace

QString reasonToLeaveOut(const QString &name)
{
    return name.startsWith(QLatin1String("__MACOSX/"))
               ? PackTexts::tr("of the desktop")
               : strangeness(name.mid(name.lastIndexOf(QLatin1Char('/')) + 1));
}

PackList listForPacking(const QString &modFolder, const QString &gamePath, const QStringList &leftOut,
                        const std::function<bool()> &goesOn)
{
    static const QStringList packedAlready{QStringLiteral("png"),  QStringLiteral("jpg"),
                                           QStringLiteral("jpeg"), QStringLiteral("gif"),
                                           QStringLiteral("ogg"),  QStringLiteral("mp3")};
    const Patterns patterns(leftOut);
    const FileSearch game(gamePath, {});
    const QDir root(QDir::cleanPath(modFolder));
    PackList list;
    // An archive without what nobody saw would look whole.
    const auto lookForGaps = [&list](const QString &folder) {
        const QString reason = reasonOfGaps(folder);
        if (!reason.isEmpty())
            list.problems += QStringLiteral("'%1': %2").arg(QDir::toNativeSeparators(folder), reason);
    };
    lookForGaps(root.path());
    walkFolder(root.path(), [&](const FolderEntry &entry) {
        if (goesOn && !goesOn())
            return false;
        if (entry.isFolder) {
            lookForGaps(entry.path);
            return true;
        }
        const QString name = root.relativeFilePath(entry.path);
        const QFileInfo file(entry.path);
        QString reason = reasonToLeaveOut(name);
        if (reason.isEmpty() && patterns.have(name, file.fileName()))
            reason = PackTexts::tr("as asked for");
        if (!reason.isEmpty()) {
            list.leftOut.push_back({name, reason});
            return true;
        }
        list.files.push_back({entry.path, name, file.size(),
                              !gamePath.isEmpty() && !game.find(name).isEmpty(),
                              !packedAlready.contains(file.suffix().toLower())});
        return true;
    });
    sortByName(list.files);
    sortByName(list.leftOut);
    for (const PackedFile &file : list.files) {
        const QString problem = problemOf(file);
        if (!problem.isEmpty())
            list.problems += problem;
    }
    list.problems += clashes(list.files);
    if (int(list.files.size()) > ZipArchive::MostEntries)
        list.problems += PackTexts::tr("These are more than %1 files.").arg(ZipArchive::MostEntries);
    return list;
}

PackEnd writePack(const PackList &list, const QString &target, const std::function<bool(qint64 done)> &goesOn)
{
    ZipWriter archive(target);
    qint64 done = 0;
    for (const PackedFile &file : list.files) {
        QFile from(file.path);
        if (!from.open(QIODevice::ReadOnly))
            return {true, file.path, from.errorString()};
        if (archive.add(file.name, from, file.isDeflated, [&] { return goesOn(done + from.pos()); }))
            return {true, target, archive.reason()};
        done += from.size();
    }
    return archive.commit() ? PackEnd{true, target, archive.reason()} : PackEnd{};
}
