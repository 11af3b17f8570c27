// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShadingMenu.h"

#include "KVOpenGLWidget.h"
#include "OnionSkinMenu.h"

#include <QAction>
#include <QActionGroup>

ShadingMenu::ShadingMenu(const Viewports &viewports, QWidget *window)
    : QMenu(tr("S&hading"), window)
    , m_viewports(viewports)
    , m_shadings(new QActionGroup(this))
    , m_looks(new QActionGroup(this))
{
    menuAction()->setToolTip(tr("How the surfaces are drawn"));
    menuAction()->setStatusTip(tr("How the surfaces are drawn"));
    addShadings(window);
    addSeparator();
    addLooks(window);
    addSeparator();
    addSwitches(window);
    addSeparator();
    addMenu(new OnionSkinMenu(viewports, window));
}

QAction *ShadingMenu::addChoice(QActionGroup *group, const char *name, const char *icon, const QString &text,
                                const QString &tip, const QList<QKeySequence> &keys, QWidget *window)
{
    QAction *action = viewportAction(name, icon, text, tip, keys, m_viewports, window);
    action->setCheckable(true);
    group->addAction(action);
    addAction(action);
    return action;
}

// In the order of the enumeration, as the looks are.
void ShadingMenu::addShadings(QWidget *window)
{
    addChoice(m_shadings, "actionShaded", "shaded", tr("&Shaded"), tr("Draw the surfaces"), {Qt::Key_5},
              window);
    addChoice(m_shadings, "actionWireframe", "wireframe", tr("&Wireframe"),
              tr("Draw the edges of all triangles"), {Qt::Key_4}, window);
    addChoice(m_shadings, "actionShadedWireframe", "shadedwireframe", tr("Shaded W&ireframe"),
              tr("Draw the surfaces and the edges of their triangles"), {Qt::Key_6}, window);
    QAction *stored =
        m_shadings->actions().value(Settings::Shading.value(), m_shadings->actions().constFirst());
    stored->setChecked(true);
    setIcon(stored->icon());
    connect(m_shadings, &QActionGroup::triggered, this, &ShadingMenu::OnShadingChosen);
}

void ShadingMenu::addLooks(QWidget *window)
{
    addChoice(m_looks, "actionTextured", nullptr, tr("&Textured"), tr("Surfaces show their textures alone"),
              {}, window);
    addChoice(m_looks, "actionLit", nullptr, tr("&Lit"),
              tr("A lamp at the camera shows the shape of the surfaces; what has its normals on the wrong "
                 "side stays dark"),
              {Qt::Key_L}, window);
    addChoice(m_looks, "actionNormals", nullptr, tr("&Normals"),
              tr("Surfaces have the colors of their normals: red along X, green along Y, blue along Z"),
              {Qt::Key_N}, window);
    m_look = m_looks->actions().value(Settings::SurfaceLook.value(), m_looks->actions().constFirst());
    m_look->setChecked(true);
    connect(m_looks, &QActionGroup::triggered, this, &ShadingMenu::OnLookChosen);
}

void ShadingMenu::addSwitches(QWidget *window)
{
    addActions({
        makeSwitch("actionVertexNormals", tr("&Vertex Normals"),
                   tr("Show the normals of vertices as lines: of the selected surface, or of all when none "
                      "is selected"),
                   {QKeySequence(QStringLiteral("Shift+N"))}, Settings::ShowVertexNormals,
                   &SceneFrame::showVertexNormals, window),
        makeSwitch("actionSortTransparency", tr("Sorted Trans&parency"),
                   tr("Draw what is half transparent last, from back to front, so that it hides nothing"), {},
                   Settings::SortTransparency, &SceneFrame::sortsTransparency, window),
        makeSwitch("actionSharpTexels", tr("Sharp Te&xels"),
                   tr("Show the texels of textures as they are, without smoothing between them"), {},
                   Settings::SharpTexels, &SceneFrame::sharpTexels, window),
        makeSwitch("actionSmoothEdges", tr("Smooth &Edges"),
                   tr("Draw with four samples a pixel, which graphics cards do easily"), {},
                   Settings::SmoothEdges, &SceneFrame::smoothEdges, window),
    });
    m_fadingGround = makeSwitch("actionFadingGround", tr("Fa&ding Ground"),
                                tr("Let the ground fade out around the model, without an edge or flicker"),
                                {}, Settings::FadingGround, &SceneFrame::fadingGround, window);
}

QAction *ShadingMenu::makeSwitch(const char *name, const QString &text, const QString &tip,
                                 const QList<QKeySequence> &keys, const SettingKey<bool> &setting,
                                 bool SceneFrame::*option, QWidget *window)
{
    QAction *action = viewportAction(name, nullptr, text, tip, keys, m_viewports, window);
    action->setCheckable(true);
    action->setChecked(setting.value());
    connect(action, &QAction::triggered, this, [this, &setting, option](bool on) {
        setting.setValue(on);
        for (KVOpenGLWidget *viewport : m_viewports)
            viewport->setOption(option, on);
    });
    return action;
}

void ShadingMenu::OnShadingChosen(QAction *action)
{
    const int shading = m_shadings->actions().indexOf(action);
    Settings::Shading.setValue(shading);
    setIcon(action->icon());
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShading(shading);
}

void ShadingMenu::OnLookChosen(QAction *action)
{
    // The key of the look that is on goes back.
    QAction *chosen = action == m_look ? m_looks->actions().constFirst() : action;
    chosen->setChecked(true);
    m_look = chosen;
    const int look = m_looks->actions().indexOf(chosen);
    Settings::SurfaceLook.setValue(look);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setSurfaceLook(look);
}
