// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSystem.h"
#include "FolderLock.h"
#include "ImportFlags.h"
#include "ImportWorker.h"
#include "SpecialFiles.h"
#include "TestSupport.h"

#include <QImage>

#include <cmath>

namespace {
WorkerJob importJob(const QString &path, bool skinned)
{
    WorkerJob job;
    job.task = skinned ? WorkerJob::Task::ImportSkinnedMesh : WorkerJob::Task::ImportStaticMesh;
    job.modelPath = path;
    job.kmatPath = QStringLiteral("materials/mat_x.kmat");
    job.flags = (skinned ? ImportFlags::SkinnedMesh : ImportFlags::StaticMesh) | ImportFlags::GenerateNormals;
    job.meshVersion = 7;
    return job;
}

QString errorsOf(const ImportMessages &messages)
{
    QStringList texts;
    for (const ImportMessage &line : messages.lines) {
        if (line.severity == LogSeverity::Error)
            texts += line.text;
    }
    return texts.join(QLatin1Char('\n'));
}

template <typename Mesh>
bool isWhole(const Mesh &mesh)
{
    for (const auto &surface : mesh.surfaces) {
        for (const quint16 index : surface.triangleIndexes) {
            if (index >= mesh.vertices.size())
                return false;
        }
    }
    return mesh.version == 7 && !mesh.vertices.empty() && mesh.refusal().isEmpty();
}
} // namespace

