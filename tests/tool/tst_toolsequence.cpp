// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "PictureTests.h"

#include <csignal>

using namespace PictureTests;

namespace {
/// A part of a name.
bool hasDark(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 90)
                return true;
        }
    }
    return false;
}
} // namespace

/// Sequences of pictures and sheets that korvane-tool draws.
class tst_ToolSequence : public QObject
{
    Q_OBJECT

private slots:
    void drawsFrames()
    {
        // A block of 25 frames. The camera has all of them in view, as tightly as one.
        const QStringList all = draw(Tinker + " --size 128 --frames all");
        QCOMPARE(all.size(), 25);
        QCOMPARE(QFileInfo(all[0]).fileName(), QString("tinker-0000.png"));
        QCOMPARE(QFileInfo(all[24]).fileName(), QString("tinker-0024.png"));
        QRect together;
        QSet<QByteArray> different;
        for (const QString &picture : all) {
            const QImage image(picture);
            QCOMPARE(image.size(), QSize(128, 128));
            together |= covered(image);
            different.insert(TestSupport::readFile(picture));
        }
        QVERIFY(QRect(1, 1, 126, 126).contains(together));
        QVERIFY(together.width() > 0.85 * 128 || together.height() > 0.85 * 128);
        QVERIFY(different.size() > 10);

        // Some of these frames are the same pictures, under the names of their frames.
        const QStringList some = draw(Tinker + " --size 128 --frames 0-24 --step 6", "some");
        QCOMPARE(some.size(), 5);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(QFileInfo(some[i]).fileName(),
                     QStringLiteral("tinker-%1.png").arg(6 * i, 4, 10, QChar('0')));
            QCOMPARE(QImage(some[i]), QImage(all[6 * i]));
        }
        // A frame alone is framed alone.
        const QStringList one = draw(Tinker + " --size 128 --frames 6-6", "one/six.jpg");
        QCOMPARE(one, QStringList(m_folder.path("one/six-0006.jpg")));
        QCOMPARE(QImage(draw(Tinker + " --size 128 --frames 6", "six")[0]), single(" --frame 6"));
    }

    void turns()
    {
        // Whether the model or the camera is said to turn is the same.
        const QStringList four = draw(Tinker + " --size 128 --turntable 4", "four");
        const QStringList two = draw(Tinker + " --size 128 --yaw 120 --turntable 2", "two");
        QCOMPARE(four.size(), 4);
        QCOMPARE(two.size(), 2);
        QVERIFY(isAlike(QImage(two[0]), QImage(four[1])));
        QVERIFY(isAlike(QImage(two[1]), QImage(four[3])));
        QVERIFY(!isAlike(QImage(four[0]), QImage(four[1])));
        QRect together;
        for (const QString &picture : four)
            together |= covered(QImage(picture));
        QVERIFY(QRect(1, 1, 126, 126).contains(together));
        // Its start is the single picture, but for the room that the other sides need.
        const QRect start = covered(QImage(four[0])), alone = covered(single({}));
        QVERIFY(qAbs(double(start.width()) / start.height() - double(alone.width()) / alone.height()) < 0.1);

        // With frames, the longer of both decides.
        const QStringList both = draw(Tinker + " --size 64 --frames 0-24 --step 8 --turntable 6", "both");
        QCOMPARE(both.size(), 6);
        QCOMPARE(QFileInfo(both[5]).fileName(), QString("tinker-0005.png"));
        QCOMPARE(draw(Tinker + " --size 64 --frames 0-9 --turntable 6", "longer").size(), 10);
        QCOMPARE(draw(Crate + " --size 64 --turntable 3", "crate").size(), 3);
    }

    void drawsSheets()
    {
        const QString sheet = m_folder.path("sheet.png");
        const auto onto = [&](const QString &words) {
            QFile::remove(sheet);
            const ToolRun run("render --sheet -o", QStringList{sheet} + withSamples(words));
            if (run.exitCode != 0)
                qWarning("%s", qUtf8Printable(run.err));
            return QImage(sheet);
        };
        // Six pictures in three columns, in their order, on white with names in black below.
        const QImage frames = onto(Tinker + " --size 64 --columns 3 --frames 0-24 --step 4");
        QCOMPARE(frames.width(), 3 * 80);
        const int cell = frames.height() / 3;
        QVERIFY(cell > 64 + 16 && cell < 64 + 60);
        QCOMPARE(frames.pixelColor(0, 0), QColor(Qt::white));
        const QStringList alone =
            draw(Tinker + " --size 64 --background white --frames 0-24 --step 4", "frames");
        QCOMPARE(alone.size(), 7);
        for (int i = 0; i < 7; ++i) {
            const QPoint corner(i % 3 * 80 + 8, i / 3 * cell + 8);
            QVERIFY(isAlike(frames.copy(QRect(corner, QSize(64, 64))), QImage(alone[i])));
            QVERIFY(hasDark(frames.copy(corner.x(), corner.y() + 64, 64, cell - 72)));
        }
        QVERIFY(!hasDark(frames.copy(80, 2 * cell, 160, cell)));

        // Models are drawn as --each draws them; what cannot be drawn has its name there.
        const QString broken = m_folder.put("broken.staticmesh", "no");
        const ToolRun run("render --sheet --force --size 64 --columns 8 --background black -o",
                          QStringList{sheet, broken} +
                              withSamples(Crate + " game/models/tinker/tinker.skinnedmesh"));
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("broken.staticmesh: "));
        QCOMPARE(run.out, sheet + '\n');
        const QImage models(sheet);
        QCOMPARE(models.width(), 3 * 80);
        QCOMPARE(models.pixelColor(40, 40), QColor(Qt::black));
        QVERIFY(isAlike(models.copy(168, 8, 64, 64), single(" --size 64 --background black")));
        const ToolRun folder("render --sheet --force -o",
                             {sheet, TestSupport::source("samples/game/models")});
        QVERIFY2(folder.exitCode == 0 && QImage(sheet).width() > 192, qUtf8Printable(folder.err));

        // What is too large for one sheet goes onto several.
        const ToolRun many("render --sheet --size 8x5400 --columns 1 --turntable 4 -o",
                           QStringList{m_folder.path("many.png")} + withSamples(Crate));
        QVERIFY2(many.exitCode == 0, qUtf8Printable(many.err));
        QCOMPARE(many.out, m_folder.path("many-0001.png") + '\n' + m_folder.path("many-0002.png") + '\n');
        QCOMPARE(QImage(m_folder.path("many-0001.png")).height(),
                 3 * QImage(m_folder.path("many-0002.png")).height());
    }

    void refusals()
    {
        struct Row
        {
            QString words, complaint;
            int exitCode;
        };
        const Row rows[] = {
            {Tinker + " --frames 3-1", "--frames takes FIRST-LAST", 2},
            {Tinker + " --frames 3-", "--frames takes FIRST-LAST", 2},
            {Tinker + " --frames 0-3 --frame 1", "--frame means nothing", 2},
            {Tinker + " --step 2", "--step means nothing", 2},
            {Tinker + " --turntable 0", "--turntable takes a whole number from 1", 2},
            {Tinker + " --columns 2", "--columns means nothing", 2},
            {Tinker + " --sheet --columns 9999", "16384 pixels wide", 2},
            {Tinker + " --each --frames all", "for one file", 2},
            {Tinker + ' ' + Crate + " --sheet --frames all", "for one file", 2},
            {Tinker + " --frames 0-25", "no frame 25, only 25", 1},
            {Crate + " --frames all", "no animation", 1},
        };
        for (const Row &row : rows) {
            const TestFolder folder;
            const ToolRun run("render -o", QStringList{folder.path("x.png")} + withSamples(row.words));
            QVERIFY2(run.exitCode == row.exitCode && run.err.contains(row.complaint),
                     qUtf8Printable(row.words + ": " + run.err));
            QVERIFY(QDir(folder.path()).isEmpty());
        }
        // One picture that is there keeps all others from being drawn.
        const TestFolder folder;
        const QString there = folder.put("x-0003.png", "mine");
        const QStringList arguments =
            QStringList{folder.path("x.png")} + withSamples(Tinker + " --size 32 --frames 0-5");
        const ToolRun refused("render -o", arguments);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.err.contains("x-0003.png: The file exists already; --force replaces it."));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("x-0003.png"));
        QCOMPARE(TestSupport::readFile(there), QByteArray("mine"));
        QCOMPARE(ToolRun("render --force -o", arguments).exitCode, 0);
        QCOMPARE(QImage(there).width(), 32);
        // A model is never what is to be replaced, whether it is drawn or not.
        const QString crate = withSamples(Crate)[0];
        const QString copy = folder.put("crate.staticmesh", TestSupport::readFile(crate));
        for (const char *verb : {"render --sheet --force --size 32 -o", "render --force --size 32 -o"}) {
            for (const QString &model : {copy, crate}) {
                const ToolRun run(verb, {copy, model});
                QVERIFY2(run.exitCode == 1 && run.err.contains("a file of the game"),
                         qUtf8Printable(run.err));
                QCOMPARE(TestSupport::readFile(copy), TestSupport::readFile(crate));
            }
        }
    }

    void endsWithWholePictures()
    {
        const TestFolder folder;
        // A disk that is full ends the run.
        {
            const FullDisk disk(100);
            const ToolRun run("render -o",
                              QStringList{folder.path()} + withSamples(Tinker + " --size 64 --frames all"));
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.err.count("cannot be written: File too large"), 1);
            QVERIFY(QDir(folder.path()).isEmpty());
        }
        QProcess process;
        process.start(QStringLiteral(KORVANE_TOOL),
                      QStringList{"render", "-o", folder.path()} + withSamples(Tinker + " --turntable 9999"));
        QVERIFY(process.waitForReadyRead(60000));
