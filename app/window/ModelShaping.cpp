// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelShaping.h"

#include "BoxFitting.h"
#include "DamageShow.h"
#include "DocumentPanes.h"
#include "DragEditing.h"
#include "KVOpenGLWidget.h"
#include "PageStack.h"
#include "StructureActions.h"
#include "ui_MainWindow.h"

#include <algorithm>

ModelShaping::ModelShaping(const Ui::MainWindow &ui, DocumentPanes &panes, SkinnedMeshDocument &skinned,
                           AnimDocument &anim, StaticMeshDocument &rigid, const StructureActions &structure,
                           QWidget *window)
    : QObject(window)
{
    auto *fitting = new BoxFitting(skinned, anim, rigid, *ui.treeSkinnedMesh, window);
    ui.menuEdit->insertMenu(ui.actionRotate, fitting);
    QMenu *treeMenu = structure.menu(DocumentType::SkinnedMesh);
    const QList<QAction *> offers = treeMenu->actions();
    treeMenu->insertAction(*std::find_if(offers.begin(), offers.end(),
                                         [](const QAction *offer) { return offer->menu() != nullptr; }),
                           fitting->treeAction());
    connect(ui.treeSkinnedMesh, &KVTreeView::currentRecordChanged, fitting, &BoxFitting::setCurrentRecord);
    const auto follow = [fitting, &panes] { fitting->setCurrent(panes.currentDocument()); };
    connect(&panes, &DocumentPanes::currentChanged, fitting, follow);
    for (const DocumentPane &each : panes.all())
        connect(each.document, &Document::replaced, fitting, follow);
    connect(fitting, &BoxFitting::told, &panes, &DocumentPanes::told);
    follow();

    const auto *damage = new DamageShow(skinned, *ui.viewSkinned, window);
    ui.menuView->insertMenu(window->findChild<QAction *>(QStringLiteral("actionStatistics")), damage->menu());

    UvDock *uv = ui.dockUv;
    uv->setDocuments(skinned, *ui.treeSkinnedMesh, rigid, *ui.treeStaticMesh);
    connect(&panes, &DocumentPanes::currentChanged, uv,
            [uv, &panes] { uv->setCurrent(panes.currentDocument()); });
    uv->setCurrent(panes.currentDocument());
    connect(uv, &UvDock::documentWanted, &panes, &DocumentPanes::showPane);
    connect(uv, &UvDock::hidingChanged, &panes, &DocumentPanes::OnOptionsAccepted);
    connect(uv, &UvDock::told, &panes, &DocumentPanes::told);
    connect(uv, &UvDock::verticesMarked, &panes,
            [&panes](DocumentType type, const std::vector<int> &vertices) {
                panes.all()[size_t(type)].viewport->setMarkedVertices(vertices);
            });

    ui.dockCurves->setSources(anim, skinned, *ui.treeAnim, *ui.treeSkinnedMesh, *ui.animTrackFrame);
    connect(ui.viewSkinned, &KVOpenGLWidget::bonePicked, ui.dockCurves, &CurvesDock::showBone);
    connect(ui.dockCurves, &CurvesDock::posed, ui.viewSkinned, qOverload<>(&QWidget::update));
    connect(ui.dockCurves, &CurvesDock::documentWanted, &panes, &DocumentPanes::showPane);

    for (DragEditing *drags :
         {new DragEditing(skinned, *ui.treeSkinnedMesh, anim, *ui.treeAnim, *ui.viewSkinned, this),
          new DragEditing(rigid, *ui.treeStaticMesh, *ui.viewStatic, this)}) {
        connect(drags, &DragEditing::told, &panes, &DocumentPanes::told);
        connect(drags, &DragEditing::numbersShown, this,
                [&panes](DocumentType type, const DragEditing::Numbers &numbers) {
                    PageStack *pages = panes.all()[size_t(type)].pages;
                    numbers.isEmpty() ? pages->refresh() : pages->showNumbers(numbers);
                });
    }
}
