// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionPreview.h"

#include "Look.h"

#include <QEvent>

namespace {
constexpr int MostShown = 200;
}

MotionPreview::MotionPreview(QWidget *parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setTabChangesFocus(true);
}

void MotionPreview::setEntries(const QVector<Entry> &entries)
{
    m_entries = entries;
    QString html;
    const QString warning = warningColor(palette()).name();
    for (int i = 0; i < std::min(entries.size(), MostShown); ++i) {
        const Entry &entry = entries.at(i);
        html +=
            QStringLiteral("<p style='margin: 0px 0px 6px 0px'><b>%1</b>").arg(entry.title.toHtmlEscaped());
        for (const QString &line : entry.lines) {
            const QString text = line.toHtmlEscaped();
            html += QLatin1String("<br>") +
                    (entry.isRefused ? QStringLiteral("<span style='color: %1'>%2</span>").arg(warning, text)
                                     : text);
        }
        html += QLatin1String("</p>");
    }
    if (entries.size() > MostShown)
        html += QStringLiteral("<p>%1</p>").arg(tr("and %1 more").arg(entries.size() - MostShown));
    setHtml(html);
}

void MotionPreview::tell(const QString &text)
{
    m_entries.clear();
    setPlainText(text);
}

void MotionPreview::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_entries.isEmpty())
        setEntries(m_entries);
}
