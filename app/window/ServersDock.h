// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ServerListQuery.h"

#include <QDockWidget>

class IconLabel;
class QLabel;
class QProgressBar;
class QTableWidget;
class QVBoxLayout;

/// The running servers of the game, as the master server tells them: how the query stands, a row for each
/// server, and its address for the clipboard.
class ServersDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ServersDock(QWidget *parent = nullptr);

    /// The action starts a query and brings the dock up; a button of the dock shows it, too.
    void setQueryAction(QAction *action);

private:
    void showState();
    void addServer(const GameServer &server);
    void copySelection();

    ServerListQuery m_query;
    IconLabel *m_icon;
    QLabel *m_status;
    QProgressBar *m_progress;
    QTableWidget *m_table;
    QAction *m_copyAction;
    QVBoxLayout *m_layout;
};
