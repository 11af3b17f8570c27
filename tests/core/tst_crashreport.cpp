// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TestSupport.h"

#include <csignal>

class TestCrashReport : public QObject
{
    Q_OBJECT

private slots:
    void aFatalSignalIsWrittenDown_data();
    void aFatalSignalIsWrittenDown();
};

void TestCrashReport::aFatalSignalIsWrittenDown_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("text");
    QTest::newRow("memory") << "memory" << SIGSEGV << "SIGSEGV, a wrong memory access at 0x1234\n";
    QTest::newRow("stack overflow") << "overflow" << SIGSEGV << "SIGSEGV";
    QTest::newRow("abort") << "abort" << SIGABRT << "SIGABRT, given up\n";
    for (const int number : {SIGBUS, SIGFPE, SIGILL})
        QTest::newRow(strsignal(number)) << QString::number(number) << number << "Ended by SIG";
}

void TestCrashReport::aFatalSignalIsWrittenDown()
{
    if (KORVANE_CRASH_REPORTS == 0)
        QSKIP("the sanitizer reports crashes here");
    QFETCH(QString, way);
    QFETCH(int, signal);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("crash.txt"));
    QProcess crash;
    crash.start(QStringLiteral(KORVANE_CRASH), {path, way});
    QVERIFY(crash.waitForFinished());
    // The program still ends by the signal, for whoever started it.
    QCOMPARE(crash.exitStatus(), QProcess::CrashExit);
    QCOMPARE(crash.exitCode(), signal);

    const QString report = QString::fromUtf8(TestSupport::readFile(path));
    QVERIFY2(report.startsWith(QStringLiteral("Korvane 1.2.3, Qt %1,").arg(QLatin1String(qVersion()))),
             qPrintable(report));
    for (const QString &part : {text, QStringLiteral("Graphics: a painter\n"), QStringLiteral("[0x"),
                                QStringLiteral("\nline 999 xxx")})
        QVERIFY2(report.contains(part), qPrintable(report));
    QVERIFY(!report.contains(QStringLiteral("\nline 959 ")));
    QVERIFY(report.contains(QStringLiteral("\nline 960 ")));
    QVERIFY(report.size() < 64 * 1024);
}

QTEST_GUILESS_MAIN(TestCrashReport)
#include "tst_crashreport.moc"
