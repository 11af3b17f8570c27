// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "ExitCode.h"
#include "Files.h"
#include "ModCheck.h"
#include "ModelFile.h"
#include "Output.h"
#include "PackedCheck.h"
#include "SarifLog.h"
#include "Verbs.h"

#include <QDir>
#include <QJsonObject>

#include <algorithm>
#include <climits>
#include <map>

namespace {
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

/// What was found in one file, which may be silenced.
struct CheckedFile
{
    QString path;
    std::vector<ModFinding> findings;
};

QJsonObject jsonFinding(const ModFinding &finding)
{
    QJsonObject object{{QStringLiteral("severity"), severityId(finding.rule.severity)},
                       {QStringLiteral("rule"), finding.rule.id},
                       {QStringLiteral("text"), finding.text}};
    if (finding.place.kind != RecordKind::None) {
        QJsonArray index;
        for (int i = 0; i < indexCount(finding.place.kind); ++i)
            index.append(finding.place.index[size_t(i)]);
        object.insert(QStringLiteral("record"),
                      QJsonObject{{QStringLiteral("kind"), recordName(finding.place.kind)},
                                  {QStringLiteral("index"), index}});
    }
    if (finding.notListed > 0)
        object.insert(QStringLiteral("notListed"), finding.notListed);
    if (finding.isSilenced)
        object.insert(QStringLiteral("silenced"), finding.why);
    return object;
}

QString textOf(const QString &path, const ModFinding &finding)
{
    const QString silence = !finding.isSilenced     ? QString()
                            : finding.why.isEmpty() ? QStringLiteral(" (silenced)")
                                                    : QStringLiteral(" (silenced: %1)").arg(finding.why);
    return QStringLiteral("%1: %2: %3 [%4]%5")
        .arg(path, severityId(finding.rule.severity), finding.text, finding.rule.id, silence);
}

/// What was found, over all files.
struct Tally
{
    qint64 files = 0;
    qint64 errors = 0;
    qint64 warnings = 0;
    qint64 notes = 0;
    qint64 silenced = 0;

    void add(const ModFinding &finding)
    {
        qint64 &count = finding.isSilenced                           ? silenced
                        : finding.rule.severity == Severity::Error   ? errors
                        : finding.rule.severity == Severity::Warning ? warnings
                                                                     : notes;
        count += std::max<qint64>(finding.notListed, 1);
    }

    QString text() const
    {
        const auto number = [](qint64 count, const char *one) {
            return QStringLiteral("%1 %2%3").arg(QString::number(count), QLatin1String(one),
                                                 count == 1 ? QString() : QStringLiteral("s"));
        };
        const QString found = QStringLiteral("%1 checked: %2, %3, %4")
                                  .arg(number(files, "file"), number(errors, "error"),
                                       number(warnings, "warning"), number(notes, "note"));
        return silenced == 0 ? found : found + QStringLiteral(", %1 silenced").arg(silenced);
    }
};

/// Says what was found, in the way that was asked for.
class CheckOutput
{
public:
    CheckOutput(const QString &format, bool listsSilenced)
        : m_format(format)
        , m_listsSilenced(listsSilenced)
    {}

    void add(const CheckedFile &file)
    {
        QJsonArray list;
        for (const ModFinding &finding : file.findings) {
            m_tally.add(finding);
            if (finding.isSilenced && !m_listsSilenced)
                continue;
            if (m_format == QLatin1String("json"))
                list.append(jsonFinding(finding));
            else if (m_format == QLatin1String("sarif"))
                m_sarif.add(file.path, finding, recordText(finding.place));
            else
                Output::line(textOf(file.path, finding));
        }
        if (m_format == QLatin1String("json"))
            m_array.append(
                QJsonObject{{QStringLiteral("file"), file.path}, {QStringLiteral("findings"), list}});
    }
    void setFiles(qint64 number) { m_tally.files = number; }

    /// Whether there were errors.
    [[nodiscard]] bool finish()
    {
        if (m_format == QLatin1String("json"))
            Output::json(m_array);
        else if (m_format == QLatin1String("sarif"))
            return Output::bytes(m_sarif.text()) || m_tally.errors > 0;
        else
            Output::line(m_tally.text());
        return m_tally.errors > 0;
    }

private:
    /// "block 3 action 1", as other verbs name records.
    static QString recordText(const RecordRef &place)
    {
        QStringList words;
        for (int i = 0; i < indexCount(place.kind); ++i)
            words << QString::number(place.index[size_t(i)]);
        words.prepend(recordName(place.kind));
        return words.join(QLatin1Char(' ')).trimmed();
    }

