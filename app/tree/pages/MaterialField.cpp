// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialField.h"

#include "ChoicePopup.h"
#include "Files.h"
#include "IndexTargets.h"
#include "MaterialCatalog.h"
#include "NameDrop.h"
#include "NameRow.h"
#include "Settings.h"
#include "Shortcuts.h"
#include "TextField.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QFocusEvent>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <functional>

namespace {
constexpr int FindPatience = 15; // milliseconds
constexpr int ShownRows = 12;
} // namespace

MaterialField::MaterialField(TextField *editor, MaterialCatalog &catalog)
    : QObject(editor)
    , m_editor(editor)
    , m_catalog(catalog)
    , m_hint(new IndexHint(editor->parentWidget()))
    , m_completer(new QCompleter(this))
{
    const QString name = editor->objectName().mid(3); // behind "txt"
    m_hint->setObjectName(QStringLiteral("hint") + name);
    NameRow *row = NameRow::around(editor, m_hint, NameRow::Name::Below);
    m_button = row->addButton(QStringLiteral("btnChoose") + name, "search", tr("Choose by Name"));
    m_edit = row->addButton(QStringLiteral("btnEdit") + name, "bgcolor", tr("Edit Material"));
    m_edit->setToolTip(tr("Show the material and its file in the dock of materials"));
    m_open = row->addButton(QStringLiteral("btnOpen") + name, "folderopen", tr("Open Material File"));
    m_open->setToolTip(
        tr("Open the file that the material is in with the program that the desktop has for it"));
    connect(m_button, &QToolButton::clicked, this, &MaterialField::choose);
    connect(m_edit, &QToolButton::clicked, this, &MaterialField::edit);
    connect(m_open, &QToolButton::clicked, this, [this] { open(false); });
    const auto addAction = [&](const char *id, const QString &text, const std::function<void()> &does) {
        auto *action = new QAction(text, editor);
        action->setObjectName(QLatin1String(id));
        action->setShortcutContext(Qt::WidgetShortcut);
        nameShortcut(action, action->objectName(), tr("Material Fields"), {});
        connect(action, &QAction::triggered, this, does);
        editor->addAction(action);
        m_fileActions.append(action);
    };
    addAction("actionEditMaterial", tr("&Edit Material"), [this] { edit(); });
    addAction("actionOpenMaterialFile", tr("&Open Material File"), [this] { open(false); });
    addAction("actionOpenMaterialFolder", tr("Open Material &Folder"), [this] { open(true); });

    m_completer->setModel(list(m_completer));
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionRole(Qt::DisplayRole);
    m_completer->setMaxVisibleItems(ShownRows);
    m_completer->popup()->setTextElideMode(Qt::ElideMiddle); // paths differ at their ends
    m_editor->setCompleter(m_completer);
    // Esc gives up both.
    connect(m_editor, &QLineEdit::textChanged, this, [this] {
        if (!m_editor->isTyping())
            m_completer->popup()->hide();
    });
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this,
            [this](const QString &path) {
                m_editor->discardText();
                emit chosen(path);
            });
    connect(new NameDrop(m_editor, DraggedFile::Kind::Materials), &NameDrop::dropped, this,
            [this](const QString &path) {
                m_editor->discardText();
                emit chosen(path);
            });
    connect(&m_catalog, &MaterialCatalog::changed, this, &MaterialField::OnCatalogChanged);
    connect(&m_catalog, &MaterialCatalog::iconsReady, this, [this] {
        m_completer->popup()->viewport()->update();
        if (m_popup)
            m_popup->updateIcons();
    });
    m_editor->installEventFilter(this);
}

bool MaterialField::eventFilter(QObject *watched, QEvent *event)
{
    // The files may be others than when the user was here before; a popup that closes is no such visit.
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool isVisit = reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
        if (isVisit || m_catalog.isEmptyYet())
            m_catalog.refreshOld();
        // The line connects itself when it gets the keys: what is only looked at in the list is not to be put
        // into it, where leaving the field would store it.
        QTimer::singleShot(
            0, this, [this] { disconnect(m_completer, SIGNAL(highlighted(QString)), m_editor, nullptr); });
    }
    return QObject::eventFilter(watched, event);
}

ChoiceList *MaterialField::list(QObject *parent) const
{
    const QVector<Material> &materials = m_catalog.materials();
    QVector<Choice> choices;
    QStringList textures;
    choices.reserve(materials.size());
    for (const Material &material : materials) {
        choices.append({choices.size(), material.path, {}});
        textures.append(material.texture);
    }
    auto *made = new ChoiceList(choices, false, parent);
    made->setIcons([&catalog = m_catalog, textures](int number) { return catalog.icon(textures[number]); });
    return made;
}

