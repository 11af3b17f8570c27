// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "LiteralFormat.h"
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "TestSupport.h"

#include <atomic>
#include <thread>

using namespace SampleModels;

namespace {
BinaryFileReader readerOf(const QByteArray &bytes)
{
    return BinaryFileReader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
}
} // namespace

/// The typed reads and writes below all three formats.
class TestBinaryFile : public QObject
{
    Q_OBJECT

private slots:
    void oddFloatsKeepTheirBits()
    {
        BinaryFileWriter writer;
        for (float value : oddFloats)
            writer.writeFloat(value);
        const QByteArray bytes = bytesOf(writer);
        QCOMPARE(bytes.toHex(), QByteArray("0100807f4523c1ff0000807f00000080"
                                           "01000000ffff7f7f95bfd6b3cdcccc3d"));
        BinaryFileReader reader = readerOf(bytes);
        BinaryFileWriter back;
        back.writeFloat(reader.readFloat());
        back.writeVec3(reader.readVec3());
        back.writeVec4(reader.readVec4());
        QCOMPARE(bytesOf(back).toHex(), bytes.toHex());
    }

    void latin1Strings()
    {
        QByteArray every;
        for (int c = 1; c < 256; ++c)
            every.append(char(c));
        BinaryFileWriter writer;
        writer.writeString(QString::fromLatin1(every));
        writer.writeString(QStringLiteral("\u20ac"));       // the euro sign is not in Latin-1
        writer.writeString(QString::fromLatin1("a\0b", 3)); // would shift everything behind it
        const QByteArray bytes = bytesOf(writer);
        QCOMPARE(bytes, every + QByteArray("\0?\0a\0", 5));

        const QByteArray cutOff = bytes + "cut";
        BinaryFileReader reader = readerOf(cutOff);
        for (const QString &text : {QString::fromLatin1(every), QStringLiteral("?"), QStringLiteral("a")})
            QCOMPARE(reader.readString(), text);
        QVERIFY(!reader.hasError());
        QCOMPARE(reader.readString(), QStringLiteral("cut"));
        QCOMPARE(reader.errorText(), LiteralFormat::endOfFile("uint8"));
    }

    void firstErrorStays()
    {
        BinaryFileWriter writer;
        writer.writeVec2({1.0f, 2.0f});
        const std::vector<uchar> bytes = writer.bytes();
        BinaryFileReader cut(bytes.data(), 8);
        QCOMPARE(cut.readVec3(), QVector3D(1.0f, 2.0f, 0.0f));
        QCOMPARE(cut.errorText(), LiteralFormat::endOfFile("float"));

        QCOMPARE(BinaryFileReader(bytes.data(), 6).readVec2(), QVector2D(1.0f, 0.0f));
        cut.readInt32();
        QVERIFY(cut.readString().isEmpty());
        std::vector<quint16> values{1, 2};
        cut.readUInt16s(values, 1);
        QVERIFY(values.empty());
        cut.setErrorText(QStringLiteral("later"));
        QCOMPARE(cut.errorText(), LiteralFormat::endOfFile("float"));
    }

    void acrossTheWindow()
    {
        // Values of every kind, long and short, at odd places of a file much longer than the buffers.
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("long"));
        const QString text(300001, QLatin1Char('x'));
        std::vector<quint16> indexes(200001);
        for (size_t i = 0; i < indexes.size(); ++i)
            indexes[i] = quint16(i % 65535);
        std::vector<float> floats(100003, 1.5f);
        floats[90000] = oddFloats[0];

        BinaryFileWriter writer(path);
        for (int round = 0; round < 3; ++round) {
            writer.writeString(text);
            writer.writeUInt16s(indexes);
            writer.writeUInt16(0xFFFF);
            writer.writeUInt16s(indexes);
            writer.writeFloats(floats.data(), floats.size());
            for (qint32 i = 0; i < 70000; ++i)
                writer.writeInt32(i);
        }
        QVERIFY(!writer.commit());

