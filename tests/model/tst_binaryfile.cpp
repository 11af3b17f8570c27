// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileReader.h"
#include "BinaryFileWriter.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <atomic>
#include <thread>

#include <sys/stat.h>

using namespace SampleModels;

namespace {
BinaryFileReader readerOf(const QByteArray &bytes)
{
    return BinaryFileReader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
}

QString endOf(const char *type)
{
    return QStringLiteral("Attempting to read %1 value from file, but reached end of file.")
        .arg(QLatin1String(type));
}

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}
} // namespace

/// The typed reads and writes below all three formats.
class TestBinaryFile : public QObject
{
    Q_OBJECT

private slots:
    void writesLittleEndian();
    void readsBackBitForBit();
    void endOfFile_data();
    void endOfFile();
    void firstErrorStays();
    void latin1Strings();
    void acrossTheWindow();
    void holdsByDivision();
    void whatCannotBeOpened();
    void fileCutOffWhileRead();
    void modelsChangedWhileRead();
};

void TestBinaryFile::writesLittleEndian()
{
    BinaryFileWriter writer;
    writer.writeInt8(-2);
    writer.writeUInt8(0xAB);
    writer.writeUInt16(quint16(-1));
    writer.writeUInt16(0x1234);
    writer.writeInt32(-2);
    writer.writeFloat(1.0f);
    writer.writeVec2({1.0f, 2.0f});
    writer.writeVec3({1.0f, 2.0f, -1.0f});
    writer.writeVec4({0.0f, 0.0f, 0.0f, 1.0f});
    writer.writeString(QStringLiteral("a\u00e9\u20ac")); // the euro sign is not in Latin-1
    writer.writeString(QString::fromLatin1("a\0b", 3));  // would shift everything behind it
    const std::vector<uchar> &bytes = writer.bytes();
    const QByteArray expected = QByteArray::fromHex("fe ab ffff 3412 feffffff 0000803f"
                                                    "0000803f00000040"
                                                    "0000803f00000040000080bf"
                                                    "0000000000000000000000000000803f"
                                                    "61e93f00 6100");
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size())).toHex(),
             expected.toHex());
}

void TestBinaryFile::readsBackBitForBit()
{
    BinaryFileWriter writer;
    for (float value : oddFloats)
        writer.writeFloat(value);
    writer.writeVec4({oddFloats[0], oddFloats[1], oddFloats[2], oddFloats[3]});
    const std::vector<uchar> bytes = writer.bytes();

    BinaryFileReader reader(bytes.data(), qint64(bytes.size()));
    for (float value : oddFloats)
        QCOMPARE(bitsOf(reader.readFloat()), bitsOf(value));
    const QVector4D vector = reader.readVec4();
    for (int i = 0; i < 4; ++i)
        QCOMPARE(bitsOf(vector[i]), bitsOf(oddFloats[size_t(i)]));
    QVERIFY(!reader.hasError());
}

void TestBinaryFile::endOfFile_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("message");
    QTest::newRow("int8") << 0 << 1 << endOf("int8");
    QTest::newRow("uint8") << 1 << 1 << endOf("uint8");
    QTest::newRow("uint16") << 2 << 2 << endOf("uint16");
    QTest::newRow("int32") << 3 << 4 << endOf("int32");
    QTest::newRow("float") << 4 << 4 << endOf("float");
}

void TestBinaryFile::endOfFile()
{
    QFETCH(int, kind);
    QFETCH(int, width);
    QFETCH(QString, message);
    // A value of which only some bytes are there is not there.
    for (int size = 0; size < width; ++size) {
        const QByteArray bytes(size, '\x7f');
        BinaryFileReader reader = readerOf(bytes);
        const double value = kind == 0   ? reader.readInt8()
                             : kind == 1 ? reader.readUInt8()
                             : kind == 2 ? reader.readUInt16()
                             : kind == 3 ? reader.readInt32()
                                         : double(reader.readFloat());
        QCOMPARE(value, 0.0);
        QCOMPARE(reader.errorText(), message);
    }
}

void TestBinaryFile::firstErrorStays()
{
    BinaryFileWriter writer;
    writer.writeVec2({1.0f, 2.0f});
    const std::vector<uchar> bytes = writer.bytes();
    BinaryFileReader cut(bytes.data(), 8);
    QCOMPARE(cut.readVec3(), QVector3D(1.0f, 2.0f, 0.0f));
    QCOMPARE(cut.errorText(), endOf("float"));

    QCOMPARE(BinaryFileReader(bytes.data(), 6).readVec2(), QVector2D(1.0f, 0.0f));
    cut.readInt32();
    QVERIFY(cut.readString().isEmpty());
    std::vector<quint16> values{1, 2};
    cut.readUInt16s(values, 1);
    QVERIFY(values.empty());
    cut.setErrorText(QStringLiteral("later"));
    QCOMPARE(cut.errorText(), endOf("float"));

    // A failure that a format reader finds ends the reading, though bytes are left.
    BinaryFileReader stopped(bytes.data(), 8);
    stopped.setErrorText(QStringLiteral("mismatch"));
    QCOMPARE(stopped.readFloat(), 0.0f);
    QCOMPARE(stopped.errorText(), QStringLiteral("mismatch"));
}

void TestBinaryFile::latin1Strings()
{
    QByteArray every;
    for (int c = 1; c < 256; ++c)
        every.append(char(c));
    const QByteArray bytes = every + '\0' + '\0' + "cut";
    BinaryFileReader reader = readerOf(bytes);
    const QString text = reader.readString();
    QCOMPARE(text, QString::fromLatin1(every));
    QCOMPARE(reader.readString(), QString());
    QVERIFY(!reader.hasError());
    QCOMPARE(reader.readString(), QStringLiteral("cut"));
    QCOMPARE(reader.errorText(), endOf("uint8"));
}

void TestBinaryFile::acrossTheWindow()
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

void TestBinaryFile::holdsByDivision()
{
    const QByteArray bytes(68, '\0');
    const BinaryFileReader reader = readerOf(bytes);
    QVERIFY(reader.holds(2, 34));
    QVERIFY(!reader.holds(3, 34));
    QVERIFY(!reader.holds(std::numeric_limits<qint64>::max(), 34));
    QVERIFY(!reader.holds(2, std::numeric_limits<qint64>::max()));
    QVERIFY(reader.holds(-1, 34));
}

void TestBinaryFile::whatCannotBeOpened()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &path : {pipe, folder.path(), folder.filePath(QStringLiteral("missing")), QString()}) {
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

void TestBinaryFile::fileCutOffWhileRead()
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
    QCOMPARE(reader.errorText(), endOf("uint16"));
    QVERIFY(!reader.holds(1, 1));
}

void TestBinaryFile::modelsChangedWhileRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("changing"));
    for (const QString &suffix : suffixes()) {
        withModel(suffix, [&](auto sample) {
            if constexpr (std::is_same_v<decltype(sample), AnimFile>) {
                sample = animFile();
                sample.blocks[0].setFrameCount(20000);
            } else if constexpr (std::is_same_v<decltype(sample), SkinnedMesh>) {
                sample = skinnedMesh();
                sample.vertices.resize(20000);
            } else {
                sample = staticMesh();
                sample.vertices.resize(20000);
            }
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

QTEST_GUILESS_MAIN(TestBinaryFile)
#include "tst_binaryfile.moc"
