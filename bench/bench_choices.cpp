// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Lists to choose from: a key that is typed above a long one, and the materials of a folder.
#include "Bench.h"
#include "ChoiceList.h"
#include "MaterialCatalog.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace {
constexpr int Choices = 10000;
constexpr int Files = 2000;
constexpr int Rounds = 9;

void filterChoices()
{
    QVector<Choice> choices;
    for (int i = 0; i < Choices; ++i)
        choices.append(
            {i, QString::number(i), QStringLiteral("Unnamed sound %1 variant %2").arg(i).arg(i % 7)});
    ChoiceList list(choices, true, nullptr);
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        for (const char *typed : {"s", "so", "variant 3 sound", "99", "none has this", ""})
            times.push_back(Bench::seconds([&] { list.setFilter(QLatin1String(typed)); }) * 1e3);
    }
    Bench::addLimitLine("filter_10000_choices", *std::max_element(times.begin(), times.end()), 20, "ms");
}

/// Files of two materials each, some folders deep.
void makeMaterials(const QString &folder)
{
    for (int i = 0; i < Files; ++i) {
        const QString place = QStringLiteral("%1/materials/%2").arg(folder).arg(i % 50);
        QFile file(QStringLiteral("%1/mat_%2.kmat").arg(place).arg(i));
        if (!QDir().mkpath(place) || !file.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        for (const char *name : {"wall", "roof"})
            file.write(QByteArray("material ") + name +
                       " {\n\tcull back\n\tsampler \"diffuse\" 0 \"textures/x.png\" {\n\t}\n}\n");
    }
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    makeMaterials(folder.path());
    filterChoices();
    Bench::ratio(
        "list_2000_material_files", 3.0, Rounds,
        [&folder] {
            const std::atomic_bool cancelled{false};
            if (listMaterials(folder.path(), {}, cancelled).size() != 2 * Files)
                qFatal("materials are missing");
        },
        [&folder] {
            qint64 bytes = 0;
            for (QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
                QFile file(it.next());
                if (file.open(QIODevice::ReadOnly))
                    bytes += file.readAll().size();
            }
            benchmark::DoNotOptimize(bytes);
        });
    return Bench::run(argc, argv);
}
