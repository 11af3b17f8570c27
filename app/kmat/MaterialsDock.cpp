// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialsDock.h"

#include "DockFocus.h"
#include "FileSearch.h"
#include "FileSystem.h"
#include "Icons.h"
#include "Look.h"
#include "MaterialCatalog.h"
#include "MaterialFileText.h"
#include "NoticeBar.h"
#include "SaveGuard.h"
#include "Settings.h"
#include "Shortcuts.h"
#include "TextField.h"
#include "TextureField.h"
#include "TexturePreview.h"
#include "WatchedPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <QTreeWidget>

namespace {
enum Column { MaterialColumn, SamplerColumn, TextureColumn };
constexpr int MaterialRole = Qt::UserRole;
constexpr int SamplerRole = Qt::UserRole + 1;
constexpr int MostRows = 20000; ///< a file of nonsense may have any number
constexpr int RestMs = 500;     ///< a file counts as written when it has rested for this long
/// Whether a file of the mod has the place of one of the game, which is taken instead.
bool isHiddenByGame(const QString &path)
{
    const QString name = SaveGuard::placeInMod(path);
    const QString game = name.isEmpty() ? QString() : FileSearch(Settings::GamePath.value(), {}).find(name);
    return !game.isEmpty() && !FileSystem::isSamePath(QDir::cleanPath(game), QDir::cleanPath(path));
}
} // namespace

MaterialsDock::MaterialsDock(QWidget *parent)
    : QDockWidget(parent)
    , m_title(new QLabel(this))
    , m_problem(new QLabel(this))
    , m_notice(new NoticeBar(namedIcon(QStringLiteral("info")), QStringLiteral("barMaterialChanged")))
    , m_list(new QTreeWidget(this))
    , m_texture(new TextureField(this))
    , m_field(m_texture->editor())
    , m_preview(new TexturePreview(this))
    , m_text(new MaterialFileText(this))
    , m_parts(new QSplitter(this))
{
    toggleViewAction()->setToolTip(tr("The materials of a file, their textures, and its text"));
    createContents();
    takeColors();
    focusWhenAskedFor(*this, *m_list);
    connect(&m_document, &MaterialDocument::replaced, this, [this] {
        m_told = m_document.stamp();
        m_notice->hide();
        watch();
        m_rest.start(); // what was kept of a file may be older than that
    });
    connect(&m_document, &MaterialDocument::saved, this, [this] {
        m_told = m_document.stamp();
        m_notice->hide();
        watch();
        showTitle();
        reloadTextures();
    });
    connect(&m_document, &MaterialDocument::changed, this, &MaterialsDock::fill);
    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this, &MaterialsDock::showTitle);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &MaterialsDock::showCurrent);
    connect(m_field, &TextField::valueEdited, this, &MaterialsDock::store);
    connect(m_texture, &TextureField::chosen, this, &MaterialsDock::store);
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this,
            [this] { m_ahead.read({m_document.path()}, [this] { lookAtFile(); }); });
    const auto lookSoon = [this] { m_rest.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, lookSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, lookSoon);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, lookSoon);
    fill();
}

QToolButton *MaterialsDock::addButton(const char *name, const char *icon, const QString &text,
                                      const QString &tip, void (MaterialsDock::*wanted)())
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(namedIcon(QLatin1String(icon)));
    button->setText(text);
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, wanted);
    return button;
}

