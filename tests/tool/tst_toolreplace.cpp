// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "ToolRun.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>

#include <thread>

/// Other values for records of many files, and what undoes them.
class tst_ToolReplace : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder->path(QStringLiteral("data")));
    }

    void replacesAndUndoes()
    {
        AnimFile anim = SampleModels::plainAnim();
        anim.blocks.resize(1);
        anim.blocks[0].actions.resize(2);
        anim.blocks[0].actions[0].args = {1234.0f};
        anim.blocks[0].actions[1].args = {7.0f};
        const QString a = m_folder->save("mod/anims/a.anim", anim);
        const QString b = m_folder->save("mod/anims/below/b.anim", anim);
        anim.blocks[0].actions[0].args = {8.0f};
        const QString other = m_folder->save("mod/anims/other.anim", anim);
        const QString mesh = m_folder->save("mod/models/hero.skinnedmesh", SampleModels::plainMesh());
        const QHash<QString, QByteArray> before = contents();

        const QStringList words{m_folder->path("mod"), "actions sound = 1234", "sound", "4321"};
        const ToolRun listed = run("replace --list --json", words);
        QCOMPARE(listed.exitCode, 0);
        QCOMPARE(listed.json().size(), 2);
        QCOMPARE(listed.first()["file"].toString(), a);
        QCOMPARE(listed.first()["place"].toString(), QString("block 0 action 0 arg1"));
        QCOMPARE(listed.first()["after"].toString(), QString("4321"));
        QVERIFY(contents() == before);
        QCOMPARE(run("runs").out, QString());

        QCOMPARE(run("replace", words).exitCode, 0);
        AnimFile changed;
        QVERIFY(!changed.read(b));
        QCOMPARE(changed.blocks[0].actions[0].args[0], 4321.0f);
        QCOMPARE(TestSupport::readFile(other), before[other]);
        const ToolRun runs = run("runs");
        QVERIFY2(runs.out.contains("replaced, files: 2  actions sound = 1234: sound = 4321"),
                 qUtf8Printable(runs.out));
        QCOMPARE(run("replace", words).out, QString()); // nothing is left to replace

        // What somebody has changed since stays; the rest goes back, and forth again.
        const QByteArray after = TestSupport::readFile(b);
        QVERIFY(TestSupport::writeFile(b, "mine"));
        const ToolRun undone = run("runs --undo");
        QCOMPARE(undone.exitCode, 1);
        QVERIFY2(undone.err.contains(b + ": It was changed since"), qUtf8Printable(undone.err));
        QCOMPARE(TestSupport::readFile(a), before[a]);
        QCOMPARE(TestSupport::readFile(b), QByteArray("mine"));
        QVERIFY(TestSupport::writeFile(b, before[b]));
        QCOMPARE(run("runs --finish").exitCode, 0);
        QCOMPARE(TestSupport::readFile(b), after);
        QCOMPARE(run("runs --undo", {runs.out.section(' ', 0, 0)}).exitCode, 0);
        QVERIFY(contents() == before);
        QCOMPARE(run("runs --forget").exitCode, 0);
        QCOMPARE(run("runs").out, QString());
    }

    void namesBesideGoAlong()
    {
        const QString mesh = m_folder->save("mod/models/hero.skinnedmesh", SampleModels::plainMesh());
        const QHash<QString, QByteArray> before = contents();
        const ToolRun named = run("replace", {mesh, "bones parent = 0", "name", "hips"});
        QVERIFY2(named.exitCode == 0, qUtf8Printable(named.err));
        const QString names = m_folder->path("mod/models/hero.names.json");
        QVERIFY2(TestSupport::readFile(names).contains("hips"), "the names");
        QCOMPARE(TestSupport::readFile(mesh), before[mesh]);
        QCOMPARE(run("runs --undo").exitCode, 0);
        QVERIFY(contents() == before);
    }

    void refusalsChangeNothing()
    {
        const QString mesh = m_folder->save("mod/deep/a.skinnedmesh", SampleModels::plainMesh());
        const QString broken = m_folder->put("mod/b.skinnedmesh", "no model");
        const QHash<QString, QByteArray> before = contents();
        const QStringList words{m_folder->path("mod"), "bones damage scale >= 0", "damage scale", "-2.5"};
        const ToolRun refused = run("replace", words);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY2(refused.err.contains(broken + ": "), qUtf8Printable(refused.err));
        QCOMPARE(run("replace", {mesh, "bones damage scale >= 0", "damage scale", "high"}).exitCode, 1);
        QCOMPARE(run("replace", {mesh, "hips < 3", "damage scale", "1"}).exitCode, 1);
        QCOMPARE(run("replace", {mesh, "bones"}).exitCode, 2);
        // A folder in which some are passed over is one, too.
        QVERIFY(QFile::remove(broken));
        SpecialFiles::withNameWithoutText(m_folder->path("mod/deep"), [&] {
            const ToolRun gaps = run("replace", words);
            QCOMPARE(gaps.exitCode, 1);
            QVERIFY2(gaps.err.contains(m_folder->path("mod/deep") + ": The name of"),
                     qUtf8Printable(gaps.err));
        });
        QVERIFY(TestSupport::writeFile(broken, before[broken]));
        QCOMPARE(run("runs --undo").exitCode, 1);
        QVERIFY(contents() == before);
        QCOMPARE(run("replace --skip", words).exitCode, 0);
        SkinnedMesh changed;
        QVERIFY(!changed.read(mesh));
        QCOMPARE(changed.nodes[0].damageScale, -2.5f);
    }

    /// Whenever it is killed, each file is the old or the new one, and the run can be undone or finished.
    /// KORVANE_KILLS says how often.
    void killsLeaveNothingHalf()
    {
        constexpr int Files = 200;
        const int asked = qEnvironmentVariableIntValue("KORVANE_KILLS");
        const int kills = asked > 0 ? asked : 4;
        SkinnedMesh mesh = SampleModels::plainMesh();
        for (int i = 0; i < Files; ++i) {
            mesh.headTrackFactor = qint8(i % 100);
            m_folder->save(qPrintable(QStringLiteral("mod/%1.skinnedmesh").arg(i, 3, 10, QLatin1Char('0'))),
                           mesh);
        }
        const QHash<QString, QByteArray> before = contents();
        const QStringList words{m_folder->path("mod"), "bones damage scale >= 0", "damage scale", "=x+2"};
        QCOMPARE(run("replace", words).exitCode, 0);
        const QHash<QString, QByteArray> after = contents();
        for (auto file = before.begin(); file != before.end(); ++file)
            QVERIFY(after[file.key()] != *file);
        QCOMPARE(run("runs --undo").exitCode, 0);
        QVERIFY(contents() == before);
        QCOMPARE(run("runs --forget").exitCode, 0);

        QRandomGenerator random(20260229);
        int brokenOff = 0;
        for (int i = 0; i < kills; ++i) {
            QProcess process;
            process.setProcessEnvironment(m_environment);
            process.start(QStringLiteral(KORVANE_TOOL), QStringList("replace") + words);
            QVERIFY(process.waitForStarted());
            // Not before the first file is another one, and in half of the cases some later.
            const QString first = m_folder->path("mod/000.skinnedmesh");
            const bool early = i % 4 == 0;
            while (!early && process.state() == QProcess::Running &&
                   TestSupport::readFile(first) == before[first])
                process.waitForFinished(1);
            std::this_thread::sleep_for(std::chrono::milliseconds(random.bounded(early ? 400 : 60)));
            process.kill();
            QVERIFY(process.waitForFinished());

            int changed = 0;
            const QHash<QString, QByteArray> now = contents();
            for (auto file = before.begin(); file != before.end(); ++file) {
                QVERIFY2(now[file.key()] == *file || now[file.key()] == after[file.key()],
                         qUtf8Printable(file.key()));
                changed += now[file.key()] != *file;
            }
            if (changed > 0 && changed < Files) {
                ++brokenOff;
                QVERIFY(run("runs").out.contains("broken off, files: 200"));
            }
            const bool isRun = !run("runs").out.isEmpty();
            QVERIFY(isRun || changed == 0);
            if (isRun && i % 2 == 0) {
                QCOMPARE(run("runs --finish").exitCode, 0);
                QVERIFY(withoutRests() == after);
            }
            if (isRun) {
                QCOMPARE(run("runs --undo").exitCode, 0);
                QCOMPARE(run("runs --forget").exitCode, 0);
            }
            QVERIFY(withoutRests() == before);
        }
        QVERIFY(brokenOff > 0);
    }

private:
    ToolRun run(const QString &verb, const QStringList &words = {}) const
    {
        return ToolRun(verb, words, m_environment);
    }

    QHash<QString, QByteArray> contents() const
    {
        QHash<QString, QByteArray> all;
        QDirIterator walk(m_folder->path("mod"), QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString file = walk.next();
            all[file] = TestSupport::readFile(file);
        }
        return all;
    }

    /// Without what a killed save has left beside a file.
    QHash<QString, QByteArray> withoutRests() const
    {
        QHash<QString, QByteArray> all = contents();
        for (const QString &file : all.keys()) {
            if (!file.endsWith(QLatin1String(".skinnedmesh"))) {
                QFile::remove(file);
                all.remove(file);
            }
        }
        return all;
    }

    std::optional<TestFolder> m_folder;
    QProcessEnvironment m_environment;
};

QTEST_GUILESS_MAIN(tst_ToolReplace)
#include "tst_toolreplace.moc"
