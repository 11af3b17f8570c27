// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServerListQuery.h"

#include "LocalServers.h"
#include "Log.h"
#include "Settings.h"
#include "TestSupport.h"

/// The server list query against a master server on this machine.
class tst_ServerListQuery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<GameServer>(); }
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        m_master = std::make_unique<LocalMaster>();
        Settings::MasterServerHost.setValue(QStringLiteral("127.0.0.1"));
        Settings::MasterServerPort.setValue(m_master->localPort());
        m_log.clear();
        Log::setSink([this](LogSeverity severity, const QString &text) {
            m_log.append(QString::number(int(severity)) + QLatin1Char(' ') + text);
        });
    }

    void cleanup() { Log::setSink({}); }
    void readsDatagrams()
    {
        const auto read = [](const char *hex) { return texts(readServerList(QByteArray::fromHex(hex))); };
        // The last one is cut off.
        QCOMPARE(read("04030201 5C6D ffffffff ffff 04030201 5C"),
                 QStringList({"1.2.3.4:27996", "255.255.255.255:65535"}));
        // Only an address and a port of zero end the list.
        QCOMPARE(read("00000000 0100 01000000 0000 00000000 0000 04030201 5C6D"),
                 QStringList({"0.0.0.0:1", "0.0.0.1:0"}));
    }

    void asksAndCollects()
    {
        m_master->replies = {entry(1) + entry(2), entry(3) + entry(1) + QByteArray(6, 0) + entry(9)};
        ServerListQuery query;
        query.setPatience(3000, 200);
        QCOMPARE(query.state(), State::Idle);
        QSignalSpy found(&query, &ServerListQuery::serverFound);
        query.query();
        QCOMPARE(query.state(), State::Running);
        QTRY_COMPARE(found.size(), 3);
        // A second packet of answers is part of the same list.
        m_master->send({entry(4)});
        QVERIFY(end(query));
        QCOMPARE(query.state(), State::Done);
        QCOMPARE(texts(query.servers()),
                 QStringList({"10.0.0.1:27000", "10.0.0.2:27000", "10.0.0.3:27000", "10.0.0.4:27000"}));
        QCOMPARE(m_master->requests, QVector<QByteArray>(1, QByteArray::fromHex("0b69696969000000000000")));
        QCOMPARE(m_log.mid(0, 4),
                 QStringList({"2 Found address: 127.0.0.1",
                              "2 sending server list request 0b 69 69 69 69 00 00 00 00 00 00",
                              "2 updResult = 11", "2 Found Server: 10.0.0.1:27000"}));
        QCOMPARE(m_log.filter("Found Server").size(), 4);
        QCOMPARE(m_log.last(), QStringLiteral("2 Received list of all Servers"));

        query.setRequestFields(0x01020304, 27996);
        query.query();
        QVERIFY(query.servers().isEmpty());
        QVERIFY(end(query));
        QCOMPARE(m_master->requests.last().toHex(' '), QByteArray("0b 69 69 69 69 04 03 02 01 5c 6d"));
    }

    void onlyServersOfTheMasterCount()
    {
        m_master->replies = {"", "short", QByteArray(6, 0)};
        ServerListQuery query;
        query.setPatience(3000, 200);
        query.query();
        QTRY_VERIFY(m_log.contains(QStringLiteral("2 Received list of all Servers")));
        QCOMPARE(query.state(), State::Running);
        LocalMaster otherPort;
        otherPort.asker = m_master->asker;
        otherPort.send({entry(1), entry(2)});
        QUdpSocket otherAddress;
        QVERIFY2(otherAddress.bind(QHostAddress(QStringLiteral("127.0.0.2")), m_master->localPort()),
                 qPrintable(otherAddress.errorString()));
        otherAddress.writeDatagram(entry(3), m_master->asker.first, m_master->asker.second);
        // The empty answer did not stop the socket.
        m_master->send({entry(4)});
        QVERIFY(end(query));
        QCOMPARE(texts(query.servers()), QStringList("10.0.0.4:27000"));
    }

    void floodIsCapped()
    {
        ServerListQuery query;
        query.query();
        QTRY_COMPARE(m_master->requests.size(), 1);
        for (int i = 1; query.state() == State::Running && i < 20000; i += 500) {
            QByteArray datagram;
            for (int n = i; n < i + 1000; ++n)
                datagram += entry(n);
            m_master->send({datagram});
            QCoreApplication::processEvents();
        }
        QVERIFY(end(query));
        QCOMPARE(query.state(), State::Done);
        QCOMPARE(query.servers().size(), ServerListQuery::maximumServers);
        QCOMPARE(m_log.last(), QStringLiteral("1 [Query Servers] Stopped at 4096 servers"));
    }

    void failures()
    {
        // How the lines of the log begin.
        const auto check = [this](const QString &host, const char *failure, const QStringList &log) {
            init();
            m_master->close();
            Settings::MasterServerHost.setValue(host);
            ServerListQuery query;
            query.setPatience(50, 50);
            query.query();
            QVERIFY(end(query, 30000));
            QCOMPARE(query.state(), State::Failed);
            QVERIFY2(query.failure().startsWith(failure), qPrintable(query.failure()));
            // A name may stand for several addresses.
            while (m_log.size() > log.size() && m_log[1].startsWith(QLatin1String("2 Found address")))
                m_log.removeAt(1);
            QCOMPARE(m_log.size(), log.size());
            for (int i = 0; i < log.size(); ++i)
                QVERIFY2(m_log[i].startsWith(log[i]), qPrintable(m_log[i]));
        };
        check("", "No master server is set.", {"1 [Query Servers] No master server is set"});
        check("no%1such.invalid", "The master server no%1such.invalid was not found.",
              {"0 Failed to obtain address from no%1such.invalid - ", "0 T2ServerNameToIP failed:"});
        check("localhost", "The master server did not answer.",
              {"2 Found address: ", "2 sending server list request 0b", "2 updResult = 11"});
    }

    void beginsAnew()
    {
        m_master->replies = {entry(1)};
        ServerListQuery query;
        query.setPatience(3000, 50);
        Settings::MasterServerHost.setValue(QStringLiteral("nowhere.invalid"));
        query.query();
        Settings::MasterServerHost.setValue(QStringLiteral("127.0.0.1"));
        query.query();
        QVERIFY(end(query));
        QCOMPARE(texts(query.servers()), QStringList("10.0.0.1:27000"));
        // The first look-up was given up.
        QVERIFY(m_log.filter("nowhere").isEmpty());
    }

private:
    using State = ServerListQuery::State;

    /// The entry of 10.0.N/256.N%256, port 27000.
    static QByteArray entry(int n)
    {
        const char bytes[] = {char(n), char(n >> 8), 0, 10, 0x78, 0x69};
        return QByteArray(bytes, 6);
    }
    static QStringList texts(const QVector<GameServer> &servers)
    {
        QStringList lines;
        for (const GameServer &server : servers)
            lines.append(serverText(server));
        return lines;
    }
    static bool end(const ServerListQuery &query, int within = 5000)
    {
        return QTest::qWaitFor([&query] { return query.state() != State::Running; }, within);
    }

    QTemporaryDir m_home;
    std::unique_ptr<LocalMaster> m_master;
    QStringList m_log;
};

QTEST_GUILESS_MAIN(tst_ServerListQuery)
#include "tst_serverlistquery.moc"
