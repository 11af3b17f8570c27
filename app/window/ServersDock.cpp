// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServersDock.h"

#include "Icons.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
/// A push button for what the action does; its text and look are the action's. It is in sight with every
/// page, so it leaves the letters to those.
QPushButton *buttonFor(QAction *action, const char *name, QWidget *parent)
{
    auto *button = new QPushButton(action->icon(), action->text().remove(QLatin1Char('&')), parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(action->toolTip());
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    const auto follow = [action, button] { button->setEnabled(action->isEnabled()); };
    QObject::connect(action, &QAction::changed, button, follow);
    follow();
    return button;
}
} // namespace

ServersDock::ServersDock(QWidget *parent)
    : QDockWidget(parent)
    , m_query(this)
{
    auto *contents = new QWidget(this);
    m_icon = new IconLabel(namedIcon(QStringLiteral("servers")), 16, contents);
    m_status = new QLabel(contents);
    m_status->setObjectName(QStringLiteral("lblServersStatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_progress = new QProgressBar(contents);
    m_progress->setObjectName(QStringLiteral("barServers"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setMaximumHeight(6);

    m_table = new QTableWidget(0, 2, contents);
    m_table->setObjectName(QStringLiteral("tableServers"));
    m_table->setAccessibleName(tr("Servers"));
    m_table->setHorizontalHeaderLabels({tr("Address"), tr("Port")});
    for (int column = 0; column < 2; ++column)
        m_table->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);

    m_copyAction = new QAction(namedIcon(QStringLiteral("copy")), tr("&Copy Address"), m_table);
    m_copyAction->setObjectName(QStringLiteral("actionCopyAddress"));
    m_copyAction->setShortcut(QKeySequence::Copy);
    m_copyAction->setShortcutContext(Qt::WidgetShortcut);
    m_copyAction->setToolTip(tr("Copy the addresses and ports of the selected servers"));
    m_table->addAction(m_copyAction);

    auto *state = new QHBoxLayout;
    state->addWidget(m_icon, 0, Qt::AlignTop);
    state->addWidget(m_status, 1);
    m_layout = new QVBoxLayout(contents);
    m_layout->addLayout(state);
    m_layout->addWidget(m_progress);
    m_layout->addWidget(m_table, 1);
    m_layout->addWidget(buttonFor(m_copyAction, "btnCopyAddress", contents));
    setWidget(contents);

    connect(m_copyAction, &QAction::triggered, this, &ServersDock::copySelection);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &ServersDock::copySelection);
    connect(m_table, &QTableWidget::itemSelectionChanged, this,
            [this] { m_copyAction->setEnabled(m_table->selectionModel()->hasSelection()); });
    connect(&m_query, &ServerListQuery::stateChanged, this, &ServersDock::showState);
    connect(&m_query, &ServerListQuery::serverFound, this, &ServersDock::addServer);
    m_copyAction->setEnabled(false);
    showState();
}

void ServersDock::setQueryAction(QAction *action)
{
    QPushButton *button = buttonFor(action, "btnQueryServers", widget());
    m_layout->insertWidget(0, button);
    setTabOrder(button, m_table);
    connect(action, &QAction::triggered, this, [this] {
        show();
        raise();
        m_table->setRowCount(0);
        m_query.query();
    });
}

void ServersDock::showState()
{
    using State = ServerListQuery::State;
    const int count = m_query.servers().size();
    const QString counted = count == 1 ? tr("1 server") : tr("%1 servers").arg(count);
    const char *iconName = "servers";
    QString text;
    switch (m_query.state()) {
    case State::Idle:
        text = tr("No query yet.");
        break;
    case State::Running:
        text = count == 0 ? tr("Asking the master server…") : tr("Asking the master server… %1").arg(counted);
        break;
    case State::Failed:
        iconName = "error";
        text = m_query.failure();
        break;
    case State::Done:
        iconName = "info";
        text = count == 0 ? tr("No server is running.") : counted;
        break;
    }
    m_icon->setIcon(namedIcon(QLatin1String(iconName)));
    m_status->setText(text);
    m_progress->setVisible(m_query.state() == State::Running);
}

void ServersDock::addServer(const GameServer &server)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, 0, new QTableWidgetItem(server.address.toString()));
    m_table->setItem(row, 1, new QTableWidgetItem(QString::number(server.port)));
    showState();
}

void ServersDock::copySelection()
{
    QStringList lines;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (m_table->item(row, 0)->isSelected())
            lines << m_table->item(row, 0)->text() + QLatin1Char(':') + m_table->item(row, 1)->text();
    }
    if (lines.isEmpty())
        return;
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    if (auto *window = qobject_cast<QMainWindow *>(parentWidget())) {
        window->statusBar()->showMessage(lines.size() == 1 ? tr("Copied \"%1\"").arg(lines.first())
                                                           : tr("Copied %1 addresses").arg(lines.size()),
                                         5000);
    }
}