#ifndef Q_OS_WIN
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 130);
        const QFileInfoList left = QDir(folder.path()).entryInfoList(QDir::Files);
        QVERIFY(!left.isEmpty() && left.size() < 9999);
        for (const QFileInfo &file : left)
            QVERIFY2(file.suffix() == "png" && QImage(file.filePath()).width() == 512,
                     qUtf8Printable(file.filePath()));
#else
        process.kill();
        process.waitForFinished();
#endif
    }

private:
    /// The pictures that a run says it wrote, into a folder of this name or under a name.
    QStringList draw(const QString &words, const QString &name = "pictures")
    {
        const bool isFolder = !name.contains('.');
        QDir().mkpath(isFolder ? m_folder.path(name) : QFileInfo(m_folder.path(name)).path());
        const ToolRun run("render -o", QStringList{m_folder.path(name)} + withSamples(words));
        if (run.exitCode != 0)
            qWarning("%d: %s", run.exitCode, qUtf8Printable(run.err));
        return run.out.split('\n', Qt::SkipEmptyParts);
    }
    QImage single(const QString &words)
    {
        const QString picture = m_folder.path("single.png");
        const ToolRun run("render --force --size 128 -o", QStringList{picture} + withSamples(Tinker + words));
        return run.exitCode == 0 ? QImage(picture) : QImage();
    }

    TestFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolSequence)
#include "tst_toolsequence.moc"
