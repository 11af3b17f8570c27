// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WebLink.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

namespace {
QUrl urlOf(const QString &link)
{
    return QUrl(link.trimmed(), QUrl::StrictMode);
}
} // namespace

bool isWebLink(const QString &link)
{
    const QUrl url = urlOf(link);
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

void openWebLink(const QString &link, QWidget *parent)
{
    const bool isWeb = isWebLink(link);
    if (isWeb && QDesktopServices::openUrl(urlOf(link)))
        return;
    QMessageBox box(parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QCoreApplication::translate("WebLink", "Link"));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setText(
        (isWeb ? QCoreApplication::translate("WebLink", "The browser did not open\n%1")
               : QCoreApplication::translate("WebLink", "This is no web page, so it was not opened:\n%1"))
            .arg(link.left(500)));
    box.exec();
}
