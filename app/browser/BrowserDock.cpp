// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrowserDock.h"

#include "DockFocus.h"
#include "FileList.h"
#include "FileMenu.h"
#include "FilterEdit.h"
#include "Icons.h"
#include "KindsBar.h"
#include "PicturePopup.h"
#include "Settings.h"
#include "Thumbnails.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QProgressBar>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
constexpr int PatienceMs = 500;
constexpr int FoundAtOnceMs = 15;
constexpr int MostGapsTold = 20; // in a tip
constexpr int SmallPicture = 40; ///< beside the name, pixels
const auto OptionsLink = QStringLiteral("options");
const auto AllLink = QStringLiteral("all");
const auto ReadLink = QStringLiteral("read");

QString linkTo(const QString &target, const QString &text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(target, text.toHtmlEscaped());
}
} // namespace

BrowserDock::BrowserDock(QWidget *parent)
    : QDockWidget(parent)
    , m_filter(new FilterEdit(tr("Parts of names and folders"),
                              tr("Show only files that have all of these words in their path")))
    , m_bar(new KindsBar)
    , m_sorting(new QToolButton)
    , m_pages(new QStackedWidget)
    , m_thumbnails(new Thumbnails(this))
    , m_list(new FileList(*m_thumbnails, nullptr))
    , m_empty(new QLabel)
    , m_count(new QLabel)
    , m_progress(new QProgressBar)
    , m_giveUp(new QToolButton)
    , m_menu(new FileMenu(*m_list, this))
{
    // The keys go through it in the order in which it is put together.
    m_pages->addWidget(m_list);
    m_pages->addWidget(m_empty);
    auto *contents = new QWidget(this);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(3);
    layout->addLayout(createTop());
    layout->addWidget(m_bar);
    layout->addWidget(m_pages, 1);
    layout->addLayout(createBottom());
    m_empty->setObjectName(QStringLiteral("lblNoFiles"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(8);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_empty->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setWidget(contents);
    contents->setFocusProxy(m_list);
    createSorting();
    m_list->setFilter(wantedFilter());
    focusWhenAskedFor(*this, *m_filter);

    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &BrowserDock::updateState);
    connect(m_filter, &FilterEdit::filtered, this, &BrowserDock::applyFilter);
    connect(m_bar, &KindsBar::changed, this, [this] {
        wantIndex();
        applyFilter();
    });
    connect(m_filter, &FilterEdit::left, this, [this] { m_list->setFocus(); });
    connect(m_filter, &FilterEdit::entered, this, [this](bool byReturn) {
        if (!m_list->currentIndex().isValid())
            m_list->setCurrentIndex(m_list->rows().index(0));
        m_list->setFocus();
        if (byReturn && m_list->rows().rowCount() == 1)
            m_menu->openCurrent();
    });
    connect(m_list, &FileList::typed, this, [this](const QString &text) {
        m_filter->setFocus();
        m_filter->insert(text);
    });
    connect(m_menu, &FileMenu::openWanted, this, &BrowserDock::open);
    connect(m_menu, &FileMenu::told, this, &BrowserDock::told);
    connect(m_list, &FileList::left, this, &BrowserDock::left);
    connect(m_empty, &QLabel::linkActivated, this, [this](const QString &link) {
        if (link == OptionsLink)
            emit optionsWanted();
        else if (link == AllLink)
            showAll();
        else if (m_catalog.files())
            emit indexWanted();
        else
            m_catalog.read();
    });
    connect(&m_catalog, &FileCatalog::changed, this, &BrowserDock::OnCatalogChanged);
    // What is unused may be something else by now.
    connect(&m_catalog, &FileCatalog::looked, this, &BrowserDock::wantIndex);
    connect(&m_catalog, &FileCatalog::looked, m_list, &FileList::lookAtPictures);
    connect(this, &QDockWidget::visibilityChanged, &m_catalog, &FileCatalog::follow);
    updateState();
}

BrowserDock::~BrowserDock()
{
    m_catalog.disconnect(this);
}

QLayout *BrowserDock::createTop()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(2);
    m_filter->setObjectName(QStringLiteral("lineFiles"));
    m_sorting->setObjectName(QStringLiteral("btnFilesOrder"));
    m_sorting->setIcon(namedIcon(QStringLiteral("preferences")));
    m_sorting->setAccessibleName(tr("How files are listed"));
    m_sorting->setToolTip(m_sorting->accessibleName());
    m_sorting->setAutoRaise(true);
    m_sorting->setFocusPolicy(Qt::StrongFocus);
    m_sorting->setPopupMode(QToolButton::InstantPopup);
    row->addWidget(m_filter, 1);
    row->addWidget(m_sorting);
    return row;
}

