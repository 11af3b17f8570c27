// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ConsoleButton.h"

#include "ConsoleLog.h"
#include "Icons.h"

#include <QDockWidget>

#include <utility>

ConsoleButton::ConsoleButton(const ConsoleLog &log, QDockWidget &dock, QWidget *parent)
    : QToolButton(parent)
    , m_log(log)
{
    setObjectName(QStringLiteral("btnConsole"));
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setToolTip(tr("Show the console"));
    connect(this, &QToolButton::clicked, &dock, [&dock] {
        dock.show();
        dock.raise();
    });
    connect(&log, &ConsoleLog::countsChanged, this, &ConsoleButton::showCounts);
    // The first error is worth a look; who closes the console then has seen it.
    connect(&log, &ConsoleLog::countsChanged, &dock, [this, &dock] {
        if (m_log.hasErrors() && !std::exchange(m_opened, true) && !dock.isVisible())
            click();
    });
    showCounts();
}

void ConsoleButton::showCounts()
{
    const int errors = m_log.errorCount();
    const int warnings = m_log.warningCount();
    const QLatin1String icon(errors > 0 ? "error" : warnings > 0 ? "warning" : "console");
    if (std::exchange(m_icon, icon) != icon) // thousands of lines may come at once
        setIcon(namedIcon(icon));
    setText(errors + warnings == 0
                ? tr("Console")
                : tr("Errors: %1, warnings: %2").arg(QString::number(errors), QString::number(warnings)));
}
