// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Require.h"
#include "ServerList.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray datagram = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const QVector<GameServer> servers = readServerList(datagram);

    // Written back by hand, the servers are the datagram up to its end.
    QByteArray written;
    for (const GameServer &server : servers) {
        const QStringList parts = server.address.toString().split(QLatin1Char('.'));
        Fuzz::require(parts.size() == 4, "an address is IPv4");
        for (int i = 3; i >= 0; --i)
            written.append(char(parts[i].toInt()));
        written.append(char(server.port & 0xff)).append(char(server.port >> 8));
        Fuzz::require(serverText(server).endsWith(QStringLiteral(":%1").arg(server.port)), "a port is shown");
    }
    Fuzz::require(datagram.startsWith(written), "servers are what the datagram says");
    const QByteArray rest = datagram.mid(written.size());
    Fuzz::require(rest.size() < 6 || rest.startsWith(QByteArray(6, 0)), "no server is left out");
    return 0;
}
