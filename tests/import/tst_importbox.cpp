// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportWorker.h"
#include "Log.h"
#include "TestSupport.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

/// Whatever a file makes of the process that reads it, that process does no harm.
class tst_importbox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_model = m_models.put("model/m.obj", "v 0 0 0\n");
        qputenv("KORVANE_OUTSIDE", m_models.path("outside").toUtf8());
        // One that no library thought of closing.
        const int left = open(m_model.toUtf8().constData(), O_RDONLY);
        qputenv("KORVANE_OPEN", QByteArray::number(fcntl(left, F_DUPFD, 100)));
        m_confined = acts("");
    }

    void acts_data()
    {
        QTest::addColumn<QString>("layer"); ///< what refuses it; nothing does where there is none
        QTest::addColumn<QList<int>>("errors");
        const auto rows = [](const char *layer, const QList<int> &errors, const QStringList &names) {
            for (const QString &name : names)
                QTest::newRow(qPrintable(name)) << QString::fromLatin1(layer) << errors;
        };
        rows("", {0},
             {"read the model", "read a library", "write into its folder", "rename in its folder",
              "start a thread", "raise a signal"});
        rows("Landlock", {EACCES, EXDEV},
             {"read a file outside", "write a file outside", "make a file outside", "list a folder outside",
              "remove a file outside", "move a file outside", "link a file outside", "leave a link",
              "change the model", "read another process"});
        rows("seccomp", {EPERM},
             {"empty a file outside",
              "empty the model",
              "leave a pipe",
              "cut a file outside",
              "open a file outside to all",
              "change the time of a file outside",
              "read another's memory",
              "connect to a port",
              "make a pair of sockets",
              "start a process",
              "start a program",
              "signal another process",
              "signal all of a group",
              "have another signalled",
              "outlive the editor",
              "type into the terminal",
              "set a limit",
              "hide a file in memory",
              "trace another process",
              "use io_uring",
              "mount",
              "make a namespace",
              "load a filter program"});
        rows("closed", {EBADF}, {"use a file of the editor's"});
        rows("limit", {EFBIG}, {"write a file of 2 GiB"});
#ifdef KORVANE_LIMITS_MEMORY
        rows("limit", {ENOMEM}, {"take 8 GiB of memory"});
#endif
    }

    void acts()
    {
        QFETCH(QString, layer);
        QFETCH(QList<int>, errors);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        if (!layer.isEmpty() && m_lacking.contains(layer))
            QSKIP(qPrintable(QStringLiteral("This kernel offers no %1.").arg(layer)));
        QVERIFY2(m_confined.contains(name), "The worker ended before, or does not know it.");
        const int error = m_confined.value(name);
        QVERIFY2(errors.contains(error), strerror(error));
    }

    // Else the rows above would prove nothing: nobody else refuses what any process may do.
    void unconfined()
    {
        const QHash<QString, int> free = acts("unconfined");
        for (const char *name : {"read a file outside",
                                 "write a file outside",
                                 "make a file outside",
                                 "list a folder outside",
                                 "remove a file outside",
                                 "move a file outside",
                                 "link a file outside",
                                 "leave a link",
                                 "leave a pipe",
                                 "change the model",
                                 "cut a file outside",
                                 "open a file outside to all",
                                 "change the time of a file outside",
                                 "read another process",
                                 "use a file of the editor's",
                                 "make a pair of sockets",
                                 "start a process",
                                 "signal another process",
                                 "signal all of a group",
                                 "have another signalled",
                                 "outlive the editor",
                                 "set a limit",
                                 "hide a file in memory",
                                 "write a file of 2 GiB",
                                 "take 8 GiB of memory"})
            QVERIFY2(free.value(QString::fromLatin1(name), -1) == 0, name);
        QCOMPARE(free.value(QStringLiteral("start a program")), ENOENT);
        QCOMPARE(free.value(QStringLiteral("connect to a port")), ECONNREFUSED);
    }

    // There, all that the user has lies below the model's folder.
    void modelInHome()
    {
        if (m_lacking.contains(QLatin1String("Landlock")))
            QSKIP("This kernel offers no Landlock.");
        const QByteArray home = qgetenv("HOME");
        const QString model = std::exchange(m_model, m_models.put("m.obj", "v 0 0 0\n"));
        qputenv("HOME", QFileInfo(m_model).path().toUtf8());
        const QHash<QString, int> errors = acts("");
        qputenv("HOME", home);
        m_model = model;
        QCOMPARE(errors.value(QStringLiteral("read the model"), -1), 0);
        QCOMPARE(errors.value(QStringLiteral("read a file outside")), EACCES);
        QCOMPARE(errors.value(QStringLiteral("list a folder outside")), EACCES);
    }

    void whatTheEditorRefuses()
    {
        for (const auto &[wish, reason] : {std::pair{"fill the disk", "It wrote more than any model needs."},
                                           std::pair{"have a file copied", "gave no answer."}}) {
            const QString error = run(wish).value(0).text;
            QVERIFY2(error.endsWith(QLatin1String(reason)), qPrintable(error));
        }
    }

    void lackIsToldOnce()
    {
        QStringList told;
        Log::setSink([&told](LogSeverity, const QString &text) { told += text; });
        run("lack something");
        run("lack something");
        Log::setSink({});
        QCOMPARE(told.size(), 1);
        QVERIFY2(told[0].endsWith(QLatin1String("without Landlock, seccomp.")), qPrintable(told[0]));
    }

private:
    QVector<ImportMessage> run(const char *wish)
    {
        qputenv("KORVANE_HOSTILE", wish);
        m_models.put("outside/secret", "secret");
        m_models.put("outside/spare", "spare");
        ImportWorker worker;
        worker.setProgram(QStringLiteral(KORVANE_HOSTILE));
        QSignalSpy finished(&worker, &ImportWorker::finished);
        WorkerJob job;
        job.modelPath = m_model;
        worker.start(job);
        return finished.wait(60000) ? worker.messages().lines : QVector<ImportMessage>();
    }

    /// Error numbers by act.
    QHash<QString, int> acts(const char *wish)
    {
        QHash<QString, int> errors;
        const QVector<ImportMessage> lines = run(wish);
        for (const ImportMessage &line : lines) {
            const QStringList parts = line.text.split(QStringLiteral(": "));
            if (parts.size() == 2)
                errors.insert(parts[0], parts[1].toInt());
            else
                m_lacking = line.text;
        }
        return errors;
    }

    TestFolder m_models;
    QString m_model;
    QString m_lacking;
    QHash<QString, int> m_confined;
};

QTEST_GUILESS_MAIN(tst_importbox)
#include "tst_importbox.moc"
