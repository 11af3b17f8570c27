// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "LiteralFormat.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

// Every allocation of the models goes through operator new, so its high-water mark is what a file makes the
// program take.
namespace {
size_t allocated = 0;
size_t peak = 0;
} // namespace

void *operator new(size_t size)
{
    void *memory = std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    allocated += malloc_usable_size(memory);
    peak = std::max(peak, allocated);
    return memory;
}

void operator delete(void *memory) noexcept
{
    allocated -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void *memory, size_t) noexcept
{
    operator delete(memory);
}

using namespace SampleModels;

namespace {
constexpr size_t MaxHostileBytes = 16 * 1024 * 1024;

/// Reads `bytes` and compares result and message with the literal reading. Returns how many bytes were
/// allocated at a time, what the file itself takes left out.
size_t checkAgainstLiteral(const QString &suffix, const QByteArray &bytes, const QString &what)
{
    const LiteralFormat literal(suffix, bytes);
    size_t taken = 0;
    withModel(suffix, [&](auto model) {
        BinaryFileReader reader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
        peak = allocated;
        const size_t before = allocated;
        const bool failed = model.read(reader);
        taken = peak - before;
        if (failed != literal.failed() || reader.errorText() != literal.errorText()) {
            qWarning() << what << "gives" << failed << reader.errorText() << "and not" << literal.failed()
                       << literal.errorText();
            QFAIL("differs from the literal reading");
        }
        // Negative counts are written as none: all else reads back to the same.
        const QByteArray written = failed ? QByteArray() : bytesOf(model);
        decltype(model) again;
        if (!written.isEmpty())
            QVERIFY2(!readBytes(again, written) && bytesOf(again) == written, qPrintable(what));
    });
    return taken;
}
} // namespace

