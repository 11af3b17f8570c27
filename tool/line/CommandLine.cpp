// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "ExitCode.h"
#include "Files.h"
#include "Output.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace {
QString folderAround(const QString &file)
{
    QString folder = QFileInfo(file).absolutePath();
    while (!Files::isFolder(QDir(folder).filePath(QStringLiteral("materials")))) {
        const QString above = QFileInfo(folder).path();
        if (above == folder)
            return {};
        folder = above;
    }
    return folder;
}
} // namespace

CommandLine::CommandLine(const QString &verb, const QString &operands, const QString &description)
    : m_verb(verb)
    , m_operands(operands)
{
    m_parser.setApplicationDescription(description);
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
}

void CommandLine::flag(const QString &name, const QString &description)
{
    m_parser.addOption({name, description});
}

void CommandLine::option(const QStringList &names, const QString &valueName, const QString &description,
                         const QString &defaultValue)
{
    m_parser.addOption({names, description, valueName, defaultValue});
}

void CommandLine::folderOptions(GameFolder otherwise)
{
    option({QStringLiteral("game-path")}, QStringLiteral("folder"),
           otherwise == GameFolder::AroundFile
               ? QStringLiteral("Game folder, or the game's archive, to look for materials and textures in; "
                                "by default the one of the "
                                "editor's options, else the one that the file lies in.")
               : QStringLiteral("Game folder, or the game's archive, to look for materials and textures in; "
                                "by default the one of the "
                                "editor's options. Without one, they are not looked for."));
    option({QStringLiteral("mod-path")}, QStringLiteral("folder"),
           QStringLiteral("Mod folder to look in second; by default the one of the editor's options."));
}

std::optional<int> CommandLine::parse(const QStringList &arguments, bool many)
{
    // The parser takes the first for the program.
    if (!m_parser.parse(QStringList(QStringLiteral("korvane-tool")) + arguments))
        return refuse(m_parser.errorText());
    if (isSet(QStringLiteral("help"))) {
        Output::line(helpText());
        return Fine;
    }
    if (operands().isEmpty() && !m_areOperandsOptional)
        return refuse(QStringLiteral("%1 is missing.").arg(m_operands));
    if (operands().size() > 1 && !many)
        return refuse(QStringLiteral("There is one %1 too many: '%2'.").arg(m_operands, operands().at(1)));
    return {};
}

std::optional<int> CommandLine::integer(const QString &name, int least, int most) const
{
    return integer(name, value(name), least, most);
}

std::optional<int> CommandLine::integer(const QString &name, const QString &text, int least, int most) const
{
    bool isNumber = false;
    const int given = text.toInt(&isNumber);
    if (isNumber && given >= least && given <= most)
        return given;
    refuse(QStringLiteral("--%1 takes a whole number from %2 to %3, not '%4'.")
               .arg(name, QString::number(least), QString::number(most), text));
    return {};
}

std::optional<float> CommandLine::number(const QString &name, float least, float most) const
{
    bool isNumber = false;
    const float given = value(name).toFloat(&isNumber);
    if (isNumber && std::isfinite(given) && given >= least && given <= most)
        return given;
    refuse(QStringLiteral("--%1 takes a number from %2 to %3, not '%4'.")
               .arg(name, QString::number(double(least)), QString::number(double(most)), value(name)));
    return {};
}

int CommandLine::refuse(const QString &reason) const
{
    Output::complain(QStringLiteral("%1: %2").arg(m_verb, reason));
    Output::complain(QStringLiteral("'korvane-tool %1 --help' tells how it is used.").arg(m_verb));
    return WrongUsage;
}

int CommandLine::refuseFolder(const QString &path) const
{
    const bool isArchive =
        QFileInfo(Files::heldBy(path)).isFile() && Files::isArchiveName(Files::heldBy(path));
    return refuse(isArchive ? QStringLiteral("'%1' is no folder. Nothing is written into archives.").arg(path)
                            : QStringLiteral("There is no folder '%1'.").arg(path));
}

QString CommandLine::helpText() const
{
    // The parser would name neither verb nor operands where they stand.
    const QString text = m_parser.helpText();
    return QStringLiteral("Usage: korvane-tool %1 [OPTIONS] %2").arg(m_verb, m_operands) +
           text.mid(text.indexOf(QLatin1Char('\n'))).trimmed().prepend(QLatin1Char('\n'));
}

MaterialFolders chosenFolders(const CommandLine &line)
{
    const auto folder = [&line](const QString &option, const SettingKey<QString> &key) {
        return line.isSet(option) ? line.value(option) : key.value();
    };
    return {folder(QStringLiteral("game-path"), Settings::GamePath),
            folder(QStringLiteral("mod-path"), Settings::OutputDir)};
}

MaterialFolders foldersAround(const QString &file, MaterialFolders chosen)
{
    if (chosen.gamePath.isEmpty())
        chosen.gamePath = folderAround(file);
    return chosen;
}
