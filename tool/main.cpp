// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"
#include "Output.h"
#include "OwnFolders.h"
#include "Terminal.h"
#include "Verbs.h"

#include <QGuiApplication>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {
constexpr Verb verbs[] = {
    {"info", "say what is in files", info},
    {"check", "look for faults in files and folders", check},
    {"resave", "read files and write them back", resave},
    {"dump", "write a model as JSON text", dump},
    {"build", "make a model of such a text", build},
    {"set", "set fields of a model", set},
    {"animate", "change whole animations", animate},
    {"fit-boxes", "make boxes as small as their vertices let them be", fitBoxes},
    {"find", "list records that meet a condition", find},
    {"replace", "give records of many files other values", replace},
    {"runs", "list, undo or finish such replacements", runs},
    {"uses", "say what files name, and who names what", uses},
    {"diff", "say in what two models differ", diff},
    {"pack", "make the archive of a mod", pack},
    {"import", "turn a model of another program into game files", importModel},
    {"export", "turn a mesh into a glTF or OBJ file", exportModel},
    {"render", "draw a model into a picture", render, true},
};

const Verb *verbNamed(const QString &name)
{
    for (const Verb &verb : verbs) {
        if (name == QLatin1String(verb.name))
            return &verb;
    }
    return nullptr;
}

QString usage()
{
    QString text = QStringLiteral("Usage: korvane-tool VERB [OPTIONS] FILE...\n\n");
    for (const Verb &verb : verbs)
        text +=
            QStringLiteral("  %1  %2\n").arg(QLatin1String(verb.name), -9).arg(QLatin1String(verb.summary));
    return text + QStringLiteral("\n'korvane-tool VERB --help' tells more of a verb, --version the version.\n"
                                 "Exit status: 0 fine, 1 an error in a file or a failure, 2 wrong usage, "
                                 "3 no display to draw with; find, uses and diff have their own.");
}

int run(const QStringList &arguments)
{
    const QString first = arguments.value(1);
    if (first == QLatin1String("--help") || first == QLatin1String("-h") ||
        (first == QLatin1String("help") && arguments.size() == 2)) {
        Output::line(usage());
        return Fine;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        Output::line(QStringLiteral("korvane-tool " KORVANE_VERSION));
        return Fine;
    }
    if (first == QLatin1String("help")) {
        if (const Verb *verb = verbNamed(arguments.value(2)))
            return verb->run({QStringLiteral("--help")});
    }
    if (const Verb *verb = verbNamed(first))
        return verb->run(arguments.mid(2));
    Output::complain(first.isEmpty() ? QStringLiteral("A verb is missing.")
                                     : QStringLiteral("There is no verb '%1'.")
                                           .arg(first == QLatin1String("help") ? arguments.value(2) : first));
    Output::complain(QStringLiteral("'korvane-tool --help' lists the verbs."));
    return WrongUsage;
}

/// What the toolkit has complained of while it looked for a display.
QString displayProblem;
bool hasDisplay = false;

/// Without a display the toolkit would abort the program, after lines that help nobody.
void toolkitMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        Output::complain(QStringLiteral("render: The display cannot be used (%1). %2")
                             .arg(displayProblem, Terminal::advice()));
        Terminal::restore();
        std::_Exit(NoScreen);
    }
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    if (hasDisplay)
        Output::complain(text);
    else
        displayProblem = text.trimmed();
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const Verb *verb = argc > 1 ? verbNamed(QString::fromLocal8Bit(argv[1])) : nullptr;
    if (!verb || !verb->draws)
        return std::make_unique<QCoreApplication>(argc, argv);
    Terminal::prepareToDraw();
    qInstallMessageHandler(toolkitMessage);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    hasDisplay = true;
    return application;
}
} // namespace

int main(int argc, char *argv[])
{
    Terminal::prepare();
    // Those of the editor, whose settings are read.
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Korvane"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("korvane.local"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    OwnFolders::useForSettings();
    Log::setSink([](LogSeverity severity, const QString &text) {
        if (severity != LogSeverity::Info)
            Output::complain(QStringLiteral("%1: %2").arg(
                severity == LogSeverity::Error ? QStringLiteral("error") : QStringLiteral("warning"), text));
    });
    return run(QCoreApplication::arguments());
}
