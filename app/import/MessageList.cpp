// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MessageList.h"

#include "Icons.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>

MessageList::MessageList(QWidget *parent)
    : QListWidget(parent)
{
    auto *action = new QAction(namedIcon(QStringLiteral("copy")), tr("&Copy"), this);
    action->setShortcut(QKeySequence::Copy);
    action->setShortcutContext(Qt::WidgetShortcut);
    addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(action, &QAction::triggered, this, &MessageList::copy);
}

void MessageList::setMessages(const ImportMessages &messages, std::initializer_list<LogSeverity> order)
{
    static const char *const icons[] = {"error", "warning", "info"};
    clear();
    for (const LogSeverity severity : order) {
        const QIcon icon = namedIcon(QLatin1String(icons[int(severity)]));
        for (const ImportMessage &line : messages.lines) {
            if (line.severity != severity)
                continue;
            auto *row = new QListWidgetItem(icon, line.text, this);
            row->setToolTip(line.text.toHtmlEscaped());
            row->setData(Qt::UserRole, int(severity));
        }
    }
}

void MessageList::copy() const
{
    QStringList lines;
    for (int row = 0; row < count(); ++row)
        lines += item(row)->text();
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
