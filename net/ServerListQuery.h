// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ServerList.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QUdpSocket>

#include <memory>

class QHostInfo;

/// Asks the game's master server for the list of running servers: looks its name up, sends one datagram and
/// collects what that address answers. Every step goes to the log; it shows nothing. The settings
/// MasterServerHost and MasterServerPort say whom to ask.
class ServerListQuery : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, Running, Failed, Done };

    /// No more servers are kept.
    static constexpr int maximumServers = 4096;

    explicit ServerListQuery(QObject *parent = nullptr);
    ~ServerListQuery() override;

    State state() const { return m_state; }
    /// In the order in which they were told, each once.
    const QVector<GameServer> &servers() const { return m_servers; }
    /// Why the query failed, for the user to read.
    QString failure() const { return m_failure; }

    /// The address and the port that the request carries; zero unless set.
    void setRequestFields(quint32 address, quint16 port);
    /// How long to wait for an answer, and for more behind one; the first is the limit of both together.
    void setPatience(int answerMs, int moreMs);

public slots:
    /// Begins anew; what an earlier query is still waiting for does not count any more.
    void query();

signals:
    void stateChanged();
    void serverFound(const GameServer &server);

private slots:
    void ReadPendingDatagrams();
    void onLookedUp(const QHostInfo &found);

private:
    void send(const QHostInfo &found);
    void keep(const GameServer &server);
    void failLookup(const QString &host, const QString &error);
    void finish(State state, const QString &failure = {});
    void stopAsking();

    State m_state = State::Idle;
    QVector<GameServer> m_servers;
    QSet<quint64> m_known; ///< address and port of those
    QString m_failure;
    QByteArray m_request = serverListRequest();
    int m_lookup = -1;
    QHostAddress m_master;
    quint16 m_port = 0;
    std::unique_ptr<QUdpSocket> m_socket;
    QTimer m_wait;
    QDeadlineTimer m_deadline;
    int m_answerMs = 5000;
    int m_moreMs = 1000;
    bool m_answered = false;
};
