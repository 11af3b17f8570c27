// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Validation.h"

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

/// The options and operands of one verb.
class CommandLine
{
public:
    /// `operands` is how they stand in the help, such as "FILE...".
    CommandLine(const QString &verb, const QString &operands, const QString &description);

    void flag(const QString &name, const QString &description);
    /// `valueName` is what the value is called in the help.
    void option(const QStringList &names, const QString &valueName, const QString &description,
                const QString &defaultValue = {});
    /// What stands in for a game folder that nobody has named: the one that the file lies in, or none.
    enum class GameFolder { AroundFile, IfKnown };
    /// --game-path and --mod-path, see chosenFolders().
    void folderOptions(GameFolder otherwise);

    /// Lets parse() take a line that names no file.
    void setOperandsOptional() { m_areOperandsOptional = true; }

    /// Reads what stands behind the verb. Gives the exit code when the run is over with it: the help was
    /// asked for, or the usage is wrong and standard error says why. At least one operand has to stand there,
    /// unless setOperandsOptional() was called; more only where `many` is set.
    [[nodiscard]] std::optional<int> parse(const QStringList &arguments, bool many);

    bool isSet(const QString &name) const { return m_parser.isSet(name); }
    QString value(const QString &name) const { return m_parser.value(name); }
    QStringList values(const QString &name) const { return m_parser.values(name); }
    QStringList operands() const { return m_parser.positionalArguments(); }

    /// A number within bounds; none when the value is not one, which standard error then says.
    std::optional<int> integer(const QString &name, int least, int most) const;
    std::optional<int> integer(const QString &name, const QString &text, int least, int most) const;
    std::optional<float> number(const QString &name, float least, float most) const;

    /// Says what is wrong with the usage; gives the exit code.
    int refuse(const QString &reason) const;
    /// The same of a folder to write into, which is none.
    int refuseFolder(const QString &path) const;

private:
    QString helpText() const;

    QString m_verb;
    QString m_operands;
    bool m_areOperandsOptional = false;
    QCommandLineParser m_parser;
};

/// The folders of --game-path and --mod-path, else of the editor's settings.
MaterialFolders chosenFolders(const CommandLine &line);

/// Those that were chosen; a game folder that nobody named is the one that `file` lies in: the nearest folder
/// above it that has a folder "materials".
MaterialFolders foldersAround(const QString &file, MaterialFolders chosen);
