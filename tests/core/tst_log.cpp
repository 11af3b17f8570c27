// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"

#include <QtTest>

class TestLog : public QObject
{
    Q_OBJECT

private slots:
    void goesToTheSinkOrTheDebugOutput();
};

void TestLog::goesToTheSinkOrTheDebugOutput()
{
    QVector<QPair<int, QString>> rows;
    Log::setSink([&rows](LogSeverity severity, const QString &text) { rows.append({int(severity), text}); });
    Log::error(QStringLiteral("broken %1"));
    Log::warning(QString());
    Log::info(QStringLiteral("grüße\nzwei"));
    Log::setSink({});
    QTest::ignoreMessage(QtDebugMsg, "a \"quoted\" line");
    Log::info(QStringLiteral("a \"quoted\" line"));
    const QVector<QPair<int, QString>> expected{
        {0, QStringLiteral("broken %1")}, {1, QString()}, {2, QStringLiteral("grüße\nzwei")}};
    QCOMPARE(rows, expected);
}

QTEST_GUILESS_MAIN(TestLog)
#include "tst_log.moc"
