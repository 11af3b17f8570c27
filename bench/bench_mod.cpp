// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"

#include "ModCheck.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// What the check of a mod of 2,000 files takes, all rules, beside reading these files.
namespace {
constexpr int Models = 1000; // each with an animation
constexpr double Budget = 2.0;
constexpr int Repetitions = 9;

const QString Game = QStringLiteral(KORVANE_SAMPLES "/game");

/// Each file is one of its own, as a mod's are.
void makeMod(const QDir &mod)
{
    const std::pair<QString, QString> kinds[] = {{QStringLiteral("models"), QStringLiteral("skinnedmesh")},
                                                 {QStringLiteral("anims"), QStringLiteral("anim")}};
    for (const auto &[place, suffix] : kinds) {
        for (int i = 0; i < Models; ++i) {
            const QString folder = QStringLiteral("%1/character%2").arg(place, QString::number(i));
            const QString file = QStringLiteral("%1/walker%2.%3").arg(folder, QString::number(i), suffix);
            if (!mod.mkpath(folder) ||
                !QFile::copy(QStringLiteral("%1/%2/tinker/tinker.%3").arg(Game, place, suffix),
                             mod.filePath(file)))
                qFatal("there is no sample to copy");
        }
    }
}
} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    makeMod(QDir(folder.path()));
    const MaterialFolders folders{Game, folder.path()};
    const auto check = [&] {
        if (ModCheck(folders, ReferenceIds::load()).run().files != 2 * Models)
            qFatal("files are missing");
    };
    const auto read = [&] {
        FileContent content;
        const ModFiles mod(ModFiles::Whose::Mod, folder.path());
        for (const ModFile &file : mod.files()) {
            if (!readFile(file.path, content).isEmpty())
                qFatal("a file cannot be read");
        }
    };
    Bench::ratio("check_mod_2000_files", Budget, Repetitions, check, read);
    return Bench::run(argc, argv);
}
