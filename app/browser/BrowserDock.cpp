// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrowserDock.h"

#include "DockFocus.h"
#include "FileList.h"
#include "FileMenu.h"
#include "FilterEdit.h"
#include "Icons.h"
#include "PicturePopup.h"
#include "Settings.h"

#include <QActionGroup>
#include <QComboBox>
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
constexpr int SmallPicture = 40; ///< beside the name, pixels; as the next
constexpr int LargePicture = 112;
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
    , m_state(new QComboBox)
    , m_sorting(new QToolButton)
    , m_pages(new QStackedWidget)
    , m_list(new FileList)
    , m_empty(new QLabel)
    , m_count(new QLabel)
    , m_progress(new QProgressBar)
    , m_giveUp(new QToolButton)
    , m_menu(new FileMenu(*m_list, this))
{
    auto *contents = new QWidget(this);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(3);
    layout->addLayout(createTop());
    layout->addLayout(createKinds());
    layout->addWidget(m_pages, 1);
    layout->addLayout(createBottom());
    m_empty->setObjectName(QStringLiteral("lblNoFiles"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(8);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_empty->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_pages->addWidget(m_list);
    m_pages->addWidget(m_empty);
    setWidget(contents);
    contents->setFocusProxy(m_list);
    createSorting();
    readSettings();
    focusWhenAskedFor(*this, *m_filter);

    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &BrowserDock::updateState);
    connect(m_filter, &FilterEdit::filtered, this, &BrowserDock::applyFilter);
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

// --- What it is made of
// -------------------------------------------------------------------------------------

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

QLayout *BrowserDock::createKinds()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    const QString tips[] = {tr("Show skinned meshes"), tr("Show animations"), tr("Show static meshes"),
                            tr("Show material files"), tr("Show textures")};
    const char *const names[] = {"btnFilesSkinned", "btnFilesAnim", "btnFilesStatic", "btnFilesMaterials",
                                 "btnFilesTextures"};
    for (size_t i = 0; i < m_kinds.size(); ++i) {
        auto *button = new QToolButton;
        button->setObjectName(QLatin1String(names[i]));
        button->setIcon(FileRows::kindIcon(IndexedType(i)));
        button->setAccessibleName(tips[i]);
        button->setToolTip(tr("%1; without any of these buttons, all kinds are shown").arg(tips[i]));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::toggled, this, &BrowserDock::applyFilter);
        m_kinds[i] = button;
        row->addWidget(button);
    }
    m_state->setObjectName(QStringLiteral("cbFilesState"));
    m_state->setAccessibleName(tr("Which files"));
    m_state->addItems(
        {tr("All Files"), tr("In the Mod"), tr("In the Game"), tr("Replace the Game's"), tr("Unused")});
    m_state->setItemData(int(FileState::ReplacesGame),
                         tr("Files of the mod that have the name of one of the game"), Qt::ToolTipRole);
    m_state->setItemData(int(FileState::Unused),
                         tr("Textures that no material names, and materials that no model names"),
                         Qt::ToolTipRole);
    m_state->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_state->setMinimumContentsLength(8);
    connect(m_state, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        wantIndex();
        applyFilter();
    });
    row->addSpacing(4);
    row->addWidget(m_state, 1);
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
    connect(m_giveUp, &QToolButton::clicked, &m_catalog, &FileCatalog::giveUp);
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
    connect(group, &QActionGroup::triggered, this, &BrowserDock::applyFilter);
    menu->addSeparator();
    QAction *large = menu->addAction(tr("&Large Pictures"));
    large->setCheckable(true);
    large->setChecked(Settings::BrowserLargePictures.value());
    const auto resize = [this](bool isLarge) {
        m_list->setPictureSide(isLarge ? LargePicture : SmallPicture);
    };
    resize(large->isChecked());
    connect(large, &QAction::toggled, this, [resize](bool isLarge) {
        Settings::BrowserLargePictures.setValue(isLarge);
        resize(isLarge);
    });
    m_sorting->setMenu(menu);
}

void BrowserDock::readSettings()
{
    const QSignalBlocker state(m_state);
    const int kinds = Settings::BrowserKinds.value();
    for (size_t i = 0; i < m_kinds.size(); ++i) {
        const QSignalBlocker kind(m_kinds[i]);
        m_kinds[i]->setChecked(kinds & (1 << i));
    }
    m_state->setCurrentIndex(std::clamp(Settings::BrowserState.value(), 0, m_state->count() - 1));
    m_orders[size_t(std::clamp(Settings::BrowserOrder.value(), 0, int(CatalogOrders) - 1))]->setChecked(true);
    m_list->setFilter(wantedFilter());
}

// --- What is listed
// -----------------------------------------------------------------------------------------

FileFilter BrowserDock::wantedFilter() const
{
    FileFilter filter;
    filter.words = m_filter->text();
    for (size_t i = 0; i < m_kinds.size(); ++i)
        filter.kinds |= m_kinds[i]->isChecked() ? 1U << i : 0U;
    filter.state = FileState(m_state->currentIndex());
    for (size_t i = 0; i < m_orders.size(); ++i) {
        if (m_orders[i]->isChecked())
            filter.order = CatalogOrder(i);
    }
    return filter;
}

void BrowserDock::applyFilter()
{
    const FileFilter filter = wantedFilter();
    Settings::BrowserKinds.setValue(int(filter.kinds));
    Settings::BrowserState.setValue(int(filter.state));
    Settings::BrowserOrder.setValue(int(filter.order));
    m_list->setFilter(filter);
    updateState();
}

void BrowserDock::showAll()
{
    {
        const QSignalBlocker words(m_filter), state(m_state);
        m_filter->clear();
        m_state->setCurrentIndex(int(FileState::Any));
        for (QToolButton *kind : m_kinds) {
            const QSignalBlocker each(kind);
            kind->setChecked(false);
        }
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
    if (index != m_index && !isReading) {
        m_index = index;
        findUnused();
    }
    updateState();
}

void BrowserDock::wantIndex()
{
    if (m_state->currentIndex() == int(FileState::Unused) && isVisible())
        emit indexWanted();
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
                            : tr("It is not known what is unused, since the files were not read.");
    return tr("No file is like that.") + QStringLiteral("<br>") + linkTo(AllLink, tr("Show all files"));
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
    const bool isLong = (m_catalog.isReading() && !m_patience.isActive()) || m_isIndexing;
    m_progress->setVisible(isLong);
    m_giveUp->setVisible(isLong && m_catalog.isReading());
    const QLocale locale;
    m_count->setText(rows.totalCount() == 0 ? QString()
                     : rows.rowCount() == rows.totalCount()
                         ? tr("Files: %1").arg(locale.toString(rows.totalCount()))
                         : tr("Files: %1 of %2")
                               .arg(locale.toString(rows.rowCount()), locale.toString(rows.totalCount())));
}

// --- What is done with a file
// -------------------------------------------------------------------------------

void BrowserDock::open(const QString &path)
{
    if (indexedTypeOf(path) == IndexedType::Picture)
        (new PicturePopup(path, this))->popUp();
    else
        emit fileWanted(path);
}
