// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandPalette.h"

#include "ListKeys.h"
#include "Shortcuts.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {
const QString Arrow = QStringLiteral(" ▸ ");
constexpr int KeysRole = Qt::UserRole + 1;
constexpr int IconSide = 16;
constexpr int Gap = 8; ///< around the keys

/// A row with the command's keys at its right end.
class CommandDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QString keys = index.data(KeysRole).toString();
        QStyleOptionViewItem row(option);
        initStyleOption(&row, index);
        const int width = keys.isEmpty() ? 0 : row.fontMetrics.horizontalAdvance(keys) + 2 * Gap;
        // Long names end before the keys.
        row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight,
                                              row.rect.width() - width - IconSide - 2 * Gap);
        row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        const bool isSelected = row.state & QStyle::State_Selected;
        const auto group = row.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
        painter->setPen(
            row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
        painter->drawText(row.rect.adjusted(0, 0, -Gap, 0), int(Qt::AlignRight | Qt::AlignVCenter), keys);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {1, std::max(IconSide, option.fontMetrics.height()) + 4};
    }
};
} // namespace

CommandPalette::CommandPalette(const QMenuBar &menus, const QList<QAction *> &treeActions, QWidget *parent)
    : QDialog(parent)
    , m_line(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("CommandPalette"));
    setWindowTitle(tr("Commands"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_line->setObjectName(QStringLiteral("lineCommand"));
    m_line->setPlaceholderText(tr("What to do: a few letters of its name"));
    m_line->setAccessibleName(tr("Command"));
    m_line->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("listCommands"));
    m_list->setAccessibleName(tr("Commands"));
    m_list->setUniformItemSizes(true);
    m_list->setIconSize({IconSide, IconSide});
    m_list->setItemDelegate(new CommandDelegate(m_list));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    resize(fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 22);

    collect(menus.actions(), {});
    collect(treeActions, tr("Tree") + Arrow);
    connect(m_line, &QLineEdit::textChanged, this, &CommandPalette::fill);
    connect(new ListKeys(m_line, m_list), &ListKeys::accepted, this, &CommandPalette::accept);
    connect(m_list, &QListWidget::itemActivated, this, &CommandPalette::accept);
    fill();
    m_line->setFocus();
}

void CommandPalette::add(const QVector<ShortcutCommand> &commands)
{
    const auto isInSight = [](const QAction *action) {
        const QList<QWidget *> widgets = action->associatedWidgets();
        return std::any_of(widgets.begin(), widgets.end(),
                           [](const QWidget *widget) { return widget->isVisible(); });
    };
    for (const ShortcutCommand &command : commands) {
        QList<QAction *> actions = command.actions;
        actions.erase(std::remove_if(actions.begin(), actions.end(), std::not_fn(isInSight)), actions.end());
        for (QAction *action : qAsConst(actions)) {
            QStringList name{command.group, command.name};
            // Several panels may have it: which one?
            if (actions.size() > 1)
                name.insert(1, action->parentWidget()->accessibleName());
            list(action, name.join(Arrow));
        }
    }
    fill();
}

void CommandPalette::list(QAction *action, const QString &name)
{
    const bool isListed = std::any_of(m_commands.begin(), m_commands.end(),
                                      [action](const Command &command) { return command.action == action; });
    if (!isListed && action->isVisible())
        m_commands.append({action, name});
}

void CommandPalette::collect(const QList<QAction *> &actions, const QString &path)
{
    for (QAction *action : actions) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        const QString name = path + plainText(action);
        if (action->menu()) {
            // Some are filled only then.
            emit action->menu()->aboutToShow();
            collect(action->menu()->actions(), name + Arrow);
        } else {
            list(action, name);
        }
    }
}

int CommandPalette::fit(const QString &typed, const QString &name)
{
    constexpr int Impossible = -1;
    // By place of the letter matched last, one behind it; at first none is matched.
    QVector<int> best(name.size() + 1, Impossible);
    best[0] = 0;
    bool together = false;
    for (const QChar letter : typed) {
        if (letter.isSpace()) {
            together = false;
            continue;
        }
        QVector<int> next(best.size(), Impossible);
        for (int at = 0; at < name.size(); ++at) {
            if (name[at].toCaseFolded() != letter.toCaseFolded())
                continue;
            const bool beginsWord = at == 0 || !name[at - 1].isLetterOrNumber();
            for (int before = 0; before <= at; ++before) {
                if (best[before] == Impossible)
                    continue;
                const int gain = together && before == at ? 3 : beginsWord ? 2 : 0;
                next[at + 1] = std::max(next[at + 1], best[before] + gain);
            }
        }
        best = next;
        together = true;
    }
    return *std::max_element(best.begin(), best.end());
}

void CommandPalette::fill()
{
    struct Row
    {
        const Command *command;
        int score;
    };
    QVector<Row> rows;
    for (const Command &command : qAsConst(m_commands)) {
        const int score = fit(m_line->text(), command.name);
        if (score >= 0)
            rows.append({&command, score});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return a.score > b.score; });

    m_list->clear();
    for (const Row &row : qAsConst(rows)) {
        const QAction *action = row.command->action;
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        auto *item = new QListWidgetItem(action->icon(), row.command->name);
        item->setData(KeysRole, keys);
        item->setData(Qt::AccessibleDescriptionRole, keys);
        item->setData(Qt::UserRole, int(row.command - m_commands.constData()));
        item->setToolTip(action->statusTip());
        if (!action->isEnabled())
            item->setFlags(item->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
        m_list->addItem(item);
    }
    // The best that can be done now.
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->flags() & Qt::ItemIsEnabled) {
            m_list->setCurrentRow(row);
            break;
        }
    }
}

void CommandPalette::accept()
{
    const QListWidgetItem *item = m_list->currentItem();
    if (!item || !(item->flags() & Qt::ItemIsEnabled))
        return;
    QAction *action = m_commands[item->data(Qt::UserRole).toInt()].action;
    QDialog::accept();
    // After the dialog has gone: the command may open one of its own, and asks who has the focus.
    QTimer::singleShot(0, action, &QAction::trigger);
}
