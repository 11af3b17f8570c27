// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderExplorer.h"

#include "FolderTree.h"
#include "Icons.h"
#include "Shortcuts.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {
struct KindNames
{
    const char *prefix; ///< of object names
    const char *icon;
};

const KindNames &namesOf(DocumentType type)
{
    static const KindNames names[] = {
        {"SkinnedMesh", "filemesh"}, {"Anim", "fileanim"}, {"StaticMesh", "filestatic"}};
    return names[size_t(type)];
}

} // namespace

FolderExplorer::FolderExplorer(const DocumentKind &kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_tree(new FolderTree({namedIcon(QStringLiteral("folder")), namedIcon(QStringLiteral("folderopen")),
                             namedIcon(QLatin1String(namesOf(kind.type).icon))}))
    , m_toolBar(new QToolBar)
    , m_pages(new QStackedLayout)
    , m_emptyPage(new QFrame)
    , m_emptyLabel(new QLabel)
    , m_contextMenu(new QMenu(this))
{
    const QString prefix = QLatin1String(namesOf(kind.type).prefix);
    setObjectName(QStringLiteral("explorer") + prefix);
    m_tree->setObjectName(QStringLiteral("tree%1Folder").arg(prefix));
    setAccessibleName(m_kind.label);
    m_tree->setAccessibleName(m_kind.folderTitle);
    m_tree->setUniformRowHeights(true);
    m_tree->setColumnCount(1);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->installEventFilter(this);
    m_tree->viewport()->installEventFilter(this);
    setFocusProxy(m_tree);

    createActions();
    createEmptyPage();
    createContextMenu();
    m_toolBar->setObjectName(QStringLiteral("tb%1Folder").arg(prefix));
    m_toolBar->setIconSize({16, 16});
    auto *caption = new QLabel(kind.label);
    caption->setObjectName(QStringLiteral("lbl%1Folder").arg(prefix));
    caption->setMargin(4);
    caption->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(caption);
    m_toolBar->addAction(m_changeFolder);
    m_toolBar->addAction(m_refresh);
    m_toolBar->addAction(m_quickSelect);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addLayout(m_pages);
    // Only now: a stack shows its first page, and one that is in no window would become a window.
    m_pages->addWidget(m_tree);
    m_pages->addWidget(m_emptyPage);

    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &FolderExplorer::OnItemSelectionChanged);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &FolderExplorer::OnItemDoubleClicked);
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this, &FolderExplorer::OnContextMenu);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &FolderExplorer::updateActions);
    refill();
}

QAction *FolderExplorer::addAction(const char *name, const char *iconName, const QString &text,
                                   const QString &toolTip)
{
    auto *action = new QAction(namedIcon(QLatin1String(iconName)), text, this);
    action->setObjectName(
        QStringLiteral("action%1%2").arg(QLatin1String(namesOf(m_kind.type).prefix), QLatin1String(name)));
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, QStringLiteral("actionFolder") + QLatin1String(name), tr("Folders"), QString());
    QWidget::addAction(action);
    return action;
}

void FolderExplorer::createActions()
{
    m_open = addAction("Open", "open", tr("&Open"), tr("Open this file"));
    m_openFolder = addAction("OpenFolder", "folderopen", tr("Open Containing &Folder"),
                             tr("Show the folder in the desktop's file manager"));
    m_copyPath = addAction("CopyPath", "copy", tr("Copy &Path"), tr("Copy the full path to the clipboard"));
    m_changeFolder =
        addAction("ChangeFolder", "changefolder", tr("&Change Folder..."), tr("Choose the folder to list"));
    m_refresh = addAction("Refresh", "refresh", tr("&Refresh"), tr("Read the folder again"));
    m_quickSelect = addAction("QuickSelect", "quickselect", tr("&Load On Select"),
                              tr("Open a file as soon as it is selected"));
    m_expandAll = addAction("ExpandAll", "expand", tr("&Expand All"), tr("Open all folders of the list"));
    m_collapseAll =
        addAction("CollapseAll", "collapse", tr("Collapse &All"), tr("Close all folders of the list"));

    m_copyPath->setShortcut(QKeySequence::Copy);
    m_quickSelect->setCheckable(true);
    m_quickSelect->setChecked(m_kind.quickSelect.value());

    connect(m_open, &QAction::triggered, this, &FolderExplorer::OnActionOpen);
    connect(m_openFolder, &QAction::triggered, this, &FolderExplorer::OnActionOpenFolder);
    connect(m_copyPath, &QAction::triggered, this, &FolderExplorer::OnActionCopyPath);
    connect(m_changeFolder, &QAction::triggered, this, &FolderExplorer::changeFolder);
    connect(m_refresh, &QAction::triggered, this, &FolderExplorer::refill);
    connect(m_quickSelect, &QAction::toggled, this, [this](bool on) { m_kind.quickSelect.setValue(on); });
    connect(m_expandAll, &QAction::triggered, m_tree, &QTreeWidget::expandAll);
    connect(m_collapseAll, &QAction::triggered, m_tree, &QTreeWidget::collapseAll);
}

