// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "ModelFile.h"
#include "Output.h"
#include "Records.h"
#include "ReferenceIds.h"
#include "Validation.h"
#include "Verbs.h"

#include <QJsonObject>

#include <climits>

namespace {
/// One thing that is wrong with a file.
struct Fault
{
    QString severity; ///< "error", "warning" or "note"
    QString rule;     ///< its name for programs
    QString text;
    RecordRef place;      ///< of no kind when the file could not be read
    qint64 notListed = 0; ///< in the line that closes a long list: how many more there are
};

/// What stays the same for all files that are checked.
struct CheckBasis
{
    ReferenceIds ids;
    Companions &companions;
    int listed = 0; ///< faults of one rule in one file
};

struct Name
{
    const char *name;
    int indexes;
};

/// By the kind's code.
constexpr Name kindNames[] = {
    {"", 0},
    {"skinnedMesh", 0},
    {"childBone", 2},
    {"childBones", 1},
    {"hotPoint", 1},
    {"hotPoints", 0},
    {"bone", 1},
    {"bones", 0},
    {"surface", 1},
    {"surfaces", 0},
    {"triangleIndex", 2},
    {"triangleIndexes", 1},
    {"vertex", 1},
    {"vertices", 0},
    {"animFile", 0},
    {"block", 1},
    {"blockBone", 2},
    {"blockBones", 1},
    {"frame", 2},
    {"frames", 1},
    {"translation", 3},
    {"translations", 1},
    {"translationTrack", 2},
    {"rotation", 3},
    {"rotations", 1},
    {"rotationTrack", 2},
    {"action", 2},
    {"actions", 1},
    {"staticMesh", 0},
    {"surface", 1},
    {"surfaces", 0},
    {"triangleIndex", 2},
    {"triangleIndexes", 1},
    {"vertex", 1},
    {"vertices", 0},
};
static_assert(sizeof kindNames / sizeof kindNames[0] == size_t(RecordKind::StaticVertices) + 1,
              "every kind has its name");

struct Validator
{
    const QString &file;
    const MaterialFolders &folders;
    const CheckBasis &basis;

    std::vector<Finding> operator()(const SkinnedMesh &mesh) const
    {
        return validate(mesh, folders, basis.ids, basis.listed);
    }
    std::vector<Finding> operator()(const MaterialTable &materials) const
    {
        return validate(materials, folders, basis.listed);
    }
    std::vector<Finding> operator()(const StaticMesh &mesh) const
    {
        return validate(mesh, folders, basis.listed);
    }
    std::vector<Finding> operator()(const AnimFile &anim) const
    {
        FileContent companion;
        const QString path = basis.companions.find(file).path;
        // One that cannot be read has faults of its own, and says nothing about the animation.
        const bool readable = !path.isEmpty() && readFile(path, companion).isEmpty();
        return validate(anim, readable ? std::get_if<SkinnedMesh>(&companion) : nullptr, basis.ids,
                        basis.listed);
    }
    template <typename Other>
    std::vector<Finding> operator()(const Other &) const
    {
        return {};
    }
};
/// Reads a file and gives what is wrong with it. An animation is compared with the mesh that belongs to it,
/// if there is one.
std::vector<Fault> faultsOf(const QString &file, const MaterialFolders &folders, const CheckBasis &basis)
{
    FileContent content;
    const QString error = readFile(file, content);
    if (!error.isEmpty())
        return {{QStringLiteral("error"), QStringLiteral("unreadable"), error, {}}};
    std::vector<Fault> faults;
    for (const Finding &finding : std::visit(Validator{file, folders, basis}, content)) {
        faults.push_back({severityId(severityOf(finding.rule)), ruleId(finding.rule), finding.text,
                          finding.place, finding.notListed});
    }
    return faults;
}

/// The kind of a record for programs, such as "bone"; empty for no kind.
QString recordName(RecordKind kind)
{
    return QLatin1String(kindNames[size_t(kind)].name);
}

/// How many indexes name a record of the kind.
int indexCount(RecordKind kind)
{
    return kindNames[size_t(kind)].indexes;
}

QJsonObject jsonFault(const Fault &fault)
{
    QJsonObject object{{QStringLiteral("severity"), fault.severity},
                       {QStringLiteral("rule"), fault.rule},
                       {QStringLiteral("text"), fault.text}};
    if (fault.place.kind != RecordKind::None) {
        QJsonArray index;
        for (int i = 0; i < indexCount(fault.place.kind); ++i)
            index.append(fault.place.index[size_t(i)]);
        object.insert(QStringLiteral("record"),
                      QJsonObject{{QStringLiteral("kind"), recordName(fault.place.kind)},
                                  {QStringLiteral("index"), index}});
    }
    if (fault.notListed > 0)
        object.insert(QStringLiteral("notListed"), fault.notListed);
    return object;
}

/// What was found, over all files.
struct Tally
{
    qint64 files = 0;
    qint64 errors = 0;
    qint64 warnings = 0;
    qint64 notes = 0;

