// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Journal.h"
#include "Monkey.h"
#include "MutantRun.h"
#include "Playground.h"
#include "WriteGuard.h"

#include <cstdio>
#include <memory>

namespace {
Journal *openJournal = nullptr;

/// What Qt complains about stands in the journal, at the step that it is about.
void noteMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (openJournal && type != QtDebugMsg && type != QtInfoMsg)
        openJournal->note(QStringLiteral("says: ") + text);
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// The value of a numeric option, 0 without it; ends the program when it is none.
quint64 number(const QCommandLineParser &options, const QString &name)
{
    bool ok = true;
    const QString text = options.value(name);
    const quint64 value = text.isEmpty() ? 0 : text.toULongLong(&ok);
    if (!ok)
        qFatal("monkey: --%s takes a number, not '%s'", qPrintable(name), qPrintable(text));
    return value;
}
void runMonkey(Playground &playground, Journal &journal, quint64 seed, const Monkey::Limits &limits)
{
    QElapsedTimer clock;
    clock.start();
    Monkey monkey(playground, journal, seed, limits);
    for (const char *scheme : {"http", "https", "file"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &monkey, "countLink");
    monkey.run();
    std::printf("monkey: clean; seed %llu, %d steps in %lld s, %d links, %d writes elsewhere refused\n",
                static_cast<unsigned long long>(seed), monkey.steps(),
                static_cast<long long>(clock.elapsed() / 1000), monkey.linksOpened(), WriteGuard::refusals());
}

void runMutants(Playground &playground, Journal &journal, quint64 seed, int files, int seconds)
{
    QElapsedTimer clock;
    clock.start();
    MutantRun run(playground, journal, seed);
    run.run(files, seconds);
    std::printf("mutants: clean; seed %llu, %d files in %lld s, of which %d could be read\n",
                static_cast<unsigned long long>(seed), run.files(),
                static_cast<long long>(clock.elapsed() / 1000), run.opened());
}
} // namespace

int main(int argc, char *argv[])
{
    // Before the folders of the process change.
    const QString called = QDir::currentPath();
    auto playground = std::make_unique<Playground>();

    if (qEnvironmentVariableIsEmpty("KORVANE_IMPORT_WORKER"))
        qputenv("KORVANE_IMPORT_WORKER", KORVANE_IMPORT_WORKER);

    // As the program itself starts; the order in a hash is then the same in every run.
    qSetGlobalQHashSeed(0);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Korvane"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral(
        "Uses the editor at random: clicks, keys, files, undo, tabs, sizes, dialogs.\n\n"
        "A seed gives the same list of steps again, as far as the program is in the same state before each.\n"
        "Not replayed is what depends on time: how far an animation has played, camera flight, when a file\n"
        "that changed, an import or a server query is told of, and the times that names of kept work hold.\n"
        "With --seconds the number of steps depends on the machine; replay with --steps."));
    options.addHelpOption();
    options.addOptions({
        {"seed", "Number to begin with (default: another each time).", "N"},
        {"steps", "End after this many steps.", "K"},
        {"seconds", "End after this time (default: 60, without --steps).", "S"},
        {"mutants",
         "Open this many files with fields at their borders, instead of using the window at random.", "N"},
        {"journal", "Where the steps are written down (default: monkey.log).", "FILE", "monkey.log"},
    });
    options.process(application);
    const quint64 seed = options.isSet("seed") ? number(options, "seed") : quint64(std::random_device()());
    Monkey::Limits limits{int(number(options, "steps")), int(number(options, "seconds"))};
    if (limits.steps <= 0 && limits.seconds <= 0)
        limits.seconds = 60;
    const QString file = QDir(called).absoluteFilePath(options.value(QStringLiteral("journal")));

    std::printf("monkey: seed %llu, journal %s\n", static_cast<unsigned long long>(seed), qPrintable(file));
    std::fflush(stdout);
    Journal steps(file, seed);
    openJournal = &steps;
    qInstallMessageHandler(noteMessage);
    WriteGuard::confineTo(playground->root());

    if (options.isSet("mutants"))
        runMutants(*playground, steps, seed, int(number(options, "mutants")),
                   int(number(options, "seconds")));
    else
        runMonkey(*playground, steps, seed, limits);
    qInstallMessageHandler(nullptr);
    openJournal = nullptr;
    return 0;
}