void FolderExplorer::createEmptyPage()
{
    // Several explorers are in sight, so none has a letter.
    auto *button = new QPushButton(m_changeFolder->icon(), m_changeFolder->text().remove(QLatin1Char('&')));
    button->setObjectName(
        QStringLiteral("btn%1ChangeFolder").arg(QLatin1String(namesOf(m_kind.type).prefix)));
    button->setToolTip(m_changeFolder->toolTip());
    connect(button, &QPushButton::clicked, m_changeFolder, &QAction::trigger);

    m_emptyLabel->setObjectName(
        QStringLiteral("lbl%1FolderEmpty").arg(QLatin1String(namesOf(m_kind.type).prefix)));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setTextFormat(Qt::PlainText);

    m_emptyPage->setFrameStyle(m_tree->frameStyle());
    m_emptyPage->setBackgroundRole(QPalette::Base);
    m_emptyPage->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(m_emptyPage);
    layout->addStretch();
    layout->addWidget(m_emptyLabel);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch();
}

void FolderExplorer::createContextMenu()
{
    m_contextMenu->setObjectName(
        QStringLiteral("menu%1Folder").arg(QLatin1String(namesOf(m_kind.type).prefix)));
    m_contextMenu->addAction(m_open);
    m_contextMenu->addAction(m_openFolder);
    m_contextMenu->addAction(m_copyPath);
    m_contextMenu->addSeparator();
    m_contextMenu->addAction(m_changeFolder);
    m_contextMenu->addAction(m_refresh);
    m_contextMenu->addAction(m_quickSelect);
    m_extraBefore = m_contextMenu->addSeparator();
    m_contextMenu->addAction(m_expandAll);
    m_contextMenu->addAction(m_collapseAll);
    m_contextMenu->setDefaultAction(m_open);
}

void FolderExplorer::addExtraAction(QAction *action)
{
    m_toolBar->addAction(action);
    m_contextMenu->insertAction(m_extraBefore, action);
}

QTreeWidget *FolderExplorer::tree() const
{
    return m_tree;
}

void FolderExplorer::setLoadedPath(const QString &path)
{
    m_tree->setLoadedPath(path);
}

QString FolderExplorer::findMatching(const QString &folderName, const QString &baseName) const
{
    return m_tree->findMatching(folderName, baseName);
}

void FolderExplorer::refill()
{
    const QString folder = normalizedFolder(m_kind.explorePath.value());
    const bool sameFolder = folder == m_tree->folder();
    const QString selected = selectedPath();
    const int scrolled = m_tree->verticalScrollBar()->value();
    {
        const QSignalBlocker silence(m_tree);
        const QString ownName = QDir(folder).dirName();
        m_tree->setHeaderLabel(folder.isEmpty() ? m_kind.label : ownName.isEmpty() ? folder : ownName);
        m_tree->header()->setToolTip(QDir::toNativeSeparators(folder));
        m_tree->fill(folder, m_kind.extension);
    }

    m_emptyLabel->setText(emptyText(folder));
    m_pages->setCurrentWidget(m_emptyLabel->text().isEmpty() ? static_cast<QWidget *>(m_tree) : m_emptyPage);
    if (sameFolder) {
        if (!selected.isEmpty())
            selectPath(selected);
        m_tree->verticalScrollBar()->setValue(scrolled);
    }
    updateActions();
}

