// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServerList.h"

#include <QtEndian>

namespace {
constexpr int entrySize = 6;
} // namespace

QString serverText(const GameServer &server)
{
    return QStringLiteral("%1:%2").arg(server.address.toString(), QString::number(server.port));
}

QByteArray serverListRequest(quint32 address, quint16 port)
{
    QByteArray request("\x0b\x69\x69\x69\x69");
    request.resize(11);
    qToLittleEndian(address, request.data() + 5);
    qToLittleEndian(port, request.data() + 9);
    return request;
}

QVector<GameServer> readServerList(const QByteArray &datagram)
{
    QVector<GameServer> servers;
    for (int at = 0; datagram.size() - at >= entrySize; at += entrySize) {
        const auto address = qFromLittleEndian<quint32>(datagram.constData() + at);
        const auto port = qFromLittleEndian<quint16>(datagram.constData() + at + 4);
        if (address == 0 && port == 0)
            break;
        servers.append({QHostAddress(address), port});
    }
    return servers;
}
