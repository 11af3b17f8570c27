// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Asks whether a newer release than the running one exists: one GET of a small text document, whose address
/// is the setting UpdateUrl. It tells by signals and shows nothing. A request that fails counts as no news.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// No more of a document is read.
    static constexpr int maximumBytes = 64 * 1024;

    explicit UpdateCheck(QObject *parent = nullptr);

    /// What time it is, for the rule of one check a day.
    void setClock(Clock clock) { m_clock = std::move(clock); }
    /// How long a request may take, redirects and all; 15 s unless set.
    void setTimeLimit(int milliseconds) { m_timeLimit.setInterval(milliseconds); }

    /// Whether a request is under way.
    bool isRunning() const { return m_running; }
    /// Whether the check at the start of the program is due: it is wanted, and the last request was sent a
    /// day ago or longer. A last request in the future was sent by a wrong clock and does not count.
    bool isDue() const;

public slots:
    /// The check at the start of the program, when it is due.
    void checkIfDue();
    /// Sends the request unless one is under way. A manual check is told that there is nothing new, and so is
    /// a running check that another one makes manual.
    void DoUpdateCheck(bool manual);

signals:
    /// There is a newer release. The texts are those of the document, as untrusted as they came.
    void updateOffered(const QString &version, const QString &message, const QString &link);
    /// The end of a manual check that offers nothing.
    void upToDate();

private slots:
    void NetworkReplyFinished(QNetworkReply *reply);

private:
    void get(const QUrl &url);
    void readSome();
    void evaluate(bool failed);

    QNetworkAccessManager *m_manager = nullptr; ///< made by the first request: it starts slowly
    QPointer<QNetworkReply> m_reply;
    int m_redirects = 0;
    QByteArray m_document;
    QTimer m_timeLimit;
    Clock m_clock = &QDateTime::currentDateTime;
    bool m_running = false;
    bool m_manual = false;
};

/// Whether a release document may be fetched from there: over HTTPS, or over plain HTTP from this machine.
bool isReleaseAddress(const QUrl &url);
/// Whether a redirect may be followed: to such an address, and never out of HTTPS.
bool isReleaseRedirect(const QUrl &from, const QUrl &to);
