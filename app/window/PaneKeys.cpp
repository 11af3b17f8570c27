// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PaneKeys.h"

#include "DocumentPanes.h"
#include "ViewToolBar.h"
#include "ui_MainWindow.h"

#include <algorithm>

namespace {
bool takesKeys(const QWidget *widget, const QWidget *window)
{
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisible() && widget->window() == window;
}
} // namespace

PaneKeys::PaneKeys(const Ui::MainWindow &ui, QMainWindow *window)
    : QMenu(tr("&Jump To"), window)
    , m_window(window)
    , m_tabs(ui.tabWidget)
    , m_trees(ui.tabTrees)
{
    setObjectName(QStringLiteral("menuGoTo"));
    for (QSplitter *explorers : {ui.splitterSkinnedExplorers, ui.splitterStaticExplorer}) {
        for (int i = 0; i < explorers->count(); ++i)
            m_panes.append({explorers->widget(i)});
    }
    m_panes.append({ui.viewSkinned, ui.viewSkinnedPanel->findChild<ViewToolBar *>()});
    m_panes.append({ui.viewStatic, ui.viewStaticPanel->findChild<ViewToolBar *>()});
    m_panes.append({ui.animTrackFrame});
    m_panes.append({ui.tabTrees->tabBar(), ui.treeSkinnedMesh, ui.treeAnim, ui.tabTrees});
    m_panes.append({ui.treeStaticMesh, ui.treeStaticMeshTab});
    m_panes.append({ui.stackSkinned});
    m_panes.append({ui.pagesStaticMesh});
    for (QWidget *tab : std::initializer_list<QWidget *>{ui.tabDatabase, ui.tabTutorials, ui.tabCommunity})
        m_panes.append({tab});
    for (QDockWidget *dock : window->findChildren<QDockWidget *>())
        m_panes.append({dock});

    addTabs();
    const auto add = [this](const char *name, const QString &text, const QString &tip, const char *keys,
                            void (PaneKeys::*slot)()) {
        QAction *action = addAction(text, this, slot);
        action->setObjectName(QLatin1String(name));
        action->setToolTip(tip);
        action->setStatusTip(tip);
        action->setShortcut(QKeySequence(QLatin1String(keys)));
    };
    addSeparator();
    add("actionNextPane", tr("&Next Pane"), tr("Give the keys to the next part of the window"), "F6",
        &PaneKeys::OnNextPane);
    add("actionPreviousPane", tr("&Previous Pane"), tr("Give the keys to the part of the window before"),
        "Shift+F6", &PaneKeys::OnPreviousPane);
    add("actionOtherTree", tr("&Other Tree"), tr("Go to the tree of the animation, or of the skinned mesh"),
        "Ctrl+T", &PaneKeys::OnOtherTree);
}

void PaneKeys::addTabs()
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        const QString title = m_tabs->tabText(i);
        QAction *action = addAction(QStringLiteral("&%1 %2").arg(QString::number(i + 1), title));
        action->setObjectName(QStringLiteral("actionGoTo_") + m_tabs->widget(i)->objectName());
        action->setToolTip(m_tabs->tabToolTip(i));
        action->setStatusTip(m_tabs->tabToolTip(i));
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)));
        connect(action, &QAction::triggered, m_tabs, [this, i] { m_tabs->setCurrentIndex(i); });
    }
}

QVector<PaneKeys::Stop> PaneKeys::stops() const
{
    QVector<QWidget *> all;
    for (QWidget *widget = m_window->nextInFocusChain(); widget != m_window;
         widget = widget->nextInFocusChain()) {
        if (takesKeys(widget, m_window))
            all.append(widget);
    }
    QVector<Stop> sorted;
    const auto take = [&](const QWidget *part, int pane) {
        for (QWidget *&widget : all) {
            if (!widget || (part && part != widget && !part->isAncestorOf(widget)))
                continue;
            sorted.append({widget, pane});
            widget = nullptr;
        }
    };
    for (int pane = 0; pane < m_panes.size(); ++pane) {
        for (const QWidget *part : m_panes[pane]) {
            if (part)
                take(part, pane);
        }
    }
    take(nullptr, m_panes.size());
    return sorted;
}

bool PaneKeys::focusNext(bool forward)
{
    const QVector<Stop> all = stops();
    if (all.isEmpty())
        return false;
    const QWidget *current = m_window->focusWidget();
    const auto at =
        std::find_if(all.begin(), all.end(), [current](const Stop &stop) { return stop.widget == current; });
    const int count = all.size();
    const int next = at == all.end() ? (forward ? 0 : count - 1)
                                     : (int(at - all.begin()) + (forward ? 1 : count - 1)) % count;
    all[next].widget->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void PaneKeys::movePane(int step)
{
    const QVector<Stop> all = stops();
    QVector<int> panes; // what stands around them is none
    int current = -1;
    for (const Stop &stop : all) {
        if (stop.pane < m_panes.size() && !panes.contains(stop.pane))
            panes.append(stop.pane);
        if (stop.widget == m_window->focusWidget())
            current = panes.indexOf(stop.pane);
    }
    if (panes.isEmpty())
        return;
    const int count = panes.size();
    const int pane = panes[current < 0 ? (step > 0 ? 0 : count - 1) : (current + step + count) % count];
    // Back to where one was in it, or to what it is about: bars of tabs and filters can wait.
    QWidget *target = nullptr;
    for (const Stop &stop : all) {
        if (stop.pane != pane)
            continue;
        const bool isBar = qobject_cast<QTabBar *>(stop.widget);
        if (!target || qobject_cast<QTabBar *>(target))
            target = isBar && target ? target : stop.widget;
    }
    for (const QWidget *part : m_panes[pane]) {
        QWidget *last = part ? part->focusWidget() : nullptr;
        if (last && takesKeys(last, m_window)) {
            target = last;
            break;
        }
    }
    target->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void PaneKeys::OnNextPane()
{
    movePane(1);
}

void PaneKeys::OnPreviousPane()
{
    movePane(-1);
}

void PaneKeys::OnOtherTree()
{
    m_tabs->setCurrentIndex(0);
    const bool toAnim = m_trees->currentIndex() == 0;
    m_trees->setCurrentIndex(toAnim ? 1 : 0);
    m_trees->currentWidget()->findChild<KVTreeView *>()->setFocus(Qt::ShortcutFocusReason);
}
