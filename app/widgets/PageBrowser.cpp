// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PageBrowser.h"

#include "Look.h"
#include "WebLink.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextFrame>

#include <algorithm>

namespace {
// Pixels. The pictures of the guides are as wide as the column at most.
constexpr int columnWidth = 760;
constexpr int minimumMargin = 16;
} // namespace

PageBrowser::PageBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    document()->setDefaultStyleSheet(QStringLiteral(
        "h1 { margin-top: 12px; margin-bottom: 8px; } h2 { margin-top: 20px; margin-bottom: 4px; }"
        "p { margin-top: 6px; margin-bottom: 8px; line-height: 130%; } .picture { line-height: 100%; }"
        "li { margin-bottom: 4px; line-height: 130%; }"));
    // Links take their colour when a page is read.
    connect(qApp, &QGuiApplication::paletteChanged, this, &PageBrowser::readAgain);
    connect(this, &QTextBrowser::anchorClicked, this, &PageBrowser::follow);
    connect(this, &QTextBrowser::textChanged, this, &PageBrowser::layOutColumn);
}

void PageBrowser::resizeEvent(QResizeEvent *event)
{
    layOutColumn();
    QTextBrowser::resizeEvent(event);
}

QVariant PageBrowser::loadResource(int type, const QUrl &name)
{
    QUrl shown = name;
    if (type == QTextDocument::ImageResource && isDark(palette()))
        shown.setPath(name.path().replace(QLatin1String("/light/"), QLatin1String("/dark/")));
    return QTextBrowser::loadResource(type, shown);
}

void PageBrowser::readAgain()
{
    const int scrolled = verticalScrollBar()->value();
    reload();
    layOutColumn();
    verticalScrollBar()->setValue(scrolled);
}

void PageBrowser::follow(const QUrl &link)
{
    if (link.isRelative() || link.scheme() == source().scheme())
        setSource(link);
    else
        openWebLink(link.toString(QUrl::FullyEncoded), this);
}

void PageBrowser::layOutColumn()
{
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    const int margin = std::max(minimumMargin, (viewport()->width() - columnWidth) / 2);
    if (format.leftMargin() == margin && format.rightMargin() == margin)
        return;
    format.setLeftMargin(margin);
    format.setRightMargin(margin);
    format.setTopMargin(minimumMargin);
    format.setBottomMargin(minimumMargin);
    const QSignalBlocker blocker(this);
    document()->rootFrame()->setFrameFormat(format);
}