void MaterialField::OnCatalogChanged()
{
    if (!m_completer->popup()->isVisible())
        m_completer->setModel(list(m_completer));
    if (m_isFound)
        find();
    if (m_wantsChoice && m_editor->hasFocus() && !m_catalog.isEmptyYet())
        choose();
}

void MaterialField::show(const QString &materialPath, bool differs)
{
    m_differs = differs;
    if (m_isFound && materialPath == m_path)
        return tell();
    m_path = materialPath;
    find();
}

void MaterialField::find()
{
    m_isFound = false;
    const auto work = [path = m_path, gamePath = Settings::GamePath.value(),
                       outputDir = Settings::OutputDir.value()](const Background::Cancelled &) {
        return placeOfMaterial(path, gamePath, outputDir);
    };
    m_finder.start(work, [this](const MaterialPlace &place) {
        m_place = place;
        m_isFound = true;
        tell();
    });
    // Mostly it is there at once.
    m_finder.wait(FindPatience);
    if (m_isFound)
        return;
    m_hint->setTarget({tr("looking for its file"), false, {}, true});
    m_edit->setEnabled(false);
}

void MaterialField::tell()
{
    using Kind = MaterialPlace::Kind;
    const QString &file = m_place.relative;
    IndexTarget target;
    switch (m_place.kind) {
    case Kind::Found:
        target = {(m_place.isGame ? tr("%1 in the game folder") : tr("%1 in the mod folder")).arg(file),
                  false, QDir::toNativeSeparators(m_place.file), true};
        break;
    case Kind::White:
        target = {tr("drawn white, without a file"), false, {}, true};
        break;
    case Kind::NoName:
        target = {tr("no material"), false, {}, true};
        break;
    case Kind::NoFolders:
        target = {tr("the game and mod folders are not set"), false, {}, true};
        break;
    case Kind::Nowhere:
        target = {tr("%1 not found").arg(file), true,
                  tr("Neither the game folder nor the mod folder has this file.")};
        break;
    case Kind::NoMaterial:
        target = {tr("not in %1").arg(file), true,
                  tr("%1 has no material of that name.").arg(QDir::toNativeSeparators(m_place.file))};
        break;
    case Kind::Unreadable:
        target = {tr("%1 cannot be read").arg(file), true, m_place.reason};
        break;
    }
    m_hint->setTarget(m_differs ? IndexTargets::differing(target) : target);
    m_open->setEnabled(!m_place.file.isEmpty());
    m_edit->setEnabled(m_open->isEnabled());
    for (QAction *action : qAsConst(m_fileActions))
        action->setEnabled(m_open->isEnabled());
}

void MaterialField::choose()
{
    if (m_popup && m_popup->isVisible())
        return;
    m_editor->setFocus(Qt::OtherFocusReason);
    m_wantsChoice = m_catalog.isEmptyYet();
    m_catalog.refresh();
    if (m_wantsChoice)
        return;
    const QVector<Material> materials = m_catalog.materials();
    if (materials.isEmpty()) {
        emit told(tr("There are no materials in the game folder and the mod folder. The options set both."));
        return;
    }
    const auto *present = std::find_if(materials.begin(), materials.end(),
                                       [this](const Material &each) { return each.path == m_path; });
    m_popup = new ChoicePopup(tr("Materials"), list(nullptr), double(present - materials.begin()), m_editor);
    connect(m_popup, &ChoicePopup::chosen, this, [this, materials](int number) {
        m_editor->discardText();
        emit chosen(materials[number].path);
    });
    m_popup->popUp(m_open->geometry().right() + 1 - m_editor->x());
}

void MaterialField::leave()
{
    m_wantsChoice = false;
    m_completer->popup()->hide();
    if (m_popup)
        m_popup->close();
}

void MaterialField::edit()
{
    if (m_isFound && !m_place.file.isEmpty())
        m_catalog.open(m_place.file, QFileInfo(m_path).fileName());
}

void MaterialField::open(bool folder)
{
    // What an archive holds is nothing that the desktop could open.
    folder = folder || !Files::archiveOf(m_place.file).isEmpty();
    const QString path = folder ? QFileInfo(Files::heldBy(m_place.file)).path() : m_place.file;
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    // Not every desktop has a program for such files, but one for folders.
    if (!folder)
        return open(true);
    emit told(tr("Failed to open %1").arg(QDir::toNativeSeparators(path)));
}

void MaterialField::setAction(const QAction *choose)
{
    const auto show = [this, choose] { m_button->setToolTip(withKeys(m_button->accessibleName(), choose)); };
    connect(choose, &QAction::changed, this, show);
    show();
}
