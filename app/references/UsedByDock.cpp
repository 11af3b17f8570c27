// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UsedByDock.h"

#include "Icons.h"
#include "IndexKeeper.h"
#include "KVTreeView.h"
#include "ReferenceTables.h"
#include "UsesList.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
constexpr int FoundAtOnceMs = 15;  // what takes longer does not hold up the keys
constexpr int MostUnreadTold = 20; // files and folders, in a tip

/// By the kind's number.
const char *const kindTitles[] = {
    QT_TRANSLATE_NOOP("UsedByDock", "Material %1"),  QT_TRANSLATE_NOOP("UsedByDock", "Texture %1"),
    QT_TRANSLATE_NOOP("UsedByDock", "Animation %1"), QT_TRANSLATE_NOOP("UsedByDock", "Sound %1"),
    QT_TRANSLATE_NOOP("UsedByDock", "Particle %1"),  QT_TRANSLATE_NOOP("UsedByDock", "Actor %1"),
    QT_TRANSLATE_NOOP("UsedByDock", "Voice %1"),     QT_TRANSLATE_NOOP("UsedByDock", "Impact Type %1"),
    QT_TRANSLATE_NOOP("UsedByDock", "Damage %1")};
static_assert(sizeof kindTitles / sizeof kindTitles[0] == namedKinds.size(), "every kind has its title");

template <typename Model>
std::vector<NamedThing> thingsIn(const Model &model, const RecordRef &record)
{
    std::vector<NamedThing> things;
    visitNamed(model, record, [&things](const NamedThing &thing) {
        const bool isKnown = std::any_of(things.begin(), things.end(),
                                         [&thing](const NamedThing &each) { return each.isSame(thing); });
        if (!isKnown)
            things.push_back(thing);
    });
    return things;
}
} // namespace

UsedByDock::UsedByDock(QWidget *parent)
    : QDockWidget(parent)
    , m_label(new QLabel(tr("Who names:")))
    , m_thing(new QComboBox)
    , m_count(new QLabel)
    , m_progress(new QProgressBar)
    , m_read(new QToolButton)
    , m_list(new UsesList)
    , m_keeper(new IndexKeeper(this))
{
    auto *contents = new QWidget(this);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(createTop());
    layout->addWidget(m_list, 1);
    setWidget(contents);

    connect(m_thing, qOverload<int>(&QComboBox::currentIndexChanged), this, &UsedByDock::lookUp);
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { activate(index.row()); });
    connect(m_read, &QToolButton::clicked, this, [this] {
        if (m_keeper->isRunning())
            m_keeper->giveUp();
        else
            m_keeper->refresh();
    });
    connect(m_keeper, &IndexKeeper::changed, this, &UsedByDock::onIndexChanged);
    connect(m_keeper, &IndexKeeper::progressed, this, &UsedByDock::updateProgress);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
        if (!isVisible)
            return;
        follow();
        if (std::exchange(m_isStale, false))
            m_keeper->refresh();
    });
    // Other programs change files, and then this one comes to the front again.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            refresh();
    });
    updateState();
}

