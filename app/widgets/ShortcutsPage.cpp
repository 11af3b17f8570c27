// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShortcutsPage.h"

#include "Icons.h"
#include "Look.h"
#include "ui_ShortcutsPage.h"

#include <QHash>
#include <QKeyEvent>
#include <QMessageBox>

#include <algorithm>

namespace {
enum Column { NameColumn, KeysColumn };
constexpr int CommandRole = Qt::UserRole;
} // namespace

ShortcutsPage::ShortcutsPage(Shortcuts &shortcuts, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ShortcutsPage>())
    , m_shortcuts(shortcuts)
    , m_keys(shortcuts.keys())
{
    m_ui->setupUi(this);
    fill();
    connect(m_ui->txtShortcutFilter, &QLineEdit::textChanged, this, &ShortcutsPage::filter);
    connect(m_ui->treeShortcuts, &QTreeWidget::currentItemChanged, this, &ShortcutsPage::showCurrent);
    connect(m_ui->treeShortcuts, &QTreeWidget::itemDoubleClicked, m_ui->editShortcutKeys,
            qOverload<>(&QWidget::setFocus));
    connect(m_ui->editShortcutKeys, &QKeySequenceEdit::editingFinished, this, &ShortcutsPage::takeTyped);
    connect(m_ui->btnShortcutClear, &QPushButton::clicked, this, [this] { change({}); });
    connect(m_ui->btnShortcutReset, &QPushButton::clicked, this,
            [this] { change(m_shortcuts.commands()[currentCommand()].defaults); });
    connect(m_ui->btnShortcutResetAll, &QPushButton::clicked, this, [this] {
        for (int i = 0; i < m_keys.size(); ++i)
            m_keys[i] = m_shortcuts.commands()[i].defaults;
        refresh();
    });
    connect(m_ui->btnShortcutTake, &QPushButton::clicked, this, &ShortcutsPage::takeOver);
    m_ui->txtShortcutFilter->installEventFilter(this);
    m_ui->treeShortcuts->installEventFilter(this);
    m_ui->editShortcutKeys->installEventFilter(this);
    // So that nothing moves when a conflict comes up.
    QSizePolicy policy = m_ui->btnShortcutTake->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->btnShortcutTake->setSizePolicy(policy);
    refresh();
}

ShortcutsPage::~ShortcutsPage() = default;

bool ShortcutsPage::confirm()
{
    if (m_keys == m_shortcuts.keys())
        return true;
    QStringList shared;
    int first = -1;
    for (int i = 0; i < m_keys.size(); ++i) {
        QVector<int> rivals = m_shortcuts.rivals(i, m_keys);
        if (!rivals.isEmpty() && first < 0)
            first = i;
        // Each pair once.
        rivals.erase(std::remove_if(rivals.begin(), rivals.end(), [i](int other) { return other < i; }),
                     rivals.end());
        if (!rivals.isEmpty())
            shared << tr("%1: %2 and %3").arg(keysText(m_keys[i]), title(i), titles(rivals));
    }
    if (shared.isEmpty())
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Shortcuts"),
        tr("Commands that share their keys do nothing when these are pressed:\n\n%1\n\nKeep them like this?")
            .arg(shared.join(QLatin1Char('\n'))),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes) {
        m_ui->txtShortcutFilter->clear();
        m_ui->treeShortcuts->setCurrentItem(m_items[first]);
    }
    return answer == QMessageBox::Yes;
}

void ShortcutsPage::store()
{
    if (m_keys != m_shortcuts.keys())
        m_shortcuts.setKeys(m_keys);
}

void ShortcutsPage::fill()
{
    QHash<QString, QTreeWidgetItem *> groups;
    QTreeWidget *tree = m_ui->treeShortcuts;
    for (int i = 0; i < m_keys.size(); ++i) {
        const ShortcutCommand &command = m_shortcuts.commands()[i];
        QTreeWidgetItem *&group = groups[command.group];
        if (!group) {
            group = new QTreeWidgetItem(tree, {command.group});
            group->setFirstColumnSpanned(true);
            group->setFlags(Qt::ItemIsEnabled);
            group->setExpanded(true);
        }
        auto *item = new QTreeWidgetItem(group, {command.name});
        item->setData(NameColumn, CommandRole, i);
        m_items.append(item);
    }
    for (const int column : {NameColumn, KeysColumn})
        tree->resizeColumnToContents(column);
    if (!m_items.isEmpty())
        tree->setCurrentItem(m_items.first());
}

