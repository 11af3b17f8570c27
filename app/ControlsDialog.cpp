// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ControlsDialog.h"

#include "ui_ControlsDialog.h"

#include <QAction>

namespace {
QTreeWidgetItem *addGroup(QTreeWidget *tree, const QString &title)
{
    auto *group = new QTreeWidgetItem(tree, {title});
    QFont font = tree->font();
    font.setBold(true);
    group->setFont(0, font);
    group->setFirstColumnSpanned(true);
    group->setFlags(Qt::ItemIsEnabled);
    group->setExpanded(true);
    return group;
}

QString titleOf(const QAction *action)
{
    QString title = action->text();
    title.remove(QLatin1Char('&'));
    while (title.endsWith(QLatin1Char('.')) || title.endsWith(QChar(0x2026)))
        title.chop(1);
    return title;
}

QString shortcutsOf(const QAction *action)
{
    QStringList texts;
    const QList<QKeySequence> shortcuts = action->shortcuts();
    for (const QKeySequence &shortcut : shortcuts) {
        if (!shortcut.isEmpty())
            texts << shortcut.toString(QKeySequence::NativeText);
    }
    return texts.join(QStringLiteral(", "));
}
} // namespace

ControlsDialog::ControlsDialog(const QList<QAction *> &actions, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ControlsDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    const QString viewRows[][2] = {
        {tr("W / S"), tr("Fly forward / back")},
        {tr("A / D"), tr("Fly left / right")},
        {tr("Shift"), tr("Fly three times as fast")},
        {tr("C"), tr("Reset the camera")},
        {tr("Left drag"), tr("Move over the ground")},
        {tr("Right drag"), tr("Look around")},
        {tr("Left + right drag"), tr("Move up, down and sideways")},
        {tr("Click"), tr("Select the surface, bone or hot point under the mouse")},
        {tr("Alt + left drag"), tr("Turn around the model")},
        {tr("Alt + middle drag"), tr("Move the model sideways, up and down")},
        {tr("Alt + wheel"), tr("Go nearer or farther away")},
        {tr("Space"), tr("Play the animation, or pause it")},
        {tr(", / ."), tr("Go back / on one frame")},
        {tr("[ / ]"), tr("Go to the previous / next key frame action")},
    };
    QTreeWidget *tree = m_ui->treeControls;
    QTreeWidgetItem *view = addGroup(tree, tr("3D view"));
    for (const auto &row : viewRows)
        view->addChild(new QTreeWidgetItem(QStringList{row[0], row[1]}));

    QList<QTreeWidgetItem *> shortcuts;
    for (const QAction *action : actions) {
        const QString keys = shortcutsOf(action);
        if (keys.isEmpty() || action->isSeparator())
            continue;
        // Those of the view have short titles, which say little without their menu.
        if (action->shortcutContext() == Qt::WidgetShortcut)
            view->addChild(new QTreeWidgetItem(QStringList{keys, action->statusTip()}));
        else
            shortcuts << new QTreeWidgetItem(QStringList{keys, titleOf(action)});
    }
    if (!shortcuts.isEmpty())
        addGroup(tree, tr("Window"))->addChildren(shortcuts);

    const QString treeRows[][2] = {
        {tr("Ins"), tr("Add a record after the current one")},
        {tr("Del"), tr("Remove the selected records")},
        {tr("Ctrl+C / Ctrl+V"), tr("Copy / paste a hot point or an animation")},
        {tr("Ctrl+click, Shift+click"), tr("Select several records; an edit goes to all of them")},
    };
    QTreeWidgetItem *records = addGroup(tree, tr("Trees"));
    for (const auto &row : treeRows)
        records->addChild(new QTreeWidgetItem(QStringList{row[0], row[1]}));

    tree->expandAll();
    for (int column = 0; column < tree->columnCount(); ++column) {
        tree->resizeColumnToContents(column);
        tree->setColumnWidth(column, tree->columnWidth(column) + 3 * fontMetrics().averageCharWidth());
    }
}

ControlsDialog::~ControlsDialog() = default;