QLayout *BrowserDock::createBottom()
{
    auto *row = new QHBoxLayout;
    m_count->setObjectName(QStringLiteral("lblFilesCount"));
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_progress->setObjectName(QStringLiteral("barFiles"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(10);
    m_progress->setRange(0, 0);
    m_progress->setAccessibleName(tr("Reading the folders of game and mod"));
    m_progress->setToolTip(m_progress->accessibleName());
    m_giveUp->setObjectName(QStringLiteral("btnFilesGiveUp"));
    m_giveUp->setIcon(namedIcon(QStringLiteral("close")));
    m_giveUp->setAccessibleName(tr("Give up reading the folders of game and mod"));
    m_giveUp->setToolTip(m_giveUp->accessibleName());
    m_giveUp->setAutoRaise(true);
    m_giveUp->setFocusPolicy(Qt::StrongFocus);
    connect(m_giveUp, &QToolButton::clicked, this, [this] {
        if (m_catalog.isReading())
            m_catalog.giveUp();
        else
            emit indexGivenUp();
    });
    row->addWidget(m_count, 1);
    row->addWidget(m_progress);
    row->addWidget(m_giveUp);
    return row;
}

void BrowserDock::createSorting()
{
    auto *menu = new QMenu(this);
    auto *group = new QActionGroup(this);
    const QString texts[] = {tr("By &Name"), tr("By &Kind"), tr("By &Folder")};
    for (size_t i = 0; i < m_orders.size(); ++i) {
        m_orders[i] = menu->addAction(texts[i]);
        m_orders[i]->setCheckable(true);
        group->addAction(m_orders[i]);
    }
    const int order = std::clamp(Settings::BrowserOrder.value(), 0, int(CatalogOrders) - 1);
    m_orders[size_t(order)]->setChecked(true);
    connect(group, &QActionGroup::triggered, this, [this] {
        Settings::BrowserOrder.setValue(int(wantedFilter().order));
        applyFilter();
    });
    menu->addSeparator();
    QAction *large = menu->addAction(tr("&Large Pictures"));
    large->setCheckable(true);
    large->setChecked(Settings::BrowserLargePictures.value());
    const auto resize = [this](bool isLarge) {
        m_list->setPictureSide(isLarge ? FileList::LargePicture : SmallPicture);
    };
    resize(large->isChecked());
    connect(large, &QAction::toggled, this, [resize](bool isLarge) {
        Settings::BrowserLargePictures.setValue(isLarge);
        resize(isLarge);
    });
    m_sorting->setMenu(menu);
}

FileFilter BrowserDock::wantedFilter() const
{
    FileFilter filter;
    filter.words = m_filter->text();
    filter.kinds = m_bar->kinds();
    filter.state = m_bar->state();
    for (size_t i = 0; i < m_orders.size(); ++i) {
        if (m_orders[i]->isChecked())
            filter.order = CatalogOrder(i);
    }
    return filter;
}

void BrowserDock::applyFilter()
{
    m_list->setFilter(wantedFilter());
    updateState();
}

void BrowserDock::showAll()
{
    m_bar->reset();
    {
        const QSignalBlocker words(m_filter);
        m_filter->clear();
    }
    applyFilter();
    m_list->setFocus();
}

void BrowserDock::OnCatalogChanged()
{
    if (!m_catalog.isReading())
        m_patience.stop();
    else if (!m_patience.isActive())
        m_patience.start();
    const bool isOther = m_list->rows().files() != m_catalog.files();
    m_list->setFiles(m_catalog.files());
    if (isOther)
        findUnused();
    updateState();
}

void BrowserDock::setIndex(const ReferenceIndexPtr &index, bool isReading)
{
    m_isIndexing = isReading;
    // While it is read anew it stays, unless it is of other folders.
    if (index != m_index && (!isReading || !index)) {
        Background::discard(std::exchange(m_index, index));
        findUnused();
    }
    updateState();
}

void BrowserDock::wantIndex()
{
    if (m_bar->state() == FileState::Unused && isVisible())
        emit indexWanted();
}

bool BrowserDock::isWaitingForIndex() const
{
    return m_isIndexing && m_bar->state() == FileState::Unused && !m_list->rows().isUsageKnown();
}

void BrowserDock::findUnused()
{
    const CatalogFilesPtr files = m_catalog.files();
    if (!m_index || !files) {
        m_finder.cancel();
        return m_list->setUnused(nullptr);
    }
    const auto find = [index = m_index, files](const Background::Cancelled &) {
        const QSet<QString> unused = index->unusedFiles();
        std::vector<char> flags;
        flags.reserve(files->files.size());
        for (const CatalogFile &file : files->files)
            flags.push_back(unused.contains(file.path) ? 1 : 0);
        return std::make_shared<const std::vector<char>>(std::move(flags));
    };
    m_finder.start(find, [this](const UnusedFlagsPtr &flags) {
        m_list->setUnused(flags);
        updateState();
    });
    m_finder.wait(FoundAtOnceMs);
}

QString BrowserDock::emptyText() const
{
    if (!FileCatalog::hasFolders())
        return tr("There are no folders of game and mod.") + QStringLiteral("<br>") +
               linkTo(OptionsLink, tr("Name them in the options"));
    if (!m_catalog.files()) {
        if (m_catalog.isReading())
            return m_patience.isActive() ? QString() : tr("The folders of game and mod are being read.");
        if (m_catalog.isGivenUp())
            return tr("The folders of game and mod were not read to the end.") + QStringLiteral("<br>") +
                   linkTo(ReadLink, tr("Read them"));
        return {};
    }
    if (m_list->rows().totalCount() == 0)
        return tr("The folders of game and mod hold no models, animations, materials or textures.") +
               QStringLiteral("<br>") + linkTo(OptionsLink, tr("Name others in the options"));
    if (m_list->rows().filter().state == FileState::Unused && !m_list->rows().isUsageKnown())
        return m_isIndexing ? tr("It is not known yet what is unused: the files are being read.")
                            : tr("It is not known what is unused, since the files were not read.") +
                                  QStringLiteral("<br>") + linkTo(ReadLink, tr("Read them"));
    return tr("No file fits.") + QStringLiteral("<br>") + linkTo(AllLink, tr("Show all files"));
}

void BrowserDock::updateState()
{
    const FileRows &rows = m_list->rows();
    const bool isEmpty = rows.rowCount() == 0;
    const bool hadKeys = m_list->hasFocus();
    if (isEmpty)
        m_empty->setText(emptyText());
    m_pages->setCurrentIndex(isEmpty ? 1 : 0);
    if (isEmpty && hadKeys)
        m_filter->setFocus(); // a list that is hidden would give the keys to anything
    const bool isLong = m_catalog.isReading() ? !m_patience.isActive() : isWaitingForIndex();
    m_progress->setVisible(isLong);
    m_giveUp->setVisible(isLong);
    updateCount();
}

/// How many files there are, and what is missing.
void BrowserDock::updateCount()
{
    const FileRows &rows = m_list->rows();
    const QLocale locale;
    const bool isCut = m_catalog.files() && m_catalog.files()->isCut;
    const QStringList gaps = m_catalog.files() ? m_catalog.files()->gaps : QStringList();
    QStringList texts;
    if (isCut)
        texts += tr("Files: %1, and more").arg(locale.toString(rows.rowCount()));
    else if (rows.rowCount() < rows.totalCount())
        texts +=
            tr("Files: %1 of %2").arg(locale.toString(rows.rowCount()), locale.toString(rows.totalCount()));
    else if (rows.totalCount() > 0)
        texts += tr("Files: %1").arg(locale.toString(rows.totalCount()));
    if (!gaps.isEmpty())
        texts += tr("(incomplete folders: %1)").arg(locale.toString(gaps.size()));
    QStringList tips = gaps.mid(0, MostGapsTold);
    if (isCut)
        tips.prepend(tr("The folders hold more than a game and a mod can: the rest is not listed."));
    m_count->setText(texts.join(QStringLiteral("  ")));
    m_count->setToolTip(tips.join(QLatin1Char('\n')));
}

void BrowserDock::open(const QString &path)
{
    if (indexedTypeOf(path) == IndexedType::Picture)
        (new PicturePopup(path, this))->popUp();
    else
        emit fileWanted(path);
}
