// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WhereUsed.h"

#include "DocumentFiles.h"
#include "DocumentPanes.h"
#include "FieldName.h"
#include "FileMenu.h"
#include "FileOpener.h"
#include "FloatSpinBox.h"
#include "IntSpinBox.h"
#include "MaterialCatalog.h"
#include "MaterialField.h"
#include "NamedThing.h"
#include "QuestionMenu.h"
#include "Questions.h"
#include "SaveGuard.h"
#include "StructureActions.h"
#include "TextField.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QMenu>

namespace {
/// The current material as surfaces name it; empty for one of a file in neither folder.
QString materialOf(const MaterialsDock &dock)
{
    const QString path = dock.document().path();
    const QString mod = SaveGuard::placeInMod(path);
    const QString place = mod.isEmpty() ? SaveGuard::placeInGame(path) : mod;
    const QString name = dock.currentMaterial();
    if (place.isEmpty() || name.isEmpty())
        return {};
    return place.left(place.lastIndexOf(QLatin1Char('.'))) + QLatin1Char('/') + name;
}
} // namespace

WhereUsed::WhereUsed(const Ui::MainWindow &ui, DocumentFiles &files, DocumentPanes &panes,
                     SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                     const StructureActions &structure, QWidget *window)
    : QObject(window)
    , m_ui(ui)
    , m_panes(panes)
    , m_opener(new FileOpener(files, this))
{
    UsedByDock *usedBy = m_ui.dockUsedBy;
    usedBy->setDocuments(skinnedMesh, anim, staticMesh,
                         {m_ui.treeSkinnedMesh, m_ui.treeAnim, m_ui.treeStaticMesh});
    usedBy->setCurrent(m_panes.currentDocument());
    connect(&m_panes, &DocumentPanes::currentChanged, usedBy,
            [this, usedBy] { usedBy->setCurrent(m_panes.currentDocument()); });
    connect(&files, &DocumentFiles::saved, usedBy, &UsedByDock::refresh);
    connect(m_ui.actionWhereUsed, &QAction::triggered, this, &WhereUsed::openUsedBy);
    connect(
        usedBy, &UsedByDock::recordWanted, m_opener,
        [this](DocumentType, const QString &path, const RecordRef &record) { m_opener->open(path, record); });
    connect(m_opener, &FileOpener::opened, this, &WhereUsed::lead);
    connect(
        usedBy, &UsedByDock::materialsWanted, this,
        [this](const QString &path) { m_panes.materials().open(path, {}); }, Qt::QueuedConnection);
    for (const DocumentPane &each : m_panes.all()) {
        QMenu *menu = structure.menu(each.document->kind().type);
        menu->addSeparator();
        menu->addAction(m_ui.actionWhereUsed);
    }
    (new QuestionMenu(window))->addToMenus(m_ui.actionWhereUsed);
    for (FieldName *each : window->findChildren<FieldName *>())
        each->addUses(m_ui.actionWhereUsed, [each] {
            const QStringList questions = Questions::of(each->editor());
            return !questions.isEmpty() && namedKindOf(questions.first());
        });
    for (MaterialField *each : window->findChildren<MaterialField *>()) {
        Questions::set(each->editor(), {namedKindId(NamedKind::Material)});
        each->editor()->addUses(m_ui.actionWhereUsed);
    }
    Questions::set(m_ui.dockMaterials->textureField(), {namedKindId(NamedKind::Texture)});
    m_ui.dockMaterials->addUses(m_ui.actionWhereUsed);
}

/// What the field with the keys holds is what is asked for, where that names something.
void WhereUsed::openUsedBy()
{
    QWidget *editor = QApplication::focusWidget();
    if (editor && m_ui.dockBrowser->isAncestorOf(editor)) {
        std::vector<NamedThing> things = m_ui.dockBrowser->menu()->thingsOfCurrent();
        if (things.empty())
            m_ui.statusBar->showMessage(tr("Files name materials and textures: select one of these"), 5000);
        else
            m_ui.dockUsedBy->open(std::move(things));
        return;
    }
    std::optional<NamedThing> thing;
    const bool isOfMaterials = editor && m_ui.dockMaterials->isAncestorOf(editor);
    while (editor && Questions::of(editor).isEmpty())
        editor = editor->parentWidget();
    if (const auto kind = editor ? namedKindOf(Questions::of(editor).first()) : std::nullopt) {
        const auto *whole = qobject_cast<const IntSpinBox *>(editor);
        const auto *real = qobject_cast<const FloatSpinBox *>(editor);
        const auto *path = qobject_cast<const TextField *>(editor);
        if (whole)
            thing = NamedThing{*kind, double(whole->value())};
        else if (real)
            thing = NamedThing::ofArgument(*kind, real->value());
        else if (path && !path->text().isEmpty())
            thing = NamedThing{*kind, 0.0, path->text()};
    } else if (isOfMaterials) {
        const QString material = materialOf(*m_ui.dockMaterials);
        if (material.isEmpty()) {
            m_ui.statusBar->showMessage(tr("Select a material of a file in the folder of game or mod"), 5000);
            return;
        }
        thing = NamedThing{NamedKind::Material, 0.0, material};
    }
    m_ui.dockUsedBy->open(thing ? std::vector<NamedThing>{*thing} : std::vector<NamedThing>());
}

void WhereUsed::lead(DocumentType type, const RecordRef &record)
{
    m_ui.dockUsedBy->setLeading(true);
    m_panes.showRecord(type, record);
    m_ui.dockUsedBy->setLeading(false);
}
