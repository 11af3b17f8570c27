// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileRunsDialog.h"

#include "Language.h"
#include "Look.h"
#include "Patience.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>

namespace {
enum RunColumn { TimeColumn, TitleColumn, CountColumn, StateColumn };
} // namespace

FileRunsDialog::FileRunsDialog(QWidget *parent)
    : QDialog(parent)
    , m_tree(new QTreeWidget(this))
    , m_state(new QLabel(this))
{
    setObjectName(QStringLiteral("FileRunsDialog"));
    setWindowTitle(tr("Replacements in Files"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(760, 380);
    m_tree->setObjectName(QStringLiteral("treeRuns"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Time"), tr("Replacement"), tr("Files"), tr("State")});
    m_tree->setRootIsDecorated(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(TitleColumn, QHeaderView::Stretch);
    m_tree->header()->setStretchLastSection(false);
    m_state->setObjectName(QStringLiteral("lblRuns"));
    m_state->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto add = [&](const char *name, void (FileRunsDialog::*slot)()) {
        auto *button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        return button;
    };
    m_undo = add("btnRunUndo", &FileRunsDialog::undo);
    m_undo->setText(tr("&Undo"));
    m_undo->setToolTip(
        tr("Give the files back what they held; those that were changed since are left as they are"));
    m_finish = add("btnRunFinish", &FileRunsDialog::finish);
    m_forget = add("btnRunForget", &FileRunsDialog::forget);
    m_forget->setText(tr("For&get"));
    m_forget->setToolTip(tr("Delete the copies; the files stay as they are"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_state);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &FileRunsDialog::updateButtons);
    fill();
    m_tree->setFocus();
}

void FileRunsDialog::fill()
{
    m_runs = FileRun::all(FileRun::defaultRoot());
    m_tree->clear();
    for (const FileRun &run : m_runs) {
        const QString state = run.isBrokenOff()                        ? tr("broken off")
                              : run.state() == FileRun::State::Applied ? tr("replaced")
                                                                       : tr("undone");
        auto *item = new QTreeWidgetItem(
            m_tree, {Language::locale().toString(run.time().toLocalTime(), QLocale::ShortFormat), run.title(),
                     QString::number(run.count()), state});
        QStringList paths = run.paths();
        constexpr int MostNamed = 20;
        const int more = paths.size() - MostNamed;
        paths = paths.mid(0, MostNamed);
        if (more > 0)
            paths += tr("and %1 more").arg(more);
        item->setToolTip(TitleColumn, QDir::toNativeSeparators(paths.join(QLatin1Char('\n'))));
    }
    say(m_runs.empty()
            ? tr("Nothing was replaced in files yet, by Edit ▸ Replace in Files… or on the command line.")
            : QString(),
        false);
    if (!m_runs.empty())
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
    updateButtons();
}

FileRun *FileRunsDialog::current()
{
    const int row = m_tree->indexOfTopLevelItem(m_tree->currentItem());
    return row < 0 ? nullptr : &m_runs[size_t(row)];
}

void FileRunsDialog::updateButtons()
{
    const FileRun *run = current();
    m_undo->setEnabled(run && run->state() != FileRun::State::Undone);
    m_finish->setEnabled(run && run->state() != FileRun::State::Applied);
    m_finish->setText(run && run->isBrokenOff() ? tr("&Finish") : tr("&Do Again"));
    m_finish->setToolTip(run && run->isBrokenOff() ? tr("Give the rest of the files their new values")
                                                   : tr("Give the files the new values again"));
    m_forget->setEnabled(run);
}

void FileRunsDialog::say(const QString &text, bool isWarning)
{
    QPalette colors = palette();
    if (isWarning)
        colors.setColor(QPalette::WindowText, warningColor(colors));
    m_state->setPalette(colors);
    m_state->setText(text);
    m_state->setVisible(!text.isEmpty());
}

void FileRunsDialog::work(bool undoes)
{
    FileRun *run = current();
    if (!run)
        return;
    const int row = m_tree->indexOfTopLevelItem(m_tree->currentItem());
    std::atomic_int percent{0};
    const auto exchange = [run, undoes, &percent](const Background::Cancelled &cancelled) {
        const FileRun::Course course{&cancelled, &percent};
        return undoes ? run->undo(course) : run->apply(course);
    };
    const auto outcome = workWithPatience(
        exchange, undoes ? tr("Giving the files back what they held") : tr("Replacing in files"), this,
        &percent);
    const QStringList paths = run->paths();
    fill();
    m_tree->setCurrentItem(m_tree->topLevelItem(row));
    emit filesChanged(paths);
    if (!outcome)
        return say(tr("Broken off."), true);
    QStringList lines{tr("Files: %1.").arg(outcome->files)};
    for (const FileRun::Problem &problem : outcome->problems)
        lines += QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(problem.path), problem.reason);
    say(lines.join(QLatin1Char('\n')), !outcome->problems.isEmpty());
}

void FileRunsDialog::undo()
{
    work(true);
}

void FileRunsDialog::finish()
{
    work(false);
}

void FileRunsDialog::forget()
{
    FileRun *run = current();
    if (!run ||
        QMessageBox::question(this, tr("Replacements in Files"),
                              tr("Delete the copies of this replacement? It cannot be undone then.")) !=
            QMessageBox::Yes)
        return;
    if (!run->hold())
        return say(tr("Another program is at work on it."), true);
    run->forget();
    fill();
}
