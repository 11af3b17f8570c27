// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

/// A web server on this machine that says the same to every request: what `answer` holds, headers and all.
/// While it is empty it never answers. A request keeps its head in `requests`.
class LocalWeb : public QTcpServer
{
public:
    LocalWeb()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                const QByteArray head = socket->readAll();
                requests.append(head);
                if (answer.isEmpty())
                    return;
                socket->write(QByteArray(answer).replace("%PATH%", head.split(' ').value(1)));
                socket->disconnectFromHost();
            });
        });
    }

    QString address(const QString &path = QStringLiteral("/release.txt")) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }
    void serve(const QByteArray &body)
    {
        answer = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
                 QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
    }
    void redirect(const QString &target)
    {
        answer = "HTTP/1.1 302 Found\r\nLocation: " + target.toUtf8() +
                 "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
    }

    QByteArray answer;
    QVector<QByteArray> requests;
};

/// A release document with these values; an empty one is left out.
inline QByteArray releaseDocument(const QByteArray &version, const QByteArray &link,
                                  const QByteArray &message = "News")
{
    return "A paste\n!start!\n" + (version.isEmpty() ? QByteArray() : "version\n" + version + '\n') +
           (link.isEmpty() ? QByteArray() : "link\n" + link + '\n') + "msg\n" + message + "\n!msg!\n!end!\n";
}

/// A master server on this machine: it sends the datagrams in `replies` to whoever asks.
class LocalMaster : public QUdpSocket
{
public:
    LocalMaster()
    {
        bind(QHostAddress(QHostAddress::LocalHost));
        connect(this, &QUdpSocket::readyRead, this, [this] {
            while (hasPendingDatagrams()) {
                const QNetworkDatagram request = receiveDatagram();
                requests.append(request.data());
                asker = {request.senderAddress(), quint16(request.senderPort())};
                send(replies);
            }
        });
    }
    void send(const QVector<QByteArray> &datagrams)
    {
        for (const QByteArray &datagram : datagrams)
            writeDatagram(datagram, asker.first, asker.second);
    }

    QVector<QByteArray> replies;
    QVector<QByteArray> requests;
    QPair<QHostAddress, quint16> asker;
};
