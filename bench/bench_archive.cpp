// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "FilePictures.h"
#include "TestArchive.h"
#include "ZipArchive.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <random>

// The directory of an archive of 20,000 entries, and textures of 1024 by 1024 from it against the same files
// on the disk, all at the system's hand. A deflated picture without packing of its own has what only
// unpacking it takes in the floor.
namespace {
constexpr int Entries = 20000;
constexpr int Repetitions = 31;

QImage texture()
{
    QImage image(1024, 1024, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grain = int(random() % 24);
            image.setPixel(x, y, qRgb(x / 8 + grain, y / 8 + grain, (x ^ y) / 8 + grain));
        }
    }
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

void show(const QString &path)
{
    if (Files::readPicture(path).image.isNull())
        qFatal("%s is no picture", qPrintable(path));
}
} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    const QByteArray png = encoded(texture(), "PNG"), bmp = encoded(texture(), "BMP");
    TestArchive made;
    for (int i = 0; i < Entries; ++i)
        made.add(
            {"models/set" + QByteArray::number(i / 50) + "/Part " + QByteArray::number(i) + ".staticmesh",
             "bytes", false});
    for (const bool isDeflated : {false, true}) {
        const QByteArray place = isDeflated ? "deflated" : "stored";
        made.add({place + ".png", png, isDeflated});
        made.add({place + ".bmp", bmp, isDeflated});
    }
    const QString archive = folder.filePath(QStringLiteral("game.kpf"));
    const auto write = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    if (!made.write(archive) || !write("texture.png", png) || !write("texture.bmp", bmp))
        qFatal("no files to read");

    Bench::limit("archive_index_20000_entries", 0.150, Repetitions, [archive] {
        return Bench::processSeconds([&archive] {
            QString reason;
            const auto read = ZipArchive::open(archive, reason);
            if (!read || read->count() < Entries)
                qFatal("the archive was not read");
        });
    });
    const auto compare = [&](const char *name, const char *entry, const char *file,
                             const QByteArray &packed) {
        Bench::ratio(
            name, 1.3, Repetitions,
            [path = archive + QLatin1Char('/') + QLatin1String(entry)] {
                return Bench::processSeconds([&path] { show(path); });
            },
            [path = folder.filePath(QLatin1String(file)), packed] {
                return Bench::processSeconds([&path, &packed] {
                    show(path);
                    if (!packed.isEmpty() && qUncompress(packed).isEmpty())
                        qFatal("nothing was unpacked");
                });
            });
    };
    compare("archive_png_stored", "stored.png", "texture.png", {});
    compare("archive_png_deflated", "deflated.png", "texture.png", {});
    compare("archive_bmp_stored", "stored.bmp", "texture.bmp", {});
    compare("archive_bmp_deflated", "deflated.bmp", "texture.bmp", qCompress(bmp, 6));
    return Bench::run(argc, argv);
}