void MaterialsDock::createContents()
{
    auto *contents = new QWidget(this);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(4, 2, 4, 0);
    row->addWidget(addButton("btnOpenMaterials", "open", tr("Open Material File"),
                             tr("Open a file of materials"), &MaterialsDock::openWanted));
    QToolButton *add = addButton("btnNewMaterial", "add", tr("New Material"),
                                 tr("Add a material to this file"), &MaterialsDock::newWanted);
    add->setPopupMode(QToolButton::MenuButtonPopup);
    add->setMenu(new QMenu(add));
    add->menu()->addAction(tr("&New Material…"), this, &MaterialsDock::newWanted);
    add->menu()->addAction(tr("New Material &File…"), this, &MaterialsDock::newFileWanted);
    row->addWidget(add);
    m_save = addButton("btnSaveMaterials", "save", tr("Save Material File"),
                       tr("Save this file of materials"), &MaterialsDock::saveWanted);
    row->addWidget(m_save);
    m_title->setObjectName(QStringLiteral("lblMaterialFile"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_title, 1);
    layout->addLayout(row);
    m_reload =
        m_notice->addButton(tr("Reload"), QStringLiteral("btnReloadMaterials"), tr("Open the file anew"));
    connect(m_reload, &QPushButton::clicked, this, &MaterialsDock::reloadWanted);
    QPushButton *keep = m_notice->addButton(tr("Keep"), QStringLiteral("btnKeepMaterials"),
                                            tr("Go on with what is open; saving replaces the file"));
    connect(keep, &QPushButton::clicked, this, [this] {
        m_document.keep();
        m_notice->hide();
    });
    layout->addWidget(m_notice);
    m_problem->setObjectName(QStringLiteral("lblMaterialProblem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setContentsMargins(6, 0, 6, 0);
    m_problem->setWordWrap(true);
    layout->addWidget(m_problem);

    m_list->setObjectName(QStringLiteral("listMaterials"));
    m_list->setAccessibleName(tr("Materials of the file"));
    m_list->setHeaderLabels({tr("Material"), tr("Sampler"), tr("Texture")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setIconSize({MaterialCatalog::IconSide / 2, MaterialCatalog::IconSide / 2});
    m_list->header()->resizeSection(MaterialColumn, 150);
    m_list->header()->resizeSection(SamplerColumn, 70);
    createListActions();
    m_parts->setObjectName(QStringLiteral("splitterMaterials"));
    m_parts->setChildrenCollapsible(false);
    m_parts->addWidget(m_list);
    auto *texture = new QWidget(m_parts);
    createField(texture);
    m_parts->addWidget(texture);
    m_text->setObjectName(QStringLiteral("txtMaterialFile"));
    m_text->setAccessibleName(tr("Text of the file"));
    m_text->setPlaceholderText(tr("A surface's material, or a .kmat file, can be opened here."));
    m_parts->addWidget(m_text);
    for (int part = 0; part < m_parts->count(); ++part)
        m_parts->setStretchFactor(part, part == 1 ? 2 : 3);
    layout->addWidget(m_parts, 1);
    setWidget(contents);
}

void MaterialsDock::createListActions()
{
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_rename = new QAction(tr("&Rename…"), m_list);
    m_rename->setObjectName(QStringLiteral("actionRenameMaterial"));
    nameShortcut(m_rename, m_rename->objectName(), tr("Materials"), tr("Rename Material"));
    m_rename->setToolTip(tr("Give this material another name; all else of the file stays"));
    m_rename->setShortcut(Qt::Key_F2);
    m_rename->setShortcutContext(Qt::WidgetShortcut);
    connect(m_rename, &QAction::triggered, this, [this] { emit renameWanted(current().first); });
    m_add = new QAction(namedIcon(QStringLiteral("add")), tr("&New Material…"), m_list);
    m_add->setObjectName(QStringLiteral("actionNewMaterial"));
    nameShortcut(m_add, m_add->objectName(), tr("Materials"), tr("New Material"));
    connect(m_add, &QAction::triggered, this, &MaterialsDock::newWanted);
    m_list->addActions({m_rename, m_add});
}

void MaterialsDock::createField(QWidget *parent)
{
    auto *layout = new QVBoxLayout(parent);
    layout->setContentsMargins(4, 0, 4, 0);
    m_field->setCheck([this](const QString &texture) {
        const auto [material, sampler] = current();
        TextEdit edit;
        return sampler < 0 ? QString() : m_document.text().findTextureEdit(material, sampler, texture, edit);
    });
    m_preview->setObjectName(QStringLiteral("viewMaterialTexture"));
    layout->addWidget(m_texture);
    layout->addWidget(m_preview, 1);
}

void MaterialsDock::setCatalog(MaterialCatalog &catalog)
{
    m_catalog = &catalog;
    m_texture->setCatalog(catalog);
    connect(m_catalog, &MaterialCatalog::iconsReady, this, [this] {
        for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
            QTreeWidgetItem *item = m_list->topLevelItem(i);
            item->setIcon(TextureColumn, m_catalog->icon(item->text(TextureColumn)));
        }
    });
}

std::pair<int, int> MaterialsDock::current() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? std::pair(item->data(0, MaterialRole).toInt(), item->data(0, SamplerRole).toInt())
                : std::pair(-1, -1);
}

void MaterialsDock::fill()
{
    const auto [material, sampler] = current();
    const KMatText &text = m_document.text();
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        QTreeWidgetItem *shown = nullptr;
        for (int i = 0; i < int(text.materials().size()) && m_list->topLevelItemCount() < MostRows; ++i) {
            const KMatMaterial &each = text.materials()[size_t(i)];
            const int samplers = int(each.samplers.size());
            for (int k = samplers == 0 ? -1 : 0; k < samplers; ++k) {
                auto *item = new QTreeWidgetItem(m_list, {each.name});
                item->setData(0, MaterialRole, i);
                item->setData(0, SamplerRole, k);
                item->setText(SamplerColumn, k < 0 ? QString() : each.samplers[size_t(k)].name);
                item->setText(TextureColumn, k < 0 ? QString() : each.samplers[size_t(k)].texture);
                for (int column = 0; column < m_list->columnCount(); ++column)
                    item->setToolTip(column, item->text(column));
                if (m_catalog)
                    item->setIcon(TextureColumn, m_catalog->icon(item->text(TextureColumn)));
                if (i == material && k == sampler)
                    shown = item;
            }
        }
        m_list->setCurrentItem(shown ? shown : m_list->topLevelItem(0));
    }
    m_problem->setText(text.problem());
    m_problem->setVisible(!text.problem().isEmpty());
    m_text->showText(text.text());
    showTitle();
    showCurrent();
}

void MaterialsDock::showTitle()
{
    const QString path = QDir::toNativeSeparators(m_document.path());
    QString title = tr("No material file is open.");
    if (m_document.isOpen()) {
        title = QFileInfo(m_document.path()).fileName() +
                (m_document.isModified() ? QStringLiteral(" * ") : QString()) + QStringLiteral("  –  ") +
                (isHiddenByGame(m_document.path()) ? tr("the view takes the game's file of this name, not %1")
                                                   : QStringLiteral("%1"))
                    .arg(path);
    }
    m_title->setText(title);
    m_title->setToolTip(path);
    m_save->setEnabled(m_document.isModified());
}

void MaterialsDock::showCurrent()
{
    const auto [material, sampler] = current();
    const bool isEditable = sampler >= 0;
    const KMatMaterial *shown = material < 0 ? nullptr : &m_document.text().materials()[size_t(material)];
    const QString texture = isEditable ? shown->samplers[size_t(sampler)].texture : QString();
    m_texture->setEnabled(isEditable);
    m_rename->setEnabled(shown && m_add->isEnabled());
    if (m_field->value() != texture)
        m_field->discardText();
    m_field->setValue(texture);
    m_preview->showTexture(texture);
    if (shown)
        m_text->mark(isEditable ? shown->samplers[size_t(sampler)].word : shown->word);
    else
        m_text->unmark();
}

QString MaterialsDock::currentMaterial() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->text(MaterialColumn) : QString();
}

void MaterialsDock::addUses(QAction *uses)
{
    m_list->addAction(uses);
    m_field->addUses(uses);
}

void MaterialsDock::selectMaterial(const QString &name)
{
    for (int i = m_list->topLevelItemCount() - 1; i >= 0; --i) {
        if (m_list->topLevelItem(i)->text(MaterialColumn) == name) {
            m_list->setCurrentItem(m_list->topLevelItem(i)); // the last sampler is what is drawn
            break;
        }
    }
}

void MaterialsDock::showMaterial(const QString &name)
{
    selectMaterial(name);
    show();
    raise();
    m_list->setFocus();
}

bool MaterialsDock::returnToTyping()
{
    return TypingField::returnToRefused(*this);
}

void MaterialsDock::setBusy(bool busy)
{
    widget()->setEnabled(!busy);
    // The command palette has them, too.
    m_add->setEnabled(!busy);
    m_rename->setEnabled(!busy && current().first >= 0);
}

void MaterialsDock::reloadTextures()
{
    m_preview->reload();
}

void MaterialsDock::store(const QString &texture)
{
    const auto [material, sampler] = current();
    if (sampler < 0 ||
        texture == m_document.text().materials()[size_t(material)].samplers[size_t(sampler)].texture)
        return;
    const QString problem = m_document.setTexture(material, sampler, texture);
    if (!problem.isEmpty()) {
        m_field->setText(texture); // which says why
        (void)m_field->commitText();
    }
}

void MaterialsDock::watch()
{
    watchFiles(m_watcher, m_document.path().isEmpty() ? QSet<QString>() : QSet<QString>{m_document.path()});
}

void MaterialsDock::lookAtFile()
{
    if (m_document.path().isEmpty())
        return;
    watch();
    const FileStamp now = FileStamp::of(m_document.path());
    if (now == m_document.stamp())
        return m_notice->hide();
    if (now == m_told)
        return;
    m_told = now;
    m_reload->setVisible(now.exists());
    m_notice->tell((now.exists() ? tr("'%1' was changed by another program.")
                                 : tr("'%1' was removed by another program. Saving writes it anew."))
                       .arg(QDir::toNativeSeparators(m_document.path())));
}

void MaterialsDock::takeColors()
{
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, warningColor(palette()));
    m_problem->setPalette(warning);
}

void MaterialsDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        takeColors();
        showCurrent(); // marks a line
    }
}

void MaterialsDock::resizeEvent(QResizeEvent *event)
{
    QDockWidget::resizeEvent(event);
    m_parts->setOrientation(width() > height() ? Qt::Horizontal : Qt::Vertical);
}
