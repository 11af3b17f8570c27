// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServerListQuery.h"

#include "Log.h"
#include "Settings.h"

#include <QHostInfo>
#include <QNetworkDatagram>

#include <algorithm>

namespace {
/// How many datagrams are read before the rest of the program has its turn.
constexpr int datagramsAtOnce = 64;
constexpr int lookupMs = 15 * 1000;

quint16 masterPort()
{
    const int port = Settings::MasterServerPort.value();
    return port > 0 && port <= 0xffff ? quint16(port) : quint16(Settings::MasterServerPort.defaultValue());
}
} // namespace

ServerListQuery::ServerListQuery(QObject *parent)
    : QObject(parent)
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, [this] {
        if (m_lookup != -1)
            failLookup(Settings::MasterServerHost.value(), tr("the look-up takes too long"));
        else if (m_answered)
            finish(State::Done);
        else
            finish(State::Failed, tr("The master server did not answer."));
    });
}

ServerListQuery::~ServerListQuery()
{
    stopAsking();
}

void ServerListQuery::setRequestFields(quint32 address, quint16 port)
{
    m_request = serverListRequest(address, port);
}

void ServerListQuery::setPatience(int answerMs, int moreMs)
{
    m_answerMs = answerMs;
    m_moreMs = moreMs;
}

void ServerListQuery::query()
{
    stopAsking();
    m_servers.clear();
    m_known.clear();
    m_failure.clear();
    m_answered = false;

    const QString host = Settings::MasterServerHost.value().trimmed();
    if (host.isEmpty()) {
        Log::warning(tr("[Query Servers] No master server is set"));
        finish(State::Failed, tr("No master server is set. Its name belongs under MasterServerHost in %1.")
                                  .arg(QSettings().fileName()));
        return;
    }
    m_state = State::Running;
    emit stateChanged();
    if (!QHostAddress(host).isNull()) {
        // Looking a number up would ask for its name.
        QHostInfo numeric;
        numeric.setAddresses({QHostAddress(host)});
        send(numeric);
        return;
    }
    m_wait.start(lookupMs);
    // By name: of a look-up that is aborted, Qt forgets to free any other kind of callback.
    m_lookup = QHostInfo::lookupHost(host, this, SLOT(onLookedUp(QHostInfo)));
}

void ServerListQuery::onLookedUp(const QHostInfo &found)
{
    // An earlier look-up may have been past calling back.
    if (found.lookupId() == m_lookup)
        send(found);
}

void ServerListQuery::failLookup(const QString &host, const QString &error)
{
    Log::error(tr("Failed to obtain address from %1 - %2").arg(host, error));
    Log::error(QStringLiteral("T2ServerNameToIP failed:"));
    finish(State::Failed, tr("The master server %1 was not found.").arg(host));
}

void ServerListQuery::send(const QHostInfo &found)
{
    m_lookup = -1;
    if (found.addresses().isEmpty()) {
        failLookup(found.hostName(), found.errorString());
        return;
    }
    for (const QHostAddress &address : found.addresses())
        Log::info(tr("Found address: %1").arg(address.toString()));
    m_master = found.addresses().first();
    m_port = masterPort();

    m_socket = std::make_unique<QUdpSocket>(this);
    connect(m_socket.get(), &QUdpSocket::readyRead, this, &ServerListQuery::ReadPendingDatagrams);
    connect(m_socket.get(), &QUdpSocket::errorOccurred, this,
            [this] { Log::error(QStringLiteral("[Query Servers] %1").arg(m_socket->errorString())); });
    const bool isIPv4 = m_master.protocol() == QAbstractSocket::IPv4Protocol;
    m_socket->bind(QHostAddress(isIPv4 ? QHostAddress::AnyIPv4 : QHostAddress::AnyIPv6));
    Log::info(tr("sending server list request %1").arg(QLatin1String(m_request.toHex(' '))));
    const qint64 written = m_socket->writeDatagram(m_request, m_master, m_port);
    Log::info(QStringLiteral("updResult = %1").arg(written));
    if (written != m_request.size()) {
        finish(State::Failed, tr("The request could not be sent: %1.").arg(m_socket->errorString()));
        return;
    }
    m_deadline.setRemainingTime(m_answerMs);
    m_wait.start(m_answerMs);
}

void ServerListQuery::ReadPendingDatagrams()
{
    bool fromMaster = false;
    // An empty datagram has to be taken, too: no other is announced before.
    for (int i = 0; i < datagramsAtOnce && m_socket->hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        if (datagram.senderPort() != m_port || !datagram.senderAddress().isEqual(m_master))
            continue;
        fromMaster = true;
        for (const GameServer &server : readServerList(datagram.data()))
            keep(server);
    }
    if (!fromMaster)
        return;
    m_answered = true;
    Log::info(tr("Received list of all Servers"));
    if (m_servers.size() == maximumServers) {
        Log::warning(tr("[Query Servers] Stopped at %1 servers").arg(maximumServers));
        finish(State::Done);
    } else {
        m_wait.start(int(std::min<qint64>(m_moreMs, m_deadline.remainingTime())));
    }
}

void ServerListQuery::keep(const GameServer &server)
{
    const quint64 key = quint64(server.address.toIPv4Address()) << 16 | server.port;
    if (m_servers.size() == maximumServers || m_known.contains(key))
        return;
    m_known.insert(key);
    m_servers.append(server);
    Log::info(tr("Found Server: %1").arg(serverText(server)));
    emit serverFound(server);
}

void ServerListQuery::finish(State state, const QString &failure)
{
    stopAsking();
    m_state = state;
    m_failure = failure;
    emit stateChanged();
}

void ServerListQuery::stopAsking()
{
    m_wait.stop();
    if (m_lookup != -1)
        QHostInfo::abortHostLookup(m_lookup);
    m_lookup = -1;
    // It may be the one whose signal brought us here.
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket.release()->deleteLater();
    }
}