    QString m_format;
    bool m_listsSilenced;
    Tally m_tally;
    QJsonArray m_array;
    SarifLog m_sarif;
};

/// Checks files one by one. Returns whether an operand named none.
bool checkFiles(const QStringList &operands, const MaterialFolders &folders, int listed, CheckOutput &output)
{
    FileCheck check(folders, ReferenceIds::load(), listed);
    bool failed = false;
    qint64 count = 0;
    for (const QString &path : operands) {
        const QStringList files = filesBelow(path, isReadable);
        if (files.isEmpty()) {
            failed = true;
            Output::complain(QStringLiteral("%1: There is no file to check in this folder.").arg(path));
        }
        for (const QString &file : files) {
            CheckedFile checked{file, {}};
            for (const FileFinding &finding : check.check(file))
                checked.findings.push_back({finding, file});
            output.add(checked);
            ++count;
        }
    }
    output.setFiles(count);
    return failed;
}

/// Of files without findings only those are told that were read.
void tellReport(const ModReport &report, const QString &mod, CheckOutput &output)
{
    output.setFiles(report.files);
    std::map<QString, CheckedFile> files;
    for (const QString &path : report.checked)
        files[path].path = path;
    for (const ModFinding &finding : report.findings) {
        CheckedFile &file = files[QDir(mod).filePath(finding.name)];
        file.path = QDir(mod).filePath(finding.name);
        file.findings.push_back(finding);
    }
    for (const auto &[path, file] : files)
        output.add(file);
}

/// Checks a mod as a whole.
bool checkMod(const QString &mod, const MaterialFolders &folders, int listed, CheckOutput &output)
{
    const ModReport report = ModCheck({folders.gamePath, mod}, ReferenceIds::load(), listed).run();
    tellReport(report, mod, output);
    if (report.files == 0)
        Output::complain(QStringLiteral("%1: There is no file to check in this folder.").arg(mod));
    return report.files == 0;
}
} // namespace

bool findsErrors(const MaterialFolders &folders, const QSet<QString> &names,
                 const std::function<bool()> &goesOn)
{
    ModCheck check(folders, ReferenceIds::load(), ListedFindings,
                   [&goesOn](qint64, qint64) { return goesOn(); });
    ModReport report = check.run();
    const auto isLeftOut = [&names](const ModFinding &finding) { return !names.contains(finding.name); };
    report.findings.erase(std::remove_if(report.findings.begin(), report.findings.end(), isLeftOut),
                          report.findings.end());
    report.files = names.size();
    CheckOutput output(QStringLiteral("text"), true);
    tellReport(report, folders.outputDir, output);
    return output.finish();
}

int check(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("check"), QStringLiteral("PATH..."),
        QStringLiteral("Says what is wrong with skinned meshes, animations, static meshes and materials: "
                       "which cannot be read and why, and which records do not fit together. Of a "
                       "folder, all files in it and below it are checked."));
    line.flag(
        QStringLiteral("mod"),
        QStringLiteral("PATH is a mod's folder or archive: check it as a whole, with the rules that take "
                       "several files, textures, and what %1 in it silences.")
            .arg(CheckSettings::FileName));
    line.flag(QStringLiteral("silenced"),
              QStringLiteral("With --mod: list what is silenced, too, with the reason."));
    line.option({QStringLiteral("format")}, QStringLiteral("FORMAT"),
                QStringLiteral("Write text, json or sarif (SARIF 2.1.0, for build servers)."),
                QStringLiteral("text"));
    line.flag(QStringLiteral("json"), QStringLiteral("The same as --format json: an array of objects, one a "
                                                     "file, for programs."));
    line.flag(
        QStringLiteral("all"),
        QStringLiteral("List all places of a fault, not only the first %1 in a file.").arg(ListedFindings));
    line.folderOptions(CommandLine::GameFolder::IfKnown);
    if (const auto end = line.parse(arguments, true))
        return *end;
    const bool isMod = line.isSet(QStringLiteral("mod"));
    const QString format =
        line.isSet(QStringLiteral("json")) ? QStringLiteral("json") : line.value(QStringLiteral("format"));
    if (!QStringList{QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")}.contains(
            format))
        return line.refuse(QStringLiteral("--format takes text, json or sarif, not '%1'.").arg(format));
    if (line.isSet(QStringLiteral("json")) && line.isSet(QStringLiteral("format")) &&
        line.value(QStringLiteral("format")) != format)
        return line.refuse(QStringLiteral("--json and --format name two formats."));
    if (isMod && (line.operands().size() != 1 || line.isSet(QStringLiteral("mod-path"))))
        return line.refuse(QStringLiteral("--mod takes one folder, the mod's, and no --mod-path."));
    if (!isMod && line.isSet(QStringLiteral("silenced")))
        return line.refuse(QStringLiteral("--silenced goes with --mod."));

    const MaterialFolders folders = chosenFolders(line);
    const int listed = line.isSet(QStringLiteral("all")) ? INT_MAX : ListedFindings;
    if (folders.gamePath.isEmpty())
        Output::complain(
            QStringLiteral("Materials are not looked for, without a game folder; --game-path names one."));
    const QString mod = line.operands().first();
    if (isMod && !Files::isFolder(mod)) {
        const QString problem = Files::archiveProblem(Files::archiveOf(mod));
        Output::complain(QStringLiteral("%1: %2").arg(
            mod, problem.isEmpty() ? QStringLiteral("This is neither a folder nor an archive.") : problem));
        return Failed;
    }
    CheckOutput output(format, line.isSet(QStringLiteral("silenced")));
    const bool failed =
        isMod ? checkMod(mod, folders, listed, output) : checkFiles(line.operands(), folders, listed, output);
    return output.finish() || failed ? Failed : Fine;
}
