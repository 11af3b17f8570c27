// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderExplorer.h"

#include "Files.h"
#include "FilterEdit.h"
#include "FolderMenu.h"
#include "FolderSource.h"
#include "FolderTree.h"
#include "Icons.h"
#include "ReadingSign.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
QString prefixOf(DocumentType type)
{
    static const char *const prefixes[] = {"SkinnedMesh", "Anim", "StaticMesh"};
    return QLatin1String(prefixes[size_t(type)]);
}

FolderIcons iconsOf(DocumentType type)
{
    static const char *const files[] = {"filemesh", "fileanim", "filestatic"};
    return {namedIcon(QStringLiteral("folder")), namedIcon(QStringLiteral("folderopen")),
            namedIcon(QLatin1String(files[size_t(type)]))};
}
} // namespace

FolderExplorer::FolderExplorer(const DocumentKind &kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_names{prefixOf(kind.type)}
    , m_tree(new FolderTree(iconsOf(kind.type)))
    , m_toolBar(new QToolBar)
    , m_filter(new FilterEdit(
          tr("Filter"),
          tr("Show only the files that have these words in their name or in their folders' names")))
    , m_reading(new ReadingSign)
    , m_pages(new QStackedLayout)
    , m_emptyPage(new QFrame)
    , m_emptyLabel(new QLabel)
{
    setObjectName(m_names.of("explorer%1"));
    m_tree->setObjectName(m_names.of("tree%1Folder"));
    m_filter->setObjectName(m_names.of("txt%1FolderFilter"));
    setAccessibleName(m_kind.label);
    m_tree->setAccessibleName(m_kind.folderTitle);
    m_tree->setUniformRowHeights(true);
    m_tree->setColumnCount(1);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->installEventFilter(this);
    m_tree->viewport()->installEventFilter(this);

    createActions();
    createEmptyPage();
    createToolBar();
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 2);
    row->setSpacing(2);
    row->addWidget(m_switch);
    row->addWidget(m_filter, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addLayout(row);
    layout->addWidget(m_reading);
    layout->addLayout(m_pages);
    // Only now: a stack shows its first page, and one that is in no window would become a window.
    m_pages->addWidget(m_tree);
    m_pages->addWidget(m_emptyPage);

    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &FolderExplorer::OnItemSelectionChanged);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &FolderExplorer::OnItemDoubleClicked);
    connect(m_tree, &FolderTree::filled, this, &FolderExplorer::OnFilled);
    connect(m_tree, &FolderTree::filterChanged, this, &FolderExplorer::showShownRows);
    connect(m_menu, &FolderMenu::fileChosen, this, &FolderExplorer::fileChosen);
    connect(m_filter, &FilterEdit::filtered, m_tree, &FolderTree::setFilter);
    connect(m_filter, &FilterEdit::left, m_tree, qOverload<>(&QWidget::setFocus));
    connect(m_filter, &FilterEdit::entered, this, &FolderExplorer::goToFirst);
    connect(m_switch, &FolderSwitch::folderChosen, this, &FolderExplorer::setFolder);
    connect(&m_archive, &ArchiveWatch::replaced, this, &FolderExplorer::refill);
    connect(m_reading, &ReadingSign::stopped, this, &FolderExplorer::OnReadingStopped);
    m_tree->showEmptyFolders(Settings::ExplorerEmptyFolders.value());
}

/// Of the files that the filter has left.
void FolderExplorer::goToFirst(bool opens)
{
    FolderItem *first = m_tree->firstShownFile();
    if (!first)
        return;
    m_tree->setFocus();
    if (opens) {
        m_tree->selectFile(first->path());
        emit fileChosen(first->path());
    } else {
        m_tree->setCurrentItem(first);
    }
}

void FolderExplorer::createActions()
{
    m_menu = new FolderMenu(*m_tree, *this, m_names);
    m_changeFolder = addFolderAction(*this, m_names, "ChangeFolder", "changefolder", tr("&Change Folder…"),
                                     tr("Choose the folder to list"));
    m_refresh =
        addFolderAction(*this, m_names, "Refresh", "refresh", tr("&Refresh"), tr("Read the folder again"));
    m_quickSelect = addFolderAction(*this, m_names, "QuickSelect", "quickselect", tr("&Load On Select"),
                                    tr("Open a file as soon as it is selected"));
    m_switch = new FolderSwitch(m_kind, *this, m_names, m_changeFolder);
    m_quickSelect->setCheckable(true);
    m_quickSelect->setChecked(m_kind.quickSelect.value());

    connect(m_changeFolder, &QAction::triggered, this, &FolderExplorer::changeFolder);
    connect(m_refresh, &QAction::triggered, this, &FolderExplorer::refill);
    connect(m_quickSelect, &QAction::toggled, this, [this](bool on) { m_kind.quickSelect.setValue(on); });
    for (QAction *action : {m_changeFolder, m_refresh, m_quickSelect})
        m_menu->addExtraAction(action);
}

void FolderExplorer::createToolBar()
{
    m_toolBar->setObjectName(m_names.of("tb%1Folder"));
    m_toolBar->setIconSize({16, 16});
    auto *caption = new QLabel(m_kind.label);
    caption->setObjectName(m_names.of("lbl%1Folder"));
    caption->setMargin(4);
    caption->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(caption);
    m_toolBar->addActions({m_changeFolder, m_refresh, m_quickSelect});
}

