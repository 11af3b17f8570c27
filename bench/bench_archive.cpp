// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "FilePictures.h"
#include "TestArchive.h"
#include "ZipArchive.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <random>
#include <zlib.h>

// The directory of an archive of 20,000 entries, and textures of 1024 by 1024 from it against the same files
// on the disk, all at the system's hand, by the time of the processor. Of a picture that is not packed
// itself, what sees to it that nothing is damaged, or unpacks it, takes longer than to decode it: the floor
// has the checksum, or the unpacking, of the same bytes by the library below.
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
    const auto compare = [&](const char *name, double budget, const char *entry, const char *file,
                             const std::function<void()> &inevitable) {
        Bench::ratio(
            name, budget, Repetitions,
            [path = archive + QLatin1Char('/') + QLatin1String(entry)] {
                return Bench::processSeconds([&path] { show(path); });
            },
            [path = folder.filePath(QLatin1String(file)), inevitable] {
                return Bench::processSeconds([&path, &inevitable] {
                    show(path);
                    inevitable();
                });
            });
    };
    const auto sum = [&bmp] {
        benchmark::DoNotOptimize(
            crc32(0, reinterpret_cast<const Bytef *>(bmp.constData()), uInt(bmp.size())));
    };
    const auto unpack = [packed = qCompress(bmp, 6)] {
        if (qUncompress(packed).isEmpty())
            qFatal("nothing was unpacked");
    };
    compare("archive_png_stored", 1.3, "stored.png", "texture.png", [] {});
    compare("archive_png_deflated", 1.3, "deflated.png", "texture.png", [] {});
    // One copy more than from the disk, of what is hardly more than copied.
    compare("archive_bmp_stored", 1.3, "stored.bmp", "texture.bmp", sum);
    compare("archive_bmp_deflated", 1.3, "deflated.bmp", "texture.bmp", unpack);
    return Bench::run(argc, argv);
}