    void add(const Fault &fault)
    {
        qint64 &count = fault.severity == QLatin1String("error")     ? errors
                        : fault.severity == QLatin1String("warning") ? warnings
                                                                     : notes;
        count += std::max<qint64>(fault.notListed, 1);
    }

    QString text() const
    {
        const auto number = [](qint64 count, const char *one) {
            return QStringLiteral("%1 %2%3").arg(QString::number(count), QLatin1String(one),
                                                 count == 1 ? QString() : QStringLiteral("s"));
        };
        return QStringLiteral("%1 checked: %2, %3, %4")
            .arg(number(files, "file"), number(errors, "error"), number(warnings, "warning"),
                 number(notes, "note"));
    }
};
} // namespace

int check(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("check"), QStringLiteral("PATH..."),
        QStringLiteral("Says what is wrong with skinned meshes, animations, static meshes and materials: "
                       "which cannot be read and why, and which records do not fit together. Of a "
                       "folder, all files in it and below it are checked."));
    line.flag(QStringLiteral("json"), QStringLiteral("Write an array of objects, one a file, for programs."));
    line.flag(
        QStringLiteral("all"),
        QStringLiteral("List all places of a fault, not only the first %1 in a file.").arg(ListedFindings));
    line.folderOptions(CommandLine::GameFolder::IfKnown);
    if (const auto end = line.parse(arguments, true))
        return *end;

    const bool json = line.isSet(QStringLiteral("json"));
    const MaterialFolders folders = chosenFolders(line);
    Companions companions(folders);
    const CheckBasis basis{ReferenceIds::load(), companions,
                           line.isSet(QStringLiteral("all")) ? INT_MAX : ListedFindings};
    if (folders.gamePath.isEmpty())
        Output::complain(
            QStringLiteral("Materials are not looked for, without a game folder; --game-path names one."));
    Tally tally;
    bool failed = false;
    QJsonArray array;
    for (const QString &path : line.operands()) {
        const QStringList files = filesBelow(path, isReadable);
        if (files.isEmpty()) {
            failed = true;
            Output::complain(QStringLiteral("%1: There is no file to check in this folder.").arg(path));
        }
        for (const QString &file : files) {
            ++tally.files;
            QJsonArray list;
            for (const Fault &fault : faultsOf(file, folders, basis)) {
                tally.add(fault);
                if (json)
                    list.append(jsonFault(fault));
                else
                    Output::line(
                        QStringLiteral("%1: %2: %3 [%4]").arg(file, fault.severity, fault.text, fault.rule));
            }
            if (json)
                array.append(QJsonObject{{QStringLiteral("file"), file}, {QStringLiteral("findings"), list}});
        }
    }
    if (json)
        Output::json(array);
    else
        Output::line(tally.text());
    return failed || tally.errors > 0 ? Failed : Fine;
}
