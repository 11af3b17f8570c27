// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <filesystem>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What the command line takes for many files, by the time of all processors together: a check of a folder,
// and thumbnails of the models in it; for as many and for twice as many, less what one takes, which is mostly
// the start of the program. Then what a thumbnail takes among others, the start with it.
namespace {
constexpr double Budget = 2.2;
constexpr int Repetitions = 9;
constexpr int Checked = 800; // models, each with an animation of its name
constexpr int Drawn = 16;
constexpr double ThumbnailLimit = 60; // milliseconds

double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}

/// What a run of the tool takes of the processor, in seconds.
struct ToolTime
{
    double own;    ///< in the program
    double system; ///< for it, in the system: how files lie in its memory decides on that, too
};

ToolTime timeOf(const QStringList &arguments)
{
    std::vector<QByteArray> bytes{KORVANE_TOOL};
    for (const QString &argument : arguments)
        bytes.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    pointers.reserve(bytes.size() + 1);
    for (QByteArray &each : bytes)
        pointers.push_back(each.data());
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stdout))
            execv(pointers[0], pointers.data());
        _exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != 0)
        qFatal("'%s' has failed", qPrintable(arguments.join(QLatin1Char(' '))));
    return {secondsOf(used.ru_utime), secondsOf(used.ru_stime)};
}

/// A folder with so many models, laid out as a game's; gives its path. All are one file by many names.
QString folderOf(const QDir &home, int models)
{
    const QDir folder(home.filePath(QString::number(models)));
    const std::pair<QString, QString> kinds[] = {{QStringLiteral("models"), QStringLiteral("skinnedmesh")},
                                                 {QStringLiteral("anims"), QStringLiteral("anim")}};
    for (const auto &[place, suffix] : kinds) {
        const QString first = home.filePath(QStringLiteral("first.") + suffix);
        if (!QFile::exists(first) &&
            !QFile::copy(QStringLiteral(KORVANE_SAMPLES "/game/%1/tinker/tinker.%2").arg(place, suffix),
                         first))
            qFatal("there is no sample to copy");
        for (int i = 0; i < models; ++i) {
            const QString own = QStringLiteral("%1/character%2").arg(place, QString::number(i));
            folder.mkpath(own);
            std::filesystem::create_hard_link(
                first.toStdString(),
                folder.filePath(QStringLiteral("%1/walker%2.%3").arg(own, QString::number(i), suffix))
                    .toStdString());
        }
    }
    return folder.path();
}

const QStringList GameFolders{QStringLiteral("--game-path"), QStringLiteral(KORVANE_SAMPLES "/game"),
                              QStringLiteral("--mod-path"), QStringLiteral(KORVANE_SAMPLES "/mod")};

ToolTime check(const QString &folder)
{
    return timeOf(QStringList{QStringLiteral("check"), folder} + GameFolders);
}

ToolTime draw(const QString &folder)
{
    const QTemporaryDir pictures;
    return timeOf(QStringList{QStringLiteral("render"), QStringLiteral("--each"), QStringLiteral("--size"),
                              QStringLiteral("256"), QStringLiteral("-o"), pictures.path(),
                              folder + QStringLiteral("/models")} +
                  GameFolders);
}

void reportGrowth(const QDir &home, const char *name, int count, ToolTime (*work)(const QString &folder))
{
    const QString one = folderOf(home, 1);
    const QString once = folderOf(home, count);
    const QString twice = folderOf(home, 2 * count);
    Bench::addGrowthLine(
        name, Budget, Repetitions, [&] { return work(once).own - work(one).own; },
        [&] { return work(twice).own - work(one).own; });
}
} // namespace

int main()
{
    const QTemporaryDir checked;
    reportGrowth(checked.path(), "check", Checked, check);
    const QTemporaryDir drawn;
    reportGrowth(drawn.path(), "thumbnails", Drawn, draw);
    std::vector<double> thumbnails;
    for (int i = 0; i < Repetitions; ++i) {
        const ToolTime time = draw(drawn.filePath(QString::number(2 * Drawn)));
        thumbnails.push_back(1e3 / (2 * Drawn) * (time.own + time.system));
    }
    Bench::addLimitLine("thumbnail_in_a_batch", Bench::median(thumbnails), ThumbnailLimit, "ms");
    Bench::printReport();
    return 0;
}
