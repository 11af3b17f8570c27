// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SampleModels.h"
#include "ToolRun.h"

using TestSupport::readFile;

/// Whole animations on the command line.
class tst_ToolAnimate : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        AnimFile file;
        file.blocks.resize(2);
        for (size_t i = 0; i < 2; ++i) {
            AnimBlock &block = file.blocks[i];
            block.animId = 70000 + int(i);
            block.speed = 10;
            block.nodes.resize(1);
            block.nodes[0].translationIndex = 0;
            block.setTranslationCount(1);
            block.setFrameCount(i == 0 ? 5 : 1);
            for (int frame = 0; frame < block.frameCount(); ++frame)
                block.translations.at(0, frame) = {float(frame), 0, 1};
        }
        m_file = m_folder->put("x.anim", SampleModels::bytesOf(file) + "more");
    }

    void tellsWhatItDoes()
    {
        const QByteArray before = readFile(m_file);
        const ToolRun looked("animate", {m_file, "resample", "9", "--block", "0", "--keep-speed"});
        QVERIFY2(looked.exitCode == 0, qUtf8Printable(looked.err));
        QCOMPARE(looked.out,
                 QString("  Animation 0 (id 70000)\n    frames: 5 \u2192 9\n    duration: 0.40 \u2192 "
                         "0.80 s\n    bytes: 156 \u2192 220\n"));
        QCOMPARE(readFile(m_file), before);

        // Numbers below 0 are no options, wherever these stand.
        const QString out = m_folder->path("y.anim");
        const ToolRun run("animate --block 0 -o", {out, m_file, "shift", "-1"});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        AnimFile made;
        QVERIFY(!made.read(out));
        QCOMPARE(made.blocks[0].translations.at(0, 3), QVector3D(4, 0, 1));
        QCOMPARE(made.bytesBehind, 4); // nothing is lost
        QCOMPARE(readFile(m_file), before);
    }

    void replacesNothingUnasked()
    {
        const QString mine = m_folder->put("mine.anim", "mine");
        const QStringList words{m_file, "reverse", "--all", "-o", mine};
        const ToolRun refused("animate", words);
        QVERIFY2(refused.exitCode == 1 && refused.err.contains("mine.anim"), qUtf8Printable(refused.err));
        QCOMPARE(readFile(mine), QByteArray("mine"));
        QCOMPARE(ToolRun("animate --force", words).exitCode, 0);
        AnimFile made;
        QVERIFY(!made.read(mine));
        QCOMPARE(made.blocks[0].translations.at(0, 0), QVector3D(4, 0, 1));
        QCOMPARE(ToolRun("animate --in-place --all reverse", {m_file}).exitCode, 2); // the file comes first
        QCOMPARE(ToolRun("animate --in-place --all", {m_file, "reverse"}).exitCode, 0);
        QCOMPARE(readFile(m_file), readFile(mine));

        // Several go into a folder, and one that cannot be read keeps no other from it.
        QDir(m_folder->path()).mkdir("out");
        const QString bad = m_folder->put("bad.anim", "x");
        const ToolRun several("animate --all -o", {m_folder->path("out"), bad, m_file, "reverse"});
        QCOMPARE(several.exitCode, 1);
        QVERIFY(several.err.contains("bad.anim"));
        QVERIFY(QFile::exists(m_folder->path("out/x.anim")) &&
                !QFile::exists(m_folder->path("out/bad.anim")));
    }

    void whatIsNamedHasToBePossible()
    {
        const QByteArray before = readFile(m_file);
        const ToolRun named("animate --in-place --block 0 --block 1", {m_file, "close-loop", "2"});
        QVERIFY2(named.exitCode == 1 && named.err.contains("two frames at least"), qUtf8Printable(named.err));
        QCOMPARE(readFile(m_file), before);
        const ToolRun all("animate --in-place --all", {m_file, "close-loop", "2"});
        QVERIFY2(all.exitCode == 0 && all.err.contains("warning"), qUtf8Printable(all.err));
        QVERIFY(readFile(m_file) != before);
        QVERIFY(ToolRun("animate --block 2", {m_file, "reverse"}).err.contains("no animation 2"));
        QVERIFY(ToolRun("animate --all", {m_file, "mirror"}).err.contains("mesh"));
    }

    void bringsAnimationsToOtherSkeletons()
    {
        SkinnedMesh mesh;
        mesh.nodes.resize(1);
        const QString own = m_folder->save("own.skinnedmesh", mesh);
        const QString out = m_folder->path("out.anim");
        const ToolRun run("animate --block 0 -o",
                          {out, "--mesh", own, "--source-mesh", own, m_file, "copy-from", m_file});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        QVERIFY(run.out.contains("Bones that found their partner: 1."));
        AnimFile made;
        QVERIFY(!made.read(out));
        QCOMPARE(int(made.blocks.size()), 3);
        QCOMPARE(made.blocks[2].animId, 70002);
        QCOMPARE(made.blocks[2].translations.at(0, 4), QVector3D(4, 0, 1));
    }

private:
    std::optional<TestFolder> m_folder;
    QString m_file;
};

QTEST_GUILESS_MAIN(tst_ToolAnimate)
#include "tst_toolanimate.moc"