void FolderExplorer::setFolder(const QString &folder)
{
    m_kind.explorePath.setValue(normalizedFolder(folder));
    refill();
}

void FolderExplorer::changeFolder()
{
    const QString folder = m_chooseFolder(this, m_kind.folderTitle, m_kind.explorePath.value());
    if (!folder.isEmpty())
        setFolder(folder);
}

bool FolderExplorer::quickSelect() const
{
    return m_quickSelect->isChecked();
}

void FolderExplorer::setQuickSelect(bool on)
{
    const QSignalBlocker silence(m_quickSelect);
    m_quickSelect->setChecked(on);
    m_kind.quickSelect.setValue(on);
}

QString FolderExplorer::selectedPath() const
{
    const QList<QTreeWidgetItem *> selection = m_tree->selectedItems();
    return selection.isEmpty() ? QString() : selection.first()->data(0, FolderItem::FilePathRole).toString();
}

bool FolderExplorer::selectPath(const QString &path)
{
    FolderItem *item = m_tree->findItem(path);
    const QSignalBlocker silence(m_tree);
    m_tree->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
    if (item)
        m_tree->scrollToItem(item);
    updateActions();
    return item != nullptr;
}

bool FolderExplorer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree->viewport() && event->type() == QEvent::MouseButtonPress) {
        m_clickedPath.clear();
        // The context menu must not open the file it is asked for.
        if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton)
            return true;
    }
    if (watched == m_tree && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            OnActionOpen();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FolderExplorer::OnItemSelectionChanged()
{
    const QString path = selectedPath();
    if (!quickSelect() || path.isEmpty())
        return;
    m_clickedPath = path;
    emit fileChosen(path);
}

void FolderExplorer::OnItemDoubleClicked(QTreeWidgetItem *item)
{
    const QString path = item->data(0, FolderItem::FilePathRole).toString();
    if (path.isEmpty())
        return;
    // The first of the two clicks may have opened it already.
    if (path == m_clickedPath && path == m_tree->loadedPath())
        return;
    emit fileChosen(path);
}

void FolderExplorer::OnContextMenu(const QPoint &position)
{
    // Current without being selected: the menu's target, not the user's choice.
    m_tree->setCurrentItem(m_tree->itemAt(position), 0, QItemSelectionModel::NoUpdate);
    // Taken now: when the menu closes, the tree makes its first row current if none is.
    const FolderItem *item = m_tree->current();
    m_menuFolder = !item              ? m_tree->folder()
                   : item->isFolder() ? item->path()
                                      : QFileInfo(item->path()).path();
    m_contextMenu->popup(m_tree->viewport()->mapToGlobal(position));
}

void FolderExplorer::OnActionOpen()
{
    FolderItem *item = m_tree->current();
    if (!item)
        return;
    if (item->isFolder())
        item->setExpanded(!item->isExpanded());
    else
        emit fileChosen(item->path());
}

void FolderExplorer::OnActionOpenFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_menuFolder));
}

void FolderExplorer::OnActionCopyPath()
{
    if (const FolderItem *item = m_tree->current())
        QApplication::clipboard()->setText(QDir::toNativeSeparators(item->path()));
}

QString FolderExplorer::emptyText(const QString &folder) const
{
    if (folder.isEmpty())
        return tr("No folder chosen");
    if (!QFileInfo(folder).isDir())
        return tr("There is no folder\n%1").arg(QDir::toNativeSeparators(folder));
    if (m_tree->topLevelItemCount() == 0)
        return tr("No .%1 files in\n%2").arg(m_kind.extension, QDir::toNativeSeparators(folder));
    return {};
}

void FolderExplorer::updateActions()
{
    const FolderItem *item = m_tree->current();
    const bool listed = m_tree->topLevelItemCount() > 0;
    m_open->setEnabled(item != nullptr);
    m_copyPath->setEnabled(item != nullptr);
    m_openFolder->setEnabled(!m_tree->folder().isEmpty());
    m_expandAll->setEnabled(listed);
    m_collapseAll->setEnabled(listed);
}
