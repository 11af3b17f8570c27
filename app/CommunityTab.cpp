// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommunityTab.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

CommunityTab::CommunityTab(QWidget *parent)
    : PageBrowser(parent)
{
    setAccessibleName(tr("Community"));
    QFile file(QStringLiteral(":/community/links.json"));
    QJsonArray groups;
    if (file.open(QIODevice::ReadOnly))
        groups = QJsonDocument::fromJson(file.readAll()).array();

    m_html = QStringLiteral("<h1>%1</h1>").arg(tr("Community"));
    for (const QJsonValue &group : qAsConst(groups)) {
        m_html += QStringLiteral("<h2>%1</h2>").arg(group[QLatin1String("title")].toString().toHtmlEscaped());
        const QJsonArray links = group[QLatin1String("links")].toArray();
        for (const QJsonValue &link : links) {
            const auto text = [&link](const char *key) {
                return link[QLatin1String(key)].toString().toHtmlEscaped();
            };
            m_html += QStringLiteral("<p><a href=\"%1\"><b>%2</b></a><br>%3<br><small>%1</small></p>")
                          .arg(text("address"), text("name"), text("about"));
        }
    }
    setHtml(m_html);
}

void CommunityTab::reload()
{
    setHtml(m_html);
}