void FolderExplorer::createEmptyPage()
{
    // Several explorers are in sight, so none has a letter.
    auto *button = new QPushButton(m_changeFolder->icon(), m_changeFolder->text().remove(QLatin1Char('&')));
    button->setObjectName(m_names.of("btn%1ChangeFolder"));
    button->setToolTip(m_changeFolder->toolTip());
    connect(button, &QPushButton::clicked, m_changeFolder, &QAction::trigger);

    m_emptyLabel->setObjectName(m_names.of("lbl%1FolderEmpty"));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setMinimumSize(1, fontMetrics().height()); // however long a folder's name is
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

void FolderExplorer::addExtraAction(QAction *action)
{
    m_toolBar->addAction(action);
    addMenuAction(action);
}

void FolderExplorer::addMenuAction(QAction *action)
{
    m_menu->addExtraAction(action);
}

QTreeWidget *FolderExplorer::tree() const
{
    return m_tree;
}

void FolderExplorer::setLoadedPath(const QString &path)
{
    m_tree->setLoadedPath(path);
}

QStringList FolderExplorer::files() const
{
    return m_tree->files();
}

void FolderExplorer::refill()
{
    const QString folder = normalizedFolder(m_kind.explorePath.value());
    const QString ownName = QDir(folder).dirName();
    m_tree->setHeaderLabel(folder.isEmpty() ? m_kind.label : ownName.isEmpty() ? folder : ownName);
    m_tree->header()->setToolTip(QDir::toNativeSeparators(folder));
    m_switch->setFolder(folder);
    m_archive.follow(folder);
    m_isStopped = false;
    m_tree->fill(folder, m_kind.extension);
    m_reading->begin();
    // Rows that stand there already stay while they are read again.
    if (folder.isEmpty() || m_tree->topLevelItemCount() == 0)
        showPage(folder.isEmpty() ? emptyText() : QString());
    m_menu->updateActions();
}

bool FolderExplorer::isReading() const
{
    return m_tree->isReading();
}

void FolderExplorer::OnFilled()
{
    m_reading->end();
    showPage(emptyText());
    emit filled();
}

void FolderExplorer::OnReadingStopped()
{
    m_tree->stopReading();
    m_reading->end();
    m_isStopped = true;
    showShownRows();
}

void FolderExplorer::setFolder(const QString &folder)
{
    const QString path = normalizedFolder(folder);
    m_kind.explorePath.setValue(path);
    m_switch->keepNext();
    refill();
}

void FolderExplorer::changeFolder()
{
    const QString folder =
        m_chooseFolder(this, m_kind.folderTitle, Files::folderOnDisk(m_kind.explorePath.value()));
    if (!folder.isEmpty())
        setFolder(folder);
}

void FolderExplorer::followOptions()
{
    m_ahead.read({normalizedFolder(Settings::GamePath.value())}, [this] { followFolders(); });
}

void FolderExplorer::followFolders()
{
    FolderSource source = m_switch->source();
    if (source == FolderSource::None)
        source = ownFolder(m_kind, FolderSource::Game).isEmpty() ? FolderSource::Mod : FolderSource::Game;
    const QString folder = ownFolder(m_kind, source);
    if (!folder.isEmpty() && folder != m_tree->folder())
        setFolder(folder);
    else
        m_switch->setFolder(m_tree->folder());
}

void FolderExplorer::showEmptyFolders(bool on)
{
    m_tree->showEmptyFolders(on);
    showShownRows();
}

void FolderExplorer::showShownRows()
{
    // What is being read for the first time may yet come.
    if (!isReading() || m_tree->topLevelItemCount() > 0)
        showPage(emptyText());
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
    return m_tree->selectedFile();
}

bool FolderExplorer::selectPath(const QString &path)
{
    const bool isListed = m_tree->selectFile(path);
    m_menu->updateActions();
    return isListed;
}

void FolderExplorer::showWritten(const QString &path)
{
    if (selectPath(path) || path.isEmpty())
        return;
    // What lies elsewhere changes nothing here.
    const bool isHere = !m_tree->folder().isEmpty() && path.startsWith(m_tree->folder() + QLatin1Char('/'));
    if (!isHere || !path.endsWith(QLatin1Char('.') + m_kind.extension, Qt::CaseInsensitive))
        return;
    refill();
    selectPath(path);
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
            m_menu->openCurrent();
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

QString FolderExplorer::emptyText() const
{
    const QString folder = m_tree->folder();
    if (folder.isEmpty())
        return tr("No folder chosen");
    if (m_isStopped && m_tree->topLevelItemCount() == 0)
        return tr("Stopped reading\n%1").arg(QDir::toNativeSeparators(folder));
    const QString problem = m_tree->isFolderThere() || !Files::isArchiveName(Files::heldBy(folder))
                                ? QString()
                                : Files::archiveProblem(Files::heldBy(folder));
    if (!problem.isEmpty())
        return QDir::toNativeSeparators(folder) + QLatin1Char('\n') + problem;
    if (!m_tree->isFolderThere())
        return tr("There is no folder\n%1").arg(QDir::toNativeSeparators(folder));
    if (!m_tree->hasShownRows())
        return tr("No .%1 files in\n%2").arg(m_kind.extension, QDir::toNativeSeparators(folder));
    if (m_tree->isFiltered() && !m_tree->firstShownFile())
        return tr("No file matches");
    return {};
}

void FolderExplorer::showPage(const QString &emptyText)
{
    m_emptyLabel->setText(
        QString(emptyText).replace(QDir::separator(), QString(QDir::separator()) + QChar(0x200b)));
    m_pages->setCurrentWidget(emptyText.isEmpty() ? static_cast<QWidget *>(m_tree) : m_emptyPage);
    // Never to what cannot be seen: Tab would not get past it.
    setFocusProxy(emptyText.isEmpty() ? static_cast<QWidget *>(m_tree)
                                      : m_emptyPage->findChild<QPushButton *>());
}
