// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// A page to read: its text stands in a column of comfortable width, and its links to the web open in the
/// desktop's browser. Pictures that a page takes from a folder "light" come from the folder "dark" beside it
/// in a dark look.
class PageBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit PageBrowser(QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void follow(const QUrl &link);
    void layOutColumn();
    void readAgain();
};
