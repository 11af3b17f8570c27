// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QMetaType>
#include <QVector>

/// One running server of the game.
struct GameServer
{
    QHostAddress address; ///< IPv4
    quint16 port = 0;

    bool operator==(const GameServer &other) const { return address == other.address && port == other.port; }
    bool operator!=(const GameServer &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(GameServer)

/// "1.2.3.4:27996".
QString serverText(const GameServer &server);

/// The datagram of 11 bytes that asks the master server for its list. It carries an IPv4 address and a port,
/// both little-endian; zero where nothing is to be said.
QByteArray serverListRequest(quint32 address = 0, quint16 port = 0);

/// The servers of one reply datagram: entries of 6 bytes, a little-endian IPv4 address and a little-endian
/// port. An entry of zeros ends the datagram, and so do fewer than 6 bytes.
QVector<GameServer> readServerList(const QByteArray &datagram);