/// Shows all keys as they are now.
void ShortcutsPage::refresh()
{
    const QColor red = warningColor(palette());
    for (int i = 0; i < m_items.size(); ++i) {
        const ShortcutCommand &command = m_shortcuts.commands()[i];
        QTreeWidgetItem *item = m_items[i];
        const QVector<int> rivals = m_shortcuts.rivals(i, m_keys);
        item->setText(KeysColumn, keysText(m_keys[i]));
        QFont font;
        font.setBold(m_keys[i] != command.defaults);
        item->setFont(KeysColumn, font);
        QString tip;
        if (!rivals.isEmpty())
            tip = tr("These keys also belong to %1").arg(titles(rivals));
        else if (command.actions.isEmpty())
            tip = tr("These keys are always the same");
        else if (font.bold())
            tip = command.defaults.isEmpty() ? tr("Usually without keys")
                                             : tr("Usually %1").arg(keysText(command.defaults));
        for (const int column : {NameColumn, KeysColumn}) {
            item->setToolTip(column, tip);
            item->setForeground(column, rivals.isEmpty() ? QBrush() : QBrush(red));
        }
        item->setIcon(KeysColumn, rivals.isEmpty() ? QIcon() : namedIcon(QStringLiteral("warning")));
    }
    QPalette colors = m_ui->lblShortcutConflict->palette();
    colors.setColor(QPalette::WindowText, red);
    m_ui->lblShortcutConflict->setPalette(colors);
    showCurrent();
}

void ShortcutsPage::showCurrent()
{
    const int current = currentCommand();
    const bool canChange = current >= 0 && !m_shortcuts.commands()[current].actions.isEmpty();
    for (QWidget *widget :
         {static_cast<QWidget *>(m_ui->editShortcutKeys), static_cast<QWidget *>(m_ui->lblShortcutKeys)})
        widget->setEnabled(canChange);
    m_ui->btnShortcutClear->setEnabled(canChange && !m_keys[current].isEmpty());
    m_ui->btnShortcutReset->setEnabled(canChange &&
                                       m_keys[current] != m_shortcuts.commands()[current].defaults);
    bool isUsual = true;
    for (int i = 0; i < m_keys.size(); ++i)
        isUsual = isUsual && m_keys[i] == m_shortcuts.commands()[i].defaults;
    m_ui->btnShortcutResetAll->setEnabled(!isUsual);

    const QKeySequence shown = current >= 0 ? m_keys[current].value(0) : QKeySequence();
    // This ends a typing too, which would otherwise go to the command that is current now.
    const QSignalBlocker blocker(m_ui->editShortcutKeys);
    m_ui->editShortcutKeys->setKeySequence(shown);
    const QVector<int> rivals = current >= 0 ? m_shortcuts.rivals(current, m_keys) : QVector<int>();
    m_ui->lblShortcutConflict->setText(
        rivals.isEmpty() ? QString() : tr("These keys also belong to %1.").arg(titles(rivals)));
    m_ui->btnShortcutTake->setVisible(!rivals.isEmpty());
    m_ui->btnShortcutTake->setEnabled(canChange &&
                                      std::any_of(rivals.begin(), rivals.end(), [this](int rival) {
                                          return !m_shortcuts.commands()[rival].actions.isEmpty();
                                      }));
}

