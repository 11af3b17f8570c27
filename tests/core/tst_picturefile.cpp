// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureFile.h"
#include "TestSupport.h"

#include <QBuffer>

/// Pictures that the toolkit reads, and .tga files of every kind.
class tst_picturefile : public QObject
{
    Q_OBJECT

private slots:
    void targa_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("texels"); ///< by row, from the top left; empty where it is no picture
        const auto row = [](const char *name, const QByteArray &file, const char *texels) {
            QTest::newRow(name) << file << QString::fromLatin1(texels);
        };
        // Two by two, blue before green before red, the lower row first.
        const QByteArray colors = bytes("0000ff 00ff00 ff0000 102030");
        const QByteArray clear = bytes("0000ff00 00ff0000 ff000000 10203000");
        const char *const seen = "ff0000ff ff302010 ffff0000 ff00ff00";
        row("true colors", targa(2, 24, 0, colors), seen);
        row("from the top", targa(2, 24, 0x20, colors), "ffff0000 ff00ff00 ff0000ff ff302010");
        row("from the right", targa(2, 24, 0x10, colors), "ff302010 ff0000ff ff00ff00 ffff0000");
        row("with alpha", targa(2, 32, 8, bytes("0000ff80 00ff00ff ff000000 102030ff")),
            "000000ff ff302010 80ff0000 ff00ff00");
        row("with nothing for alpha", targa(2, 32, 0, clear), seen);
        row("15 bits", targa(2, 16, 0x20, bytes("007c e003 1f00 0000")),
            "ffff0000 ff00ff00 ff0000ff ff000000");
        row("packed", targa(10, 24, 0x20, bytes("82 0000ff 00 102030")),
            "ffff0000 ffff0000 ffff0000 ff302010");
        row("grays", targa(3, 8, 0x20, bytes("00 80 ff 40")), "ff000000 ff808080 ffffffff ff404040");
        row("packed grays", targa(11, 8, 0x20, bytes("82 80 00 40")), "ff808080 ff808080 ff808080 ff404040");
        const QByteArray palette = bytes("0000ff 00ff00");
        row("a palette", targa(1, 8, 0x20, palette + bytes("00 01 01 00"), 2),
            "ffff0000 ff00ff00 ff00ff00 ffff0000");
        row("a packed palette", targa(9, 8, 0x20, palette + bytes("82 01 00 00"), 2),
            "ff00ff00 ff00ff00 ff00ff00 ffff0000");
        row("a palette that ends early", targa(1, 8, 0x20, palette + bytes("00 09 01 00"), 2),
            "ffff0000 ffff0000 ff00ff00 ffff0000");
        row("packed, and ends early", targa(10, 24, 0x20, bytes("00 0000ff")),
            "ffff0000 ff000000 ff000000 ff000000");

        row("ends early", targa(2, 24, 0, colors.left(11)), "");
        row("a header alone", targa(2, 24, 0, {}), "");
        row("more than it can hold", targa(10, 24, 0, QByteArray(4096, '\xff'), 0, 0x7fff), "");
        row("too large", targa(10, 24, 0, QByteArray(3'000'000, '\xff'), 0, 9000), "");
        row("interleaved", targa(2, 24, 0x40, colors), "");
        row("of no kind", targa(4, 24, 0, colors), "");
        row("text", "Not a picture, but a text of some length.\n", "");
        row("nothing", {}, "");
    }

    void targa()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, texels);
        const TestFolder folder;
        const QString path = folder.put("picture.tga", file);
        QCOMPARE(isPicture(path), !texels.isEmpty());
        QBuffer buffer(&file);
        buffer.open(QIODevice::ReadOnly);
        for (const Picture &picture : {readPicture(path), readPicture(buffer)}) {
            QStringList found;
            for (int i = 0; !picture.image.isNull() && i < 4; ++i)
                found += QString::number(picture.image.pixel(i % 2, i / 2), 16).rightJustified(8, '0');
            QCOMPARE(found.join(' '), texels);
            QCOMPARE(picture.format, texels.isEmpty() ? QByteArray() : QByteArray("tga"));
        }
    }

    void toolkits()
    {
        const TestFolder folder;
        QImage red(4, 2, QImage::Format_RGB32);
        red.fill(Qt::red);
        const QString path = folder.path("wall.png");
        QVERIFY(red.save(path, "JPG"));
        QCOMPARE(readPicture(path).format, QByteArray("jpeg")); // whatever it is called
        QCOMPARE(readPicture(path).image.size(), red.size());
        QVERIFY(isPicture(path) && !isPicture(folder.path()) && !isPicture(folder.path("none.png")));
        QCOMPARE(pictureSize(path), red.size());
        // A header of 64 million pixels and a few more.
        const QString large =
            folder.put("large.bmp", bytes("424d360000000000000036000000280000000020000001200000010018000000"
                                          "00000000000000000000000000000000000000000000"));
        QCOMPARE(pictureSize(large), QSize(8192, 8193));
        QVERIFY(!isPicture(large) && readPicture(large).image.isNull());
        // Kinds that are read nowhere else, though the toolkit knows them: an icon holds whole pictures.
        for (const char *kind : {"ico", "ppm", "xbm"}) {
            QVERIFY(red.save(path, kind));
            QVERIFY2(!isPicture(path) && readPicture(path).image.isNull(), kind);
        }
    }

    void realTexture()
    {
        SKIP_WITHOUT_SHARED("models");
        const Picture picture = readPicture(TestSupport::shared("models/smd_holygrail/holygrail.tga"));
        QCOMPARE(picture.image.size(), QSize(256, 512));
        QVERIFY(picture.image.hasAlphaChannel());
        QCOMPARE(picture.image.pixel(0, 511), 0xff988430u);
    }

private:
    static QByteArray bytes(const char *hex) { return QByteArray::fromHex(hex); }

    static QByteArray targa(int kind, int bits, int descriptor, const QByteArray &data, int colors = 0,
                            int side = 2)
    {
        QByteArray header(18, '\0');
        header[1] = char(colors > 0 ? 1 : 0);
        header[2] = char(kind);
        header[5] = char(colors);
        header[7] = char(colors > 0 ? 24 : 0);
        header[12] = header[14] = char(side);
        header[13] = header[15] = char(side >> 8);
        header[16] = char(bits);
        header[17] = char(descriptor);
        return header + data;
    }
};

QTEST_GUILESS_MAIN(tst_picturefile)
#include "tst_picturefile.moc"