QLayout *UsedByDock::createTop()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(4, 2, 4, 0);
    m_label->setBuddy(m_thing);
    m_thing->setObjectName(QStringLiteral("cbUsedByThing"));
    m_thing->setToolTip(tr("What the current record names; the list has all records that name it, as their "
                           "files are saved"));
    m_thing->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_thing->setMinimumContentsLength(24);
    m_count->setObjectName(QStringLiteral("lblUsedByCount"));
    m_progress->setObjectName(QStringLiteral("barUsedBy"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(10);
    m_progress->setMaximumWidth(160);
    m_progress->setAccessibleName(tr("Reading the files of game and mod"));
    m_progress->setToolTip(m_progress->accessibleName());
    m_read->setObjectName(QStringLiteral("btnUsedByRead"));
    m_read->setAutoRaise(true);
    m_read->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(m_label);
    row->addWidget(m_thing, 1);
    row->addWidget(m_count);
    row->addWidget(m_progress);
    row->addWidget(m_read);
    return row;
}

void UsedByDock::setDocuments(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                              StaticMeshDocument &staticMesh, const std::array<KVTreeView *, 3> &trees)
{
    m_skinnedMesh = &skinnedMesh;
    m_anim = &anim;
    m_staticMesh = &staticMesh;
    m_trees = trees;
    for (KVTreeView *tree : m_trees)
        connect(tree, &KVTreeView::currentRecordChanged, this, &UsedByDock::follow);
}

void UsedByDock::setCurrent(const Document *document)
{
    m_current = document;
    follow();
}

void UsedByDock::open(std::vector<NamedThing> things)
{
    show();
    raise();
    follow();
    if (!things.empty()) {
        const NamedThing &first = things.front();
        const auto same = std::find_if(m_things.begin(), m_things.end(),
                                       [&first](const NamedThing &each) { return each.isSame(first); });
        m_isAsked = same == m_things.end() || things.size() > 1;
        if (m_isAsked)
            setThings(std::move(things));
        else
            m_thing->setCurrentIndex(int(same - m_things.begin()));
    }
    m_list->setFocus(Qt::ShortcutFocusReason);
}

void UsedByDock::refresh()
{
    m_isStale = !isVisible();
    if (!m_isStale)
        m_keeper->refresh();
}

void UsedByDock::leave()
{
    if (m_current)
        m_trees[size_t(m_current->kind().type)]->setFocus();
}

void UsedByDock::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return leave();
    QDockWidget::keyPressEvent(event);
}

// --- What is asked for
// --------------------------------------------------------------------------------------

std::vector<NamedThing> UsedByDock::thingsOfCurrent() const
{
    if (!m_current || !m_current->isOpen())
        return {};
    const RecordRef record = m_trees[size_t(m_current->kind().type)]->currentRecord();
    std::vector<NamedThing> things = m_current == m_skinnedMesh ? thingsIn(m_skinnedMesh->model(), record)
                                     : m_current == m_anim      ? thingsIn(m_anim->model(), record)
                                                                : thingsIn(m_staticMesh->model(), record);
    // A surface comes to its textures by its material.
    if (!things.empty() && things.front().kind == NamedKind::Material && m_keeper->index()) {
        for (const QString &texture : m_keeper->index()->texturesOf(things.front().path))
            things.push_back({NamedKind::Texture, 0.0, texture});
    }
    return things;
}

/// What is listed stays where the next record names nothing, or the same, and where the list led to it.
void UsedByDock::follow()
{
    if (!isVisible() || m_isLeading)
        return;
    m_isAsked = false;
    std::vector<NamedThing> things = thingsOfCurrent();
    if (!things.empty())
        setThings(std::move(things));
    updateState();
}

void UsedByDock::setThings(std::vector<NamedThing> things)
{
    const int shown = m_thing->currentIndex();
    int current = 0;
    if (shown >= 0) {
        const auto same = std::find_if(things.begin(), things.end(), [&](const NamedThing &each) {
            return each.isSame(m_things[size_t(shown)]);
        });
        current = same == things.end() ? 0 : int(same - things.begin());
    }
    const bool isSame =
        shown >= 0 && !things.empty() && things[size_t(current)].isSame(m_things[size_t(shown)]);
    m_things = std::move(things);
    const QSignalBlocker blocker(m_thing);
    m_thing->clear();
    for (const NamedThing &thing : m_things) {
        const auto table = tableOf(thing.kind);
        const QString name = table ? ReferenceTables::shared().name(*table, thing.number) : QString();
        const QString title = tr(kindTitles[size_t(thing.kind)]).arg(thing.text());
        m_thing->addItem(name.isEmpty() ? title : QStringLiteral("%1  %2").arg(title, name));
    }
    m_thing->setCurrentIndex(current);
    if (!isSame)
        lookUp();
}