/// Whatever a file does to the worker, the editor gets an answer and no temporary file stays.
class tst_importworker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // By the names that systems have for it.
        for (const char *name : {"TMPDIR", "TEMP", "TMP"})
            qputenv(name, QDir::toNativeSeparators(m_temporary.path()).toUtf8());
        // The worker may end in any way; what the library leaves behind then is no leak of ours.
        qputenv("ASAN_OPTIONS",
                "detect_leaks=0:allocator_may_return_null=1:max_allocation_size_mb=4096:symbolize=0");
    }

    void cleanup()
    {
        // The last folder goes in another thread.
        QTRY_COMPARE(QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                     QStringList());
    }

    void everyRealFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isGood");
        QTest::addColumn<QString>("reading"); ///< how the reading library fares on its own
        const QString folder = TestSupport::shared(QString("models"));
        const QList<QByteArray> rows = TestSupport::readFile(folder + QString("/index.tsv")).split('\n');
        const QList<QByteArray> columns = rows.value(0).split('\t');
        for (int row = 1; row < rows.size(); ++row) {
            const QList<QByteArray> cells = rows[row].split('\t');
            const auto cell = [&cells, &columns](const char *name) {
                return cells.value(columns.indexOf(name));
            };
            if (cells.size() > 1) {
                QTest::newRow(cell("path"))
                    << folder + QLatin1Char('/') + QString::fromUtf8(cell("path"))
                    << (cell("class") == "core") << QString::fromUtf8(cell("assimp_info_status"));
            }
        }
        if (folder.isEmpty())
            QTest::newRow("none") << QString() << false << QString();
    }

    void everyRealFile()
    {
        SKIP_WITHOUT_SHARED("models");
        QFETCH(QString, path);
        QFETCH(bool, isGood);
        QFETCH(QString, reading);
        const bool hangs = reading.startsWith(QLatin1String("HANG"));
        {
            WorkerJob look = importJob(path, true);
            look.task = WorkerJob::Task::Summarize;
            ImportWorker worker;
            worker.setTimeLimit(hangs ? 2000 : 50000);
            run(worker, look);
            const QString errors = errorsOf(worker.messages());
            QVERIFY2(!isGood || errors.isEmpty(), qPrintable(errors));
            QVERIFY2(errors.isEmpty() || errors.startsWith(path), qPrintable(errors));
            QCOMPARE(errors.isEmpty(), worker.summary().triangles > 0);
        }
        using Task = WorkerJob::Task;
        for (const Task task : {Task::ImportSkinnedMesh, Task::ImportStaticMesh, Task::ImportReadySkinnedMesh,
                                Task::ImportReadyStaticMesh}) {
            const bool isReady = task == Task::ImportReadySkinnedMesh || task == Task::ImportReadyStaticMesh;
            const bool skinned = task == Task::ImportSkinnedMesh || task == Task::ImportReadySkinnedMesh;
            ImportWorker worker;
            worker.setTimeLimit(hangs ? 2000 : 50000);
            WorkerJob job = importJob(path, skinned);
            job.task = task;
            run(worker, job);
            const QString errors = errorsOf(worker.messages());
            if (hangs)
                QVERIFY2(errors.contains(QLatin1String("longer than 2 s.")), qPrintable(errors));
            // Where memory lies otherwise, a file may be refused that else kills the process.
            if (reading.startsWith(QLatin1String("CRASH")))
                QVERIFY(worker.messages().hasError());
            SkinnedMesh skin;
            AnimFile anim;
            StaticMesh rigid;
            const bool unreadable = skinned ? worker.read(skin, anim) : worker.read(rigid);
            QCOMPARE(unreadable, worker.messages().hasError());
            if (unreadable) {
                // Good models fail for what they hold: too many vertices, or two nodes of one name.
                QVERIFY2(
                    !isGood || errors.contains(QLatin1String("can hold no more than")) ||
                        (task == Task::ImportSkinnedMesh && errors.contains(QLatin1String("already exists"))),
                    qPrintable(errors));
                QVERIFY2(!isReady || errors.contains(QFileInfo(path).fileName()), qPrintable(errors));
                continue;
            }
            QVERIFY(skinned ? isWhole(skin) : isWhole(rigid));
            for (const SkinnedMeshVertex &vertex : skin.vertices) {
                QVERIFY(vertex.nodeIndex < skin.nodes.size());
                QVERIFY(!isReady ||
                        std::isfinite(vertex.position.lengthSquared() + vertex.normal.lengthSquared()));
            }
            for (const AnimBlock &block : anim.blocks)
                QCOMPARE(block.nodes.size(), skin.nodes.size());
        }
    }

    void workerFails()
    {
        struct Case
        {
            QString program;
            QByteArray status;
            QString reason;
        };
        const QString idle = QStringLiteral(KORVANE_IDLE);
        for (const auto &[program, status, reason] :
             {Case{m_models.path("none"), "0", "none' could not be started"},
              {idle, "0", "gave no answer."},
              {idle, "1", "gave no answer."},
              {idle, "3", "crashed on it."}}) {
            qputenv("KORVANE_IDLE_STATUS", status);
            ImportWorker worker;
            worker.setProgram(program);
            qunsetenv("KORVANE_IDLE_STATUS");
            const QString path = QFileInfo(QStringLiteral("/a%1/b.obj")).absoluteFilePath(); // with a drive
            run(worker, importJob(path, false));
            const QString error = errorsOf(worker.messages());
            QVERIFY2(error.startsWith(path + QStringLiteral(" Could not read file. ")), qPrintable(error));
            QVERIFY2(error.contains(reason), qPrintable(error));
            cleanup();
        }
    }

    void cancel()
    {
        {
            ImportWorker worker;
            worker.setProgram(QStringLiteral(KORVANE_IDLE));
            QSignalSpy finished(&worker, &ImportWorker::finished);
            worker.start(importJob(QStringLiteral("a.obj"), true));
            QVERIFY(worker.isRunning());
            worker.cancel();
            QTRY_COMPARE(finished.count(), 1);
            QVERIFY(errorsOf(worker.messages()).endsWith(QLatin1String("It was cancelled.")));
        }
        // One that goes while its process runs takes everything with it; cleanup() looks.
        ImportWorker abandoned;
        abandoned.setProgram(QStringLiteral(KORVANE_IDLE));
        abandoned.start(importJob(QStringLiteral("a.obj"), true));
    }

    void awkwardPath()
    {
        const QString path = m_models.put(QStringLiteral("m\u00f6d %1 \u2603/a %2 \u00e9.obj"),
                                          "v 0 0 0\nv 1.5 0 0\nv 0 1 0\nvt 0.25 0\nf 1/1 2/1 3/1\n");
        ImportWorker worker;
        run(worker, importJob(path, false));
        StaticMesh mesh;
        QVERIFY2(!worker.read(mesh), qPrintable(errorsOf(worker.messages())));
        QCOMPARE(mesh.bbMax, QVector3D(1.5f, 1.0f, 0.0f));
        QCOMPARE(mesh.vertices.at(0).uv.x(), 0.25f);
        QCOMPARE(worker.messages().lines.at(0).text,
                 path + QStringLiteral(" Material 0 does not have any Diffuse textures"));
    }

    // The process may open what lies beside the model; of the rest, it gets the pictures that the model
    // names.
    void texturesElsewhere()
    {
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(QDir().mkpath(m_models.path("parent/skins")) && QDir().mkpath(m_models.path("far")));
        QVERIFY(picture.save(m_models.path("parent/skins/Up.bmp")) &&
                picture.save(m_models.path("far/away.png")));
        m_models.put("far/secret.png", "no picture");
        const QByteArray away = m_models.path("far/away.png").toUtf8();
        m_models.put("parent/models/m.mtl",
                     "newmtl a\nKd 1 1 1\nmap_Kd ../skins/up.BMP\nnewmtl b\nKd 1 1 1\nmap_Kd " + away +
                         "\nnewmtl c\nKd 1 1 1\nmap_Kd ../../far/secret.png\n");
        QByteArray obj = "mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\n";
        for (const char *material : {"a", "b", "c"})
            obj += QByteArray("usemtl ") + material + "\nf 1/1 2/1 3/1\n";
        WorkerJob job = importJob(m_models.put("parent/models/m.obj", obj), false);
        job.task = WorkerJob::Task::ImportReadyStaticMesh;
        ImportWorker worker;
        run(worker, job);
        StaticMesh mesh;
        QVERIFY2(!worker.read(mesh), qPrintable(errorsOf(worker.messages())));
        QCOMPARE(worker.textures().size(), 2);
        QVERIFY2(worker.textures().contains(m_models.path("far/away.png")),
                 qPrintable(worker.textures().join(' ')));
        // Where letters' case makes no other file, it is the one that the model names.
        QCOMPARE(FileSystem::comparable(QFileInfo(worker.textures().at(0)).fileName()),
                 FileSystem::comparable(QStringLiteral("Up.png")));
        QVERIFY(QFile::exists(worker.textures().at(0)));

        job.task = WorkerJob::Task::Summarize;
        run(worker, job);
        QCOMPARE(worker.summary().textures.size(), size_t(3));
        QCOMPARE(FileSystem::comparable(worker.summary().textures.at(0).file),
                 FileSystem::comparable(m_models.path("parent/skins/Up.bmp")));
    }

    void noRegularFiles()
    {
        m_models.put("folder.obj/inside", "");
        for (const QString &path :
             {m_models.path("folder.obj"), SpecialFiles::pipe(m_models.path("pipe.obj"))}) {
            ImportWorker worker;
            worker.setTimeLimit(20000);
            run(worker, importJob(path, false));
            const QString error = errorsOf(worker.messages());
            QVERIFY2(!error.isEmpty() && !error.contains(QLatin1String("longer than")), qPrintable(error));
        }
        // Nor is what a model names beside itself waited for.
        SpecialFiles::pipe(m_models.path("m.mtl2"));
        ImportWorker worker;
        worker.setTimeLimit(20000);
        run(worker,
            importJob(m_models.put("n.obj", "mtllib m.mtl2\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"), false));
        QCOMPARE(errorsOf(worker.messages()), QString());
    }

    void equalWarningsAreOne()
    {
        m_models.put("m.mtl", "newmtl a\nKd 1 0 0\nnewmtl b\nKd 0 1 0\nnewmtl c\nKd 0 0 1\n");
        QByteArray obj = "mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nv nan 0 0\n";
        for (const char *material : {"a", "b", "c"})
            obj += QByteArray("usemtl ") + material + "\nf 1 2 3\nf 1 2 4\n";
        const QString path = m_models.put("m.obj", obj);
        ImportWorker worker;
        run(worker, importJob(path, true));
        QStringList warnings;
        for (const ImportMessage &line : worker.messages().lines) {
            if (line.severity == LogSeverity::Warning)
                warnings << QString(line.text).remove(path + ' ');
        }
        QCOMPARE(warnings,
                 QStringList({"Material 0 does not have any Diffuse textures (and 2 more like this)",
                              "Mesh 0 does not contain any UVs (and 2 more like this)",
                              "3 vertices have a position, normal or UV that is no number"}));
    }

    // Only folders of ours that no process holds, and none that may just have been made.
    void foldersOfKilledEditorsGo()
    {
        const auto makeFolder = [this](const QString &name, bool old) {
            const QString path = m_temporary.filePath(name);
            if (!QDir().mkpath(path + QString("/sub")) || !TestSupport::writeFile(path + "/sub/model", "x"))
                qFatal("no folder to leave behind");
            if (old && !SpecialFiles::makeOld(path, 3600))
                qFatal("no time to set");
            return path;
        };
        const QString outside = makeFolder(QStringLiteral("outside"), true);
        const QString used = makeFolder(QStringLiteral("korvane-import-used"), false);
        auto lock = std::make_unique<FolderLock>(used + QStringLiteral("/lock"));
        makeFolder(QStringLiteral("korvane-import-used"), true);
        makeFolder(QStringLiteral("korvane-import-young"), false);
        makeFolder(QStringLiteral("korvane-import-old"), true);
        const QString link = QStringLiteral("korvane-import-link");
        const bool isLinked = SpecialFiles::link(outside, m_temporary.filePath(link));
        const auto left = [this] {
            return QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
        };
        TemporaryFolder::removeAbandoned();
        QStringList spared{QStringLiteral("korvane-import-used"), QStringLiteral("korvane-import-young"),
                           QStringLiteral("outside")};
        if (isLinked)
            spared.prepend(link);
        QCOMPARE(left(), spared);
        QVERIFY(QFile::exists(outside + QStringLiteral("/sub/model")));
        lock.reset();
        TemporaryFolder::removeAbandoned();
        QVERIFY(!QFile::exists(used));
        for (const QString &name : left())
            QVERIFY(QFile::remove(m_temporary.filePath(name)) ||
                    QDir(m_temporary.filePath(name)).removeRecursively());
    }

private:
    void run(ImportWorker &worker, const WorkerJob &job)
    {
        QSignalSpy finished(&worker, &ImportWorker::finished);
        worker.start(job);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 60000);
        QVERIFY(!worker.isRunning());
    }

    QTemporaryDir m_temporary; ///< stands for the system's folder of temporary files
    TestFolder m_models;
};

QTEST_GUILESS_MAIN(tst_importworker)
#include "tst_importworker.moc"
