// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TestSupport.h"

#include <csignal>

class TestCrashReport : public QObject
{
    Q_OBJECT

private slots:
    void aFatalSignalIsWrittenDown()
    {
        if (KORVANE_CRASH_REPORTS == 0)
            QSKIP("the sanitizer reports crashes here");
        const auto check = [](const QString &way, int signal, const QString &text) {
            const TestFolder folder;
            QProcess crash;
            crash.start(QStringLiteral(KORVANE_CRASH), {folder.path("crash.txt"), way});
            QVERIFY(crash.waitForFinished());
            // The program still ends by the signal, for whoever started it.
            QCOMPARE(crash.exitStatus(), QProcess::CrashExit);
            QCOMPARE(crash.exitCode(), signal);

            const QString report = QString::fromUtf8(TestSupport::readFile(folder.path("crash.txt")));
            for (const QString &part : {QStringLiteral("Korvane 1.2.3, Qt ") + qVersion(), text,
                                        QStringLiteral("Graphics: a painter\n"), QStringLiteral("[0x"),
                                        QStringLiteral("\nline 961 "), QStringLiteral("\nline 999 xxx"),
                                        QStringLiteral("\nthe same (3 times)\n")})
                QVERIFY2(report.contains(part), qPrintable(report));
            QVERIFY(!report.contains(QStringLiteral("\nline 960 ")));
            QVERIFY(report.size() < 64 * 1024);
        };
        check("memory", SIGSEGV, "SIGSEGV, a wrong memory access at 0x1234\n");
        check("overflow", SIGSEGV, "SIGSEGV");
        check("abort", SIGABRT, "SIGABRT, given up\n");
        for (const int number : {SIGBUS, SIGFPE, SIGILL})
            check(QString::number(number), number, "Ended by SIG");
    }

    void whoDoesNotEndWhenAskedIsEnded()
    {
        for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
            QProcess stuck;
            stuck.start(QStringLiteral(KORVANE_CRASH), {QString(), "stuck"});
            QVERIFY(stuck.waitForReadyRead());
            kill(pid_t(stuck.processId()), number);
            QVERIFY(stuck.waitForFinished());
            QCOMPARE(stuck.exitCode(), SIGALRM);
        }
    }
};

QTEST_GUILESS_MAIN(TestCrashReport)
#include "tst_crashreport.moc"
