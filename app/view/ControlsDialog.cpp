// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ControlsDialog.h"

#include "FlightKeys.h"
#include "Shortcuts.h"
#include "ui_ControlsDialog.h"

#include <QHash>

#include <algorithm>

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

QString keyOf(FlightMotion motion)
{
    const auto *key = std::find_if(std::begin(FlightKeys), std::end(FlightKeys),
                                   [motion](const FlightKey &each) { return each.motion == motion; });
    return QKeySequence(key->key).toString(QKeySequence::NativeText);
}

QString keysOf(FlightMotion one, FlightMotion other)
{
    return keyOf(one) + QStringLiteral(" / ") + keyOf(other);
}
} // namespace

ControlsDialog::ControlsDialog(const Shortcuts &shortcuts, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ControlsDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    const QString viewRows[][2] = {
        {keysOf(FlightMotion::Forward, FlightMotion::Back), tr("Fly forward / back")},
        {keysOf(FlightMotion::Left, FlightMotion::Right), tr("Fly left / right")},
        {tr("Shift"), tr("Fly three times as fast")},
        {keyOf(FlightMotion::ResetCamera), tr("Reset the camera")},
        {tr("Left drag"), tr("Move over the ground")},
        {tr("Right drag"), tr("Look around")},
        {tr("Left + right drag"), tr("Move up, down and sideways")},
        {tr("Click"), tr("Select the surface, bone or hot point under the mouse")},
        {tr("Drag of a grip or mark"),
         tr("Move a face of the selected box, the selected hot point or action offset")},
        {tr("X, Y, Z while dragging"), tr("Move along an axis; again: along the bone's")},
        {tr("Ctrl, B, Esc while dragging"), tr("Snap; let the bone below take it; give up")},
        {tr("Alt + left drag"), tr("Turn around the model")},
        {tr("Alt + middle drag"), tr("Move the model sideways, up and down")},
        {tr("Wheel"), tr("Go nearer or farther away")},
        {tr("Click on an end of the axis gizmo"), tr("Look from that side; a drag turns around the model")},
    };
    QTreeWidget *tree = m_ui->treeControls;
    QTreeWidgetItem *view = addGroup(tree, tr("3D view"));
    for (const auto &row : viewRows)
        view->addChild(new QTreeWidgetItem(QStringList{row[0], row[1]}));

    QHash<QString, QTreeWidgetItem *> groups;
    for (int i = 0; i < shortcuts.commands().size(); ++i) {
        const ShortcutCommand &command = shortcuts.commands()[i];
        const QString keys = keysText(shortcuts.keys()[i]);
        if (keys.isEmpty() || command.actions.isEmpty())
            continue;
        QTreeWidgetItem *&group = groups[command.group];
        if (!group)
            group = addGroup(tree, command.group);
        group->addChild(new QTreeWidgetItem(QStringList{keys, command.name}));
    }
    addGroup(tree, tr("Several records"))
        ->addChild(new QTreeWidgetItem(QStringList{
            tr("Ctrl+click, Shift+click"), tr("Select several records; an edit goes to all of them")}));

    tree->expandAll();
    for (int column = 0; column < tree->columnCount(); ++column) {
        tree->resizeColumnToContents(column);
        tree->setColumnWidth(column, tree->columnWidth(column) + 3 * fontMetrics().averageCharWidth());
    }
}

ControlsDialog::~ControlsDialog() = default;