/// Files that end early, or whose counts promise what they do not hold: the message is always the one that
/// reading value after value would give, and neither time nor memory is spent on the promise.
class TestHostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void cutAtEveryByte_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QByteArray>("bytes");
        for (const QString &suffix : suffixes()) {
            QTest::newRow(qPrintable(suffix)) << suffix << bytesOfSample(suffix);
            for (const QString &path : TestSupport::modelFiles(suffix))
                QTest::newRow(qPrintable(path)) << suffix << TestSupport::readFile(path);
        }
    }

    void cutAtEveryByte()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, bytes);
        const LiteralFormat literal(suffix, bytes);
        QCOMPARE(literal.length(), bytes.size());

        // Every byte of a short file. A long one is cut at every byte of its start and its end, and in steps
        // between; reading half a megabyte half a million times would take the test its time limit.
        // KORVANE_CUT_EVERY_BYTE in the environment does it all the same.
        const bool everyByte = bytes.size() <= 20000 || qEnvironmentVariableIsSet("KORVANE_CUT_EVERY_BYTE");
        const int ends = 256;
        const int step = everyByte ? 1 : bytes.size() / 60 | 1;
        // Exactly as long as the part that is left, so that a sanitizer sees a read beyond it.
        std::vector<uchar> part;
        withModel(suffix, [&](auto model) {
            int length = 0;
            while (length < bytes.size()) {
                part.assign(bytes.begin(), bytes.begin() + length);
                part.shrink_to_fit();
                BinaryFileReader reader(part.data(), length);
                const bool failed = model.read(reader);
                if (!failed || reader.errorText() != literal.errorTextWhenCutAt(length)) {
                    QFAIL(qPrintable(QStringLiteral("cut after %1 bytes: %2, not %3")
                                         .arg(QString::number(length), reader.errorText(),
                                              literal.errorTextWhenCutAt(length))));
                }
                length += length < ends || length >= bytes.size() - ends
                              ? 1
                              : std::min(step, bytes.size() - ends - length);
            }
        });
    }

    void hostileCounts_data() { cutAtEveryByte_data(); }

    void hostileCounts()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, bytes);
        const LiteralFormat literal(suffix, bytes);
        QVERIFY(literal.counts().size() >= 3);
        size_t most = 0;
        QHash<QByteArray, int> seen;
        for (const LiteralFormat::Count &count : literal.counts()) {
            // Hundreds of child lists or blocks are all read by the same lines.
            if (++seen[count.name] > 2)
                continue;
            const qint32 honest = qFromLittleEndian<qint32>(bytes.constData() + count.offset);
            for (qint32 value : {0x7FFFFFFF, -1, std::numeric_limits<qint32>::min(), 0x2AAAAAAB, 0x55555556,
                                 0x40000000, 0x00FFFFFF, 65536, 65537, 0, honest - 1, honest + 1}) {
                QByteArray patched = bytes;
                qToLittleEndian<qint32>(value, patched.data() + count.offset);
                const QString what = QStringLiteral("%1 of %2").arg(QLatin1String(count.name)).arg(value);
                const size_t taken = checkAgainstLiteral(suffix, patched, what);
                if (QTest::currentTestFailed())
                    return;
                most = std::max(most, taken);
            }
        }
        QVERIFY2(most <= MaxHostileBytes, qPrintable(QString::number(most)));
    }

    void longFilesOfHostileCounts_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("countOffset");
        QTest::newRow("bones without bodies") << suffixes()[0] << 31;
        QTest::newRow("blocks") << suffixes()[1] << 4;
        QTest::newRow("bones of a block") << suffixes()[1] << 16;
        QTest::newRow("surfaces") << suffixes()[2] << 28;
    }

    void longFilesOfHostileCounts()
    {
        QFETCH(QString, suffix);
        QFETCH(int, countOffset);
        // The file holds much, but not as much as the count says: nothing of it is kept.
        QByteArray bytes(8 * 1024 * 1024, '\0');
        const qint32 tooMany = countOffset == 31 ? 1000000 : 0x7FFFFFFF;
        qToLittleEndian<qint32>(tooMany, bytes.data() + countOffset);
        if (countOffset == 16) {
            qToLittleEndian<qint32>(1, bytes.data() + 4);
            qToLittleEndian<qint32>(tooMany, bytes.data() + 20);
        }
        const size_t taken = checkAgainstLiteral(suffix, bytes, QLatin1String(QTest::currentDataTag()));
        QVERIFY2(taken <= 64 * 1024, qPrintable(QString::number(taken)));
    }

    void emptyTracksAreCountedOverTheFile()
    {
        const auto bytesOf = [](const AnimFile &file) {
            BinaryFileWriter writer;
            file.writeDraft(writer);
            return writer.takeBytes();
        };
        const auto read = [](const std::vector<uchar> &bytes, AnimFile &file) {
            BinaryFileReader reader(bytes.data(), qint64(bytes.size()));
            return file.read(reader);
        };
        // As many as an index can name in both tables of each block: two blocks are read, three are not.
        AnimFile file, back;
        file.blocks.resize(2);
        for (AnimBlock &block : file.blocks) {
            block.setTranslationCount(65536);
            block.setRotationCount(65536);
        }
        std::vector<uchar> bytes = bytesOf(file);
        QVERIFY(file.refusal().isEmpty() && !read(bytes, back));
        bytes.resize(8 + 3 * 44);
        std::copy_n(bytes.begin() + 8, 44, bytes.end() - 44);
        bytes[4] = 3;
        QVERIFY(read(bytes, back));

        // What is kept of a model with more can be read back, but for tracks that hold nothing.
        file.blocks.insert(file.blocks.begin(), 2, AnimBlock());
        file.blocks[0].setFrameCount(1);
        file.blocks[0].setRotationCount(70000);
        file.blocks[1].setRotationCount(70000);
        QVERIFY(!file.refusal().isEmpty() && !read(bytesOf(file), back));
        QCOMPARE(back.blocks.size(), size_t(4));
        QCOMPARE(back.blocks[0].rotations.trackCount(), 70000);
        QCOMPARE(back.blocks[1].rotations.trackCount(), 65536);
        QCOMPARE(back.blocks[3].translations.trackCount(), 65536);
        QCOMPARE(back.blocks[3].rotations.trackCount(), 0);
        file.blocks.resize(2); // one table alone can be too many
        QVERIFY(!file.refusal().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHostileFiles)
#include "tst_hostilefiles.moc"
