// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A web server of this process on a free port, which does with each request what the test says.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <functional>

class HttpServer : public QTcpServer {
public:
    using Serving = std::function<void(QTcpSocket& client, const QByteArray& head)>;

    HttpServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* const client = nextPendingConnection())
                Attend(client);
        });
    }

    Serving Serve;        ///< for each request
    QStringList Requests; ///< the first line of each
    QByteArray LastHead;

    [[nodiscard]] QString Address(const QString& path = QStringLiteral("/file")) const {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }

    /// An answer with its length, and the connection stays.
    static QByteArray Whole(const QByteArray& body, const QByteArray& status = "200 OK") {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }

    static QByteArray Redirect(const QString& to) {
        return "HTTP/1.1 302 Found\r\nLocation: " + to.toUtf8() + "\r\nContent-Length: 5\r\n\r\nmoved";
    }

    /// Sends and hangs up.
    static void SendAndClose(QTcpSocket& client, const QByteArray& bytes) {
        client.write(bytes);
        client.disconnectFromHost();
    }

    /// Sends so many bytes in each millisecond.
    static void SendSlowly(QTcpSocket& client, const QByteArray& bytes, qsizetype each) {
        if (bytes.isEmpty())
            return client.disconnectFromHost();
        client.write(bytes.first(std::min(each, bytes.size())));
        client.flush();
        QTimer::singleShot(1, &client, [&client, rest = bytes.sliced(std::min(each, bytes.size())), each] {
            SendSlowly(client, rest, each);
        });
    }

private:
    void Attend(QTcpSocket* client) {
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(client, &QTcpSocket::readyRead, client, [this, client] {
            while (client->canReadLine()) {
                const QByteArray line = client->readLine();
                head_[client] += line;
                if (line != "\r\n")
                    continue;
                LastHead = head_.take(client);
                Requests << QString::fromLatin1(LastHead.left(LastHead.indexOf("\r\n")));
                Serve(*client, LastHead);
            }
        });
    }

    QHash<QTcpSocket*, QByteArray> head_;
};
