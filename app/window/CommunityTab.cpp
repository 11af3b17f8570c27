// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommunityTab.h"

#include "Language.h"

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

    // Texts in other languages stand beside the English ones: "about_de".
    const auto textOf = [](const QJsonValue &value, const QString &key) {
        const QString own = value[key + QLatin1Char('_') + Language::installed()].toString();
        return (own.isEmpty() ? value[key].toString() : own).toHtmlEscaped();
    };
    m_html = QStringLiteral("<h1>%1</h1>").arg(tr("Community"));
    for (const QJsonValue &group : qAsConst(groups)) {
        m_html += QStringLiteral("<h2>%1</h2>").arg(textOf(group, QStringLiteral("title")));
        const QJsonArray links = group[QLatin1String("links")].toArray();
        for (const QJsonValue &link : links) {
            const auto text = [&](const char *key) { return textOf(link, QLatin1String(key)); };
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
