// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProblemsButton.h"

#include "Icons.h"
#include "ModProblems.h"
#include "Problems.h"

#include <QDockWidget>

ProblemsButton::ProblemsButton(const Problems &problems, QDockWidget &dock, QWidget *parent)
    : QToolButton(parent)
    , m_problems(problems)
{
    setObjectName(QStringLiteral("btnProblems"));
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(this, &QToolButton::clicked, &dock, [&dock] {
        dock.show();
        dock.raise();
    });
    connect(&problems, &Problems::changed, this, &ProblemsButton::showCounts);
    showCounts();
}

void ProblemsButton::showCounts()
{
    const qint64 errors = m_problems.count(Severity::Error);
    const qint64 warnings = m_problems.count(Severity::Warning);
    const qint64 notes = m_problems.count(Severity::Note);
    const qint64 all = errors + warnings + notes;
    const char *icon = errors > 0 ? "error" : warnings > 0 ? "warning" : notes > 0 ? "info" : "checkmark";
    setIcon(namedIcon(QLatin1String(icon)));
    setText(all == 0 ? tr("No problems") : tr("Problems: %1").arg(all));
    setToolTip((m_problems.mod().isWhole()
                    ? tr("Show what is wrong with the mod and the open files (errors: %1, warnings: %2, "
                         "notes: %3)")
                    : tr("Show what is wrong with the open files (errors: %1, warnings: %2, notes: %3)"))
                   .arg(QString::number(errors), QString::number(warnings), QString::number(notes)));
}
