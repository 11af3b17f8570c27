// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashEnds.h"
#include "TestSupport.h"

class TestCrashReport : public QObject
{
    Q_OBJECT

private slots:
    void aFatalSignalIsWrittenDown()
    {
        if (KORVANE_CRASH_REPORTS == 0)
            QSKIP("the sanitizer reports crashes here");
        for (const CrashEnd &end : CrashEnds) {
            const TestFolder folder;
            QProcess crash;
            crash.start(QStringLiteral(KORVANE_CRASH), {folder.path("crash.txt"), end.way});
            QVERIFY(crash.waitForFinished());
            // The program still ends as it would without, for whoever started it.
            QCOMPARE(crash.exitStatus(), end.status);
            QCOMPARE(crash.exitCode(), end.code);

            QString report = QString::fromUtf8(TestSupport::readFile(folder.path("crash.txt")));
            report.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
            for (const QString &part :
                 {QStringLiteral("Korvane 1.2.3, Qt ") + qVersion(), end.text,
                  QStringLiteral("Graphics: a painter\n"), QString(FrameMark), QStringLiteral("\nline 961 "),
                  QStringLiteral("\nline 999 xxx"), QStringLiteral("\nthe same (3 times)\n")})
                QVERIFY2(report.contains(part), qPrintable(report));
            QVERIFY(!report.contains(QStringLiteral("\nline 960 ")));
            QVERIFY(report.size() < 64 * 1024);
        }
    }

    void whoDoesNotEndWhenAskedIsEnded()
    {
        for (const int number : EndRequests) {
            QProcess stuck;
            stuck.start(QStringLiteral(KORVANE_CRASH), {QString(), "stuck"});
            QVERIFY(stuck.waitForReadyRead());
            sendSignal(stuck.processId(), number);
            QVERIFY(stuck.waitForFinished());
            QCOMPARE(stuck.exitCode(), EndOfTheStuck);
        }
    }
};

QTEST_GUILESS_MAIN(TestCrashReport)
#include "tst_crashreport.moc"
