// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateCheck.h"

#include "Log.h"
#include "Release.h"
#include "Settings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHostAddress>
#include <QNetworkReply>

namespace {
constexpr int requestTimeLimit = 15 * 1000;
constexpr int maximumRedirects = 5;

QNetworkRequest requestFor(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // Unpacking could make much out of little. The user's language is nobody's business.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept-Language", "*");
    return request;
}
} // namespace

bool isReleaseAddress(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == QLatin1String("https"))
        return true;
    return url.scheme() == QLatin1String("http") &&
           (url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback());
}

bool isReleaseRedirect(const QUrl &from, const QUrl &to)
{
    return isReleaseAddress(to) &&
           (from.scheme() != QLatin1String("https") || to.scheme() == QLatin1String("https"));
}

UpdateCheck::UpdateCheck(QObject *parent)
    : QObject(parent)
{
    m_timeLimit.setSingleShot(true);
    m_timeLimit.setInterval(requestTimeLimit);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] { m_reply->abort(); });
}

bool UpdateCheck::isDue() const
{
    if (!Settings::Updates.value())
        return false;
    const QDateTime last = Settings::UpdateDate.value();
    const QDateTime now = m_clock();
    return !last.isValid() || last > now || now >= last.addDays(1);
}

void UpdateCheck::checkIfDue()
{
    if (isDue())
        DoUpdateCheck(false);
}

void UpdateCheck::DoUpdateCheck(bool manual)
{
    m_manual = manual;
    if (m_running)
        return;
    const QUrl url(Settings::UpdateUrl.value().trimmed());
    if (!isReleaseAddress(url)) {
        if (!url.isEmpty())
            Log::warning(tr("[Update Check] '%1' is no https address").arg(url.toDisplayString()));
        else if (manual)
            Log::info(tr("[Update Check] No address is set to ask for releases"));
        evaluate(true);
        return;
    }
    Settings::UpdateDate.setValue(m_clock());
    m_redirects = 0;
    m_timeLimit.start();
    get(url);
}

void UpdateCheck::get(const QUrl &url)
{
    m_running = true;
    m_document.clear();
    if (!m_manager) {
        m_manager = new QNetworkAccessManager(this);
        connect(m_manager, &QNetworkAccessManager::finished, this, &UpdateCheck::NetworkReplyFinished);
    }
    m_reply = m_manager->get(requestFor(url));
    m_reply->setReadBufferSize(maximumBytes);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateCheck::readSome);
}

void UpdateCheck::readSome()
{
    // One byte more than is read tells that there is more.
    m_document += m_reply->read(maximumBytes + 1 - m_document.size());
    if (m_document.size() > maximumBytes)
        m_reply->abort();
}

void UpdateCheck::NetworkReplyFinished(QNetworkReply *reply)
{
    m_running = false;
    reply->deleteLater();
    qDebug() << "update request finished" << reply->errorString() << reply->error();
    const QVariant target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    if (target.isValid()) {
        const QUrl next = reply->url().resolved(target.toUrl());
        if (++m_redirects <= maximumRedirects && isReleaseRedirect(reply->url(), next)) {
            get(next);
            return;
        }
    }
    m_timeLimit.stop();
    // The rest of a document that is too long was given up by ourselves.
    const bool cutOff = m_document.size() > maximumBytes;
    if (cutOff)
        m_document.truncate(m_document.lastIndexOf('\n', maximumBytes - 1) + 1);
    evaluate(target.isValid() || (reply->error() != QNetworkReply::NoError && !cutOff));
}

void UpdateCheck::evaluate(bool failed)
{
    if (!failed) {
        qDebug() << "Reading network";
        const Release release = readRelease(m_document);
        qDebug() << "Version =" << release.version;
        qDebug() << "Link =" << release.link;
        qDebug() << "Message =" << release.message;
        if (isOlderVersion(QCoreApplication::applicationVersion(), release.version) &&
            !release.link.isEmpty()) {
            emit updateOffered(release.version, release.message, release.link);
            return;
        }
    }
    if (m_manual)
        emit upToDate();
}