        BinaryFileReader reader(path);
        for (int round = 0; round < 3; ++round) {
            QVERIFY(reader.readString() == text);
            std::vector<quint16> values;
            reader.readUInt16sUntil(values, 0xFFFF);
            QVERIFY(values == indexes);
            reader.readUInt16s(values, qint64(indexes.size()));
            QVERIFY(values == indexes);
            std::vector<float> read(floats.size());
            reader.readFloats(read.data(), qint64(read.size()));
            QVERIFY(std::memcmp(read.data(), floats.data(), floats.size() * sizeof(float)) == 0);
            qint32 i = 0;
            while (i < 70000 && reader.readInt32() == i)
                ++i;
            QCOMPARE(i, 70000);
        }
        QVERIFY(!reader.hasError());
        QVERIFY(!reader.holds(1, 1));
    }

    void holdsByDivision()
    {
        const QByteArray bytes(68, '\0');
        const BinaryFileReader reader = readerOf(bytes);
        QVERIFY(reader.holds(2, 34));
        QVERIFY(!reader.holds(3, 34));
        QVERIFY(!reader.holds(std::numeric_limits<qint64>::max(), 34));
        QVERIFY(!reader.holds(2, std::numeric_limits<qint64>::max()));
        QVERIFY(reader.holds(-1, 34));
    }

    void whatCannotBeOpened()
    {
        const QTemporaryDir folder;
        const QString pipe = SpecialFiles::pipe(folder.filePath(QStringLiteral("pipe")));
        for (const QString &path : {pipe, folder.path(), folder.filePath(QString("missing")), QString()}) {
            const BinaryFileReader reader(path);
            QVERIFY(!reader.isOpen());
            QVERIFY(!reader.hasError());
        }

        const QString huge = folder.filePath(QStringLiteral("huge"));
        QFile sparse(huge);
        QVERIFY(sparse.open(QIODevice::WriteOnly));
        if (!sparse.resize(qint64(1) << 31))
            QSKIP("no sparse files here");
        const BinaryFileReader reader(huge);
        QVERIFY(!reader.isOpen());
        QCOMPARE(reader.errorText(), QStringLiteral("The file is 2 GiB or larger."));
    }

    void fileCutOffWhileRead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("cut"));
        QVERIFY(TestSupport::writeFile(path, QByteArray(2000000, '\1')));
        BinaryFileReader reader(path);
        QCOMPARE(reader.readInt32(), 0x01010101);
        QVERIFY(QFile::resize(path, 1000000));
        QVERIFY(reader.holds(300000, 4));
        std::vector<quint16> values;
        reader.readUInt16s(values, 600000);
        QVERIFY(values.empty());
        QCOMPARE(reader.errorText(), LiteralFormat::endOfFile("uint16"));
        QVERIFY(!reader.holds(1, 1));
    }

    void modelsChangedWhileRead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("changing"));
        for (const QString &suffix : suffixes()) {
            withModel(suffix, [&](auto sample) {
                sample = longModel<decltype(sample)>(20000);
                const QByteArray bytes = bytesOf(sample);
                QVERIFY(TestSupport::writeFile(path, bytes));
                // Another program cuts the file, makes it grow and fills it again, all the time.
                std::atomic<bool> done{false};
                std::thread other([&] {
                    QFile file(path);
                    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
                        return;
                    for (int i = 1; !done; ++i) {
                        file.resize(qint64(bytes.size()) * (i * 7 % 13) / 10);
                        file.seek(0);
                        file.write(bytes);
                    }
                });
                int failures = 0;
                for (int i = 0; i < 100 || (failures == 0 && i < 10000); ++i) {
                    decltype(sample) read;
                    QString text;
                    failures += read.read(path, &text) ? !text.isEmpty() : 0;
                }
                done = true;
                other.join();
                QVERIFY2(failures > 0, "the file was never cut in the middle of a read");
            });
        }
    }
};

QTEST_GUILESS_MAIN(TestBinaryFile)
#include "tst_binaryfile.moc"
