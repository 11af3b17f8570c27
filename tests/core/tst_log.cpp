// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"

#include <QtTest>

class TestLog : public QObject
{
    Q_OBJECT

private slots:
    void sinkReceivesSeverityAndText();
    void withoutSinkTheDebugOutputGetsTheText();
};

void TestLog::sinkReceivesSeverityAndText()
{
    QVector<QPair<int, QString>> rows;
    Log::setSink([&rows](LogSeverity severity, const QString &text) { rows.append({int(severity), text}); });
    Log::error(QStringLiteral("broken %1"));
    Log::warning(QString());
    Log::info(QStringLiteral("grüße\nzwei"));
    Log::setSink({});
    Log::info(QStringLiteral("after the sink went"));

    const QVector<QPair<int, QString>> expected{
        {0, QStringLiteral("broken %1")}, {1, QString()}, {2, QStringLiteral("grüße\nzwei")}};
    QCOMPARE(rows, expected);
}

void TestLog::withoutSinkTheDebugOutputGetsTheText()
{
    Log::setSink({});
    QTest::ignoreMessage(QtDebugMsg, "a \"quoted\" line");
    Log::warning(QStringLiteral("a \"quoted\" line"));
}

QTEST_GUILESS_MAIN(TestLog)
#include "tst_log.moc"
