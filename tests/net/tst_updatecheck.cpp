// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateCheck.h"

#include "LocalServers.h"
#include "Settings.h"
#include "TestSupport.h"

#include <QNetworkProxyFactory>

/// The update check of version 0.9.2 against a web server on this machine.
class tst_UpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QNetworkProxyFactory::setUseSystemConfiguration(false); }
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        QCoreApplication::setApplicationVersion(QStringLiteral("0.9.2"));
        m_web = std::make_unique<LocalWeb>();
        Settings::UpdateUrl.setValue(m_web->address());
    }

    void offers()
    {
        const QByteArray link = "https://a/b";
        const QStringList nothing("up to date");
        const std::vector<std::pair<QByteArray, QStringList>> toldOfDocuments{
            {releaseDocument("0.9.10", link), {"0.9.10", "News", "https://a/b"}},
            {releaseDocument("1", "file:///etc", "<b>a</b>\n%1"), {"1", "<b>a</b> %1", "file:///etc"}},
            {releaseDocument("0.9.2", link), nothing},
            {releaseDocument("1", ""), nothing},
            {releaseDocument("", link), nothing},
            {QByteArray(), nothing},
            {QByteArray("!start!\n\xff\xfe\x00version\n\xc3\n", 20), nothing},
        };
        for (const auto &[body, told] : toldOfDocuments) {
            m_web->serve(body);
            UpdateCheck check;
            QCOMPARE(run(check, true), told);
        }
        QCOMPARE(m_web->requests.size(), int(toldOfDocuments.size()));
    }

    void onlyAManualCheckTellsThatNothingIsNew()
    {
        UpdateCheck check;
        m_web->serve(releaseDocument("0.9.2", "https://a"));
        QCOMPARE(run(check, false), QStringList());
        m_web->serve(releaseDocument("0.9.3", "https://a"));
        QCOMPARE(run(check, false).value(0), QStringLiteral("0.9.3"));
        m_web->answer =
            "HTTP/1.1 404 Not Found\r\nConnection: close\r\n\r\n" + releaseDocument("1", "https://a");
        QCOMPARE(run(check, false), QStringList());
        QCOMPARE(run(check, true), QStringList("up to date"));
        m_web->close();
        QCOMPARE(run(check, true), QStringList("up to date"));
    }

    void sendsOneRequestAtATime()
    {
        UpdateCheck check;
        QSignalSpy upToDate(&check, &UpdateCheck::upToDate);
        check.DoUpdateCheck(false);
        QTRY_COMPARE(m_web->requests.size(), 1); // which is not answered yet
        check.DoUpdateCheck(true);               // makes the running check manual
        check.DoUpdateCheck(true);
        m_web->serve("");
        m_web->findChild<QTcpSocket *>()->write(m_web->answer);
        QVERIFY(upToDate.wait());
        QCOMPARE(m_web->requests.size(), 1);
        check.DoUpdateCheck(true);
        QVERIFY(upToDate.wait());
        QCOMPARE(upToDate.size(), 2);
        QCOMPARE(m_web->requests.size(), 2);
    }

    void saysNothingOfTheUser()
    {
        m_web->answer =
            "HTTP/1.1 200 OK\r\nSet-Cookie: id=7\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
        UpdateCheck check;
        run(check, true);
        run(check, true);
        QCOMPARE(m_web->requests.size(), 2);
        QStringList lines;
        for (const QByteArray &line : m_web->requests.last().trimmed().split('\n'))
            lines.append(QString::fromLatin1(line.trimmed().split(':').first()));
        lines.sort();
        QCOMPARE(lines, QStringList({"Accept-Encoding", "Accept-Language", "Cache-Control", "Connection",
                                     "GET /release.txt HTTP/1.1", "Host", "Pragma", "User-Agent"}));
        QVERIFY(m_web->requests.last().contains("Accept-Language: *\r\n"));
        QVERIFY(m_web->requests.last().contains("User-Agent: Mozilla/5.0\r\n"));
    }

    void readsNoMoreThanTheLimit()
    {
        const int limit = UpdateCheck::maximumBytes;
        const QByteArray rest(10 * 1024 * 1024, 'x');
        UpdateCheck check;
        m_web->serve(releaseDocument("1", "https://a") + rest);
        QCOMPARE(run(check, true).value(0), QStringLiteral("1"));
        // A line that the limit cuts through is none: half a link leads elsewhere.
        const QByteArray padding(limit - 40, 'x');
        m_web->serve("!start!\n" + padding + "\nversion\n1\nlink\nhttps://a/" + rest);
        QCOMPARE(run(check, true), QStringList("up to date"));
        // One that fits exactly is whole.
        QByteArray exact = releaseDocument("1", "https://a");
        exact.append(QByteArray(limit - exact.size(), '\n'));
        m_web->serve(exact);
        QCOMPARE(run(check, true).value(0), QStringLiteral("1"));
    }

    void followsRedirects()
    {
        LocalWeb second;
        second.serve(releaseDocument("1", "https://a"));
        // On this machine, elsewhere in plain text, in a circle.
        for (const QString &target : {second.address("/x"), QString("http://192.0.2.1/"), m_web->address()}) {
            const bool followed = target == second.address("/x");
            second.requests.clear();
            m_web->requests.clear();
            m_web->redirect(target);
            UpdateCheck check;
            check.setTimeLimit(3000);
            QCOMPARE(run(check, true).value(0), followed ? QString("1") : QString("up to date"));
            QCOMPARE(second.requests.size(), followed ? 1 : 0);
            QCOMPARE(m_web->requests.size(), target == m_web->address() ? 6 : 1);
        }
    }

    void asksOnlyWhereItMay()
    {
        const QUrl local("http://localhost");
        const QUrl secure("https://a");
        const QUrl https("https://paste.example/raw/1");
        QVERIFY(isReleaseAddress(https) && isReleaseRedirect(local, https) &&
                isReleaseRedirect(secure, https));
        for (const char *address : {"http://127.0.0.1:80/", "http://[::1]/"}) {
            const QUrl url(address);
            QVERIFY2(isReleaseAddress(url) && isReleaseRedirect(local, url), address);
            QVERIFY2(!isReleaseRedirect(secure, url), address);
        }
        UpdateCheck check;
        for (const char *address : {"http://paste.example/", "http://127.0.0.1.example/",
                                    "http://localhost@example/", "file:///etc/passwd", "https:///x", ""}) {
            const QUrl url(address);
            QVERIFY2(!isReleaseAddress(url) && !isReleaseRedirect(local, url), address);
            QVERIFY2(!isReleaseRedirect(secure, url), address);
            Settings::UpdateUrl.setValue(address);
            QCOMPARE(run(check, false), QStringList());
            QCOMPARE(run(check, true), QStringList("up to date"));
            QVERIFY2(!Settings::UpdateDate.exists(), address); // nothing was sent
        }
    }

    void oncePerDay()
    {
        const QDateTime now({2026, 3, 10}, {12, 0});
        const std::pair<QDateTime, bool> dueAfter[] = {{QDateTime(), true},
                                                       {now.addDays(-1), true},
                                                       {now.addDays(-1).addSecs(1), false},
                                                       {now, false},
                                                       {now.addSecs(1), true}};
        for (const auto &[last, due] : dueAfter) {
            init();
            if (last.isValid())
                Settings::UpdateDate.setValue(last);
            UpdateCheck check;
            check.setClock([now] { return now; });

            Settings::Updates.setValue(false);
            check.checkIfDue();
            QCOMPARE(Settings::UpdateDate.value(), last);
            Settings::Updates.setValue(true);
            m_web->close(); // a request that fails was sent all the same
            check.checkIfDue();
            QCOMPARE(Settings::UpdateDate.value(), due ? now : last);
            QCOMPARE(check.isRunning(), due);
            QTRY_VERIFY(!check.isRunning());
            check.checkIfDue();
            QVERIFY(!check.isRunning());

            check.setClock([now] { return now.addSecs(60); });
            check.DoUpdateCheck(true); // whenever the user wants
            QCOMPARE(Settings::UpdateDate.value(), now.addSecs(60));
        }
    }

    void unanswered()
    {
        UpdateCheck impatient;
        impatient.setTimeLimit(50);
        QCOMPARE(run(impatient, true), QStringList("up to date"));
        QTRY_COMPARE(m_web->requests.size(), 1);

        // A check goes with its owner.
        m_web = std::make_unique<LocalWeb>();
        Settings::UpdateUrl.setValue(m_web->address());
        auto owner = std::make_unique<QObject>();
        auto *check = new UpdateCheck(owner.get());
        bool told = false;
        connect(check, &UpdateCheck::upToDate, this, [&told] { told = true; });
        check->DoUpdateCheck(true);
        QTRY_COMPARE(m_web->requests.size(), 1);
        owner.reset();
        QTRY_COMPARE(m_web->findChild<QTcpSocket *>()->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!told);
    }

private:
    /// The only signal of a check and its texts; "up to date" stands for the one without any.
    static QStringList run(UpdateCheck &check, bool manual)
    {
        const QSignalSpy offered(&check, &UpdateCheck::updateOffered);
        const QSignalSpy upToDate(&check, &UpdateCheck::upToDate);
        check.DoUpdateCheck(manual);
        if (!QTest::qWaitFor([&check] { return !check.isRunning(); }))
            return {"no end"};
        QStringList told;
        for (const QList<QVariant> &texts : offered) {
            for (const QVariant &text : texts)
                told.append(text.toString());
        }
        for (int i = 0; i < upToDate.size(); ++i)
            told.append(QStringLiteral("up to date"));
        return told;
    }

    QTemporaryDir m_home;
    std::unique_ptr<LocalWeb> m_web;
};

QTEST_GUILESS_MAIN(tst_UpdateCheck)
#include "tst_updatecheck.moc"