void ShortcutsPage::filter(const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTreeWidget *tree = m_ui->treeShortcuts;
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = tree->topLevelItem(i);
        bool isEmpty = true;
        for (int row = 0; row < group->childCount(); ++row) {
            QTreeWidgetItem *item = group->child(row);
            const QString all = group->text(NameColumn) + QLatin1Char('\n') + item->text(NameColumn) +
                                QLatin1Char('\n') + item->text(KeysColumn);
            const bool fits = std::all_of(words.begin(), words.end(), [&all](const QString &word) {
                return all.contains(word, Qt::CaseInsensitive);
            });
            item->setHidden(!fits);
            isEmpty = isEmpty && !fits;
            if (fits && !first)
                first = item;
        }
        group->setHidden(isEmpty);
    }
    // What is changed below has to be what is seen.
    if (!tree->currentItem() || tree->currentItem()->isHidden())
        tree->setCurrentItem(first);
    if (tree->currentItem())
        tree->scrollToItem(tree->currentItem());
}

void ShortcutsPage::takeTyped()
{
    const QKeySequence typed = m_ui->editShortcutKeys->keySequence();
    const int current = currentCommand();
    // The field is empty when Shift and its like are all that was pressed: that clears nothing.
    if (current < 0 || typed.isEmpty() || typed == m_keys[current].value(0))
        showCurrent();
    else
        change({typed});
}

void ShortcutsPage::change(const Keys &keys)
{
    const int current = currentCommand();
    if (current < 0)
        return;
    m_keys[current] = keys;
    refresh();
}

void ShortcutsPage::takeOver()
{
    const int current = currentCommand();
    for (const int rival : m_shortcuts.rivals(current, m_keys)) {
        if (m_shortcuts.commands()[rival].actions.isEmpty())
            continue;
        // Those of its keys that are in no one's way stay.
        Keys kept;
        for (const QKeySequence &each : qAsConst(m_keys[rival])) {
            if (std::none_of(m_keys[current].begin(), m_keys[current].end(),
                             [&each](const QKeySequence &mine) { return collide(mine, each); }))
                kept.append(each);
        }
        m_keys[rival] = kept;
    }
    refresh();
    m_ui->editShortcutKeys->setFocus();
}

int ShortcutsPage::currentCommand() const
{
    const QTreeWidgetItem *item = m_ui->treeShortcuts->currentItem();
    return item && item->parent() ? item->data(NameColumn, CommandRole).toInt() : -1;
}

QString ShortcutsPage::title(int command) const
{
    const ShortcutCommand &named = m_shortcuts.commands()[command];
    return tr("%1 ▸ %2").arg(named.group, named.name);
}

QString ShortcutsPage::titles(const QVector<int> &commands) const
{
    QStringList all;
    for (const int command : commands)
        all << title(command);
    return all.join(tr(" and "));
}

bool ShortcutsPage::hasKeypadKeys() const
{
    const int current = currentCommand();
    const Keys defaults = current < 0 ? Keys() : m_shortcuts.commands()[current].defaults;
    return std::any_of(defaults.begin(), defaults.end(),
                       [](const QKeySequence &each) { return (each[0] & int(Qt::KeypadModifier)) != 0; });
}

bool ShortcutsPage::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_ui->txtShortcutFilter && (isReturn || key == Qt::Key_Down)) {
        m_ui->treeShortcuts->setFocus();
        return true;
    }
    if (watched == m_ui->txtShortcutFilter && key == Qt::Key_Escape &&
        !m_ui->txtShortcutFilter->text().isEmpty()) {
        m_ui->txtShortcutFilter->clear(); // and the dialog stays
        return true;
    }
    if (watched == m_ui->treeShortcuts && isReturn) {
        m_ui->editShortcutKeys->setFocus();
        return true;
    }
    // The field takes a keypad's key for any other; only some commands tell them apart.
    if (watched == m_ui->editShortcutKeys && key != 0 && hasKeypadKeys()) {
        const auto modifiers = static_cast<QKeyEvent *>(event)->modifiers();
        if ((modifiers & Qt::KeypadModifier) != 0) {
            change({QKeySequence(int(modifiers) | key)});
            return true;
        }
    }
    // The field itself waits a second for more keys.
    if (watched == m_ui->editShortcutKeys && event->type() == QEvent::FocusOut)
        takeTyped();
    return QWidget::eventFilter(watched, event);
}