void UsedByDock::lookUp()
{
    const int current = m_thing->currentIndex();
    if (current < 0 || !m_keeper->index()) {
        m_search.cancel();
        m_list->setUses({});
        return updateState();
    }
    const auto find = [index = m_keeper->index(), thing = m_things[size_t(current)]](
                          const Background::Cancelled &) { return index->usesOf(thing); };
    m_search.start(find, [this](std::vector<NamedUse> uses) {
        m_list->setUses(std::move(uses));
        updateState();
    });
    m_search.wait(FoundAtOnceMs);
}

void UsedByDock::onIndexChanged()
{
    if (!m_keeper->isRunning()) {
        if (!m_isAsked)
            follow(); // a texture may be known by now
        lookUp();
    }
    updateState();
}

// --- What is listed
// -----------------------------------------------------------------------------------------

QString UsedByDock::emptyText() const
{
    if (!m_keeper->index()) {
        if (m_keeper->isRunning())
            return tr("The files of game and mod are being read.");
        return m_keeper->isGivenUp()
                   ? tr("The files of game and mod were not read to the end.")
                   : tr("There are no folders of game and mod. Edit ▸ Options… names them.");
    }
    if (m_thing->currentIndex() < 0)
        return tr("Select a surface, a bone, a hot point, an animation or a key frame action: listed is who "
                  "names the same.");
    return m_search.isRunning() ? QString() : tr("No file of game or mod names it.");
}

/// Only as the keeper says so: a bar repaints the window at once, which may be in the midst of a model's
/// replacement where the current record is followed.
void UsedByDock::updateProgress()
{
    m_progress->setRange(0, m_keeper->filesFound());
    m_progress->setValue(m_keeper->filesDone());
}

void UsedByDock::updateState()
{
    const bool isRunning = m_keeper->isRunning();
    m_progress->setVisible(isRunning);
    m_read->setIcon(namedIcon(isRunning ? QStringLiteral("close") : QStringLiteral("refresh")));
    m_read->setToolTip(isRunning ? tr("Give up reading the files of game and mod")
                                 : tr("Look for files of game and mod that have changed"));
    m_read->setAccessibleName(m_read->toolTip());
    m_thing->setEnabled(m_thing->count() > 0);
    updateCount();
    m_list->setEmptyText(emptyText());
}

/// How many uses there are, and what was not looked through for that.
void UsedByDock::updateCount()
{
    QStringList texts;
    QStringList tips;
    if (const ReferenceIndexPtr &index = m_keeper->index()) {
        if (m_thing->currentIndex() >= 0)
            texts += tr("Uses: %1").arg(m_list->rows().useCount());
        if (!index->unreadable().empty())
            texts += tr("(not read: %1)").arg(index->unreadable().size());
        if (!index->gaps().isEmpty())
            texts += tr("(incomplete folders: %1)").arg(index->gaps().size());
        if (index->isCut()) {
            texts += tr("(not all files)");
            tips += tr("The folders hold more than a game and a mod can: the rest is not read.");
        }
        tips += index->gaps();
        for (const FileNamingPtr &file : index->unreadable()) {
            if (tips.size() >= MostUnreadTold)
                break;
            tips += QStringLiteral("%1: %2").arg(file->relative, file->error);
        }
    }
    m_count->setText(texts.join(QStringLiteral("  ")));
    m_count->setToolTip(tips.mid(0, MostUnreadTold).join(QLatin1Char('\n')));
}

void UsedByDock::activate(int row)
{
    const FileNamingPtr file = m_list->rows().useAt(row).file;
    const RecordRef place = m_list->rows().placeAt(row);
    if (file->type == IndexedType::Materials) {
        emit materialsWanted(file->path);
        return;
    }
    constexpr DocumentType types[] = {DocumentType::SkinnedMesh, DocumentType::Anim,
                                      DocumentType::StaticMesh};
    emit recordWanted(types[size_t(file->type)], file->path, place);
}
