// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSplitter>

class PageBrowser;
class QListWidget;

/// The guides that come with the program: their titles beside the text of the chosen one.
class TutorialsTab : public QSplitter
{
    Q_OBJECT

public:
    explicit TutorialsTab(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();

    QListWidget *m_list;
    PageBrowser *m_page;
};
