// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A web server over TLS in a process of its own on a free port, which answers each request the same.
#pragma once

#include "Places.h"
#include "tests/update/Certificates.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>

class SecureServer {
public:
    struct Setting {
        QString Host = QStringLiteral("127.0.0.1"); ///< an address of this machine, to listen at
        QByteArray Certificate = QByteArray(Certificates::Server) + Certificates::ServerKey;
    };

    explicit SecureServer(const QByteArray& answer, const Setting& setting) : host_(setting.Host) {
        const QJsonObject orders{{QStringLiteral("pem"), QString::fromLatin1(setting.Certificate)},
                                 {QStringLiteral("host"), setting.Host},
                                 {QStringLiteral("answer"), QString::fromUtf8(answer)}};
        QFile input(folder_.filePath(QStringLiteral("orders")));
        input.open(QIODevice::WriteOnly);
        input.write(QJsonDocument(orders).toJson());
        input.close();
        process_.start(system_ + QStringLiteral("/usr/bin/python3"),
                       {QString::fromUtf8(Places::Sources) + QStringLiteral("/tests/update/secure_server.py"),
                        folder_.path().sliced(system_.size())});
        port_ = Told(1).value(0).toUShort();
    }

    ~SecureServer() {
        QTcpSocket last;
        last.connectToHost(host_, port_);
        last.write("quit");
        last.waitForBytesWritten();
        process_.waitForFinished();
    }

    SecureServer(const SecureServer&) = delete;
    SecureServer& operator=(const SecureServer&) = delete;
    SecureServer(SecureServer&&) = delete;
    SecureServer& operator=(SecureServer&&) = delete;

    [[nodiscard]] QString Address(const QString& host = QStringLiteral("localhost")) const {
        return QStringLiteral("https://%1:%2/file").arg(host).arg(port_);
    }

    /// How far each connection came in their order: "came", and "request" if it came to an understanding and asked.
    /// Waits for so many of these words.
    QByteArrayList Words(int count) { return Told(count + 1).mid(1); }

private:
    QByteArrayList Told(int count) {
        QElapsedTimer waited;
        waited.start();
        QByteArray told;
        do {
            if (told_.open(QIODevice::ReadOnly)) // not before the server has begun
                told = told_.readAll().replace('\r', "").trimmed();
            told_.close();
            if (told.count('\n') + 1 >= count && !told.isEmpty())
                break;
            QThread::msleep(10);
        } while (waited.elapsed() < 20000);
        return told.split('\n');
    }

    /// The emulated system starts programs of the one below, too, which know its files but not its pipes.
    QString system_ = QString::fromUtf8(Places::SystemIsEmulated ? "Z:" : "");
    QTemporaryDir folder_{system_ + QStringLiteral("/tmp/brindock-")};
    QFile told_{folder_.filePath(QStringLiteral("told"))};
    QProcess process_;
    QString host_;
    quint16 port_ = 0;
};
