// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CameraMenu.h"

#include "Icons.h"
#include "KVOpenGLWidget.h"
#include "KeypadShortcuts.h"
#include "Settings.h"
#include "TurntableTool.h"

#include <QActionGroup>

#include <utility>

namespace {
int keypad(Qt::Key key)
{
    return int(Qt::KeypadModifier) | int(key);
}
} // namespace

CameraMenu::CameraMenu(const Viewports &viewports, std::function<KVOpenGLWidget *()> current,
                       std::function<ModelSelection()> selection, QWidget *window)
    : QMenu(tr("&Camera"), window)
    , m_viewports(viewports)
    , m_current(std::move(current))
    , m_selection(std::move(selection))
{
    QAction *all =
        viewportAction("actionFrameAll", "frameall", tr("Frame &All"),
                       tr("Go where the whole model is in view"), {Qt::Key_Home}, viewports, window);
    m_frameSelection =
        viewportAction("actionFrameSelection", "frameselection", tr("&Frame Selection"),
                       tr("Go near to what is selected in the tree"),
                       {Qt::Key_F, keypad(Qt::Key_Period), keypad(Qt::Key_Comma)}, viewports, window);
    addActions({all, m_frameSelection});
    addSeparator();
    addSides(window);
    addSteps(window);
    addSeparator();
    addProjection(window);
    addSeparator();
    addMouse(window);
    connect(all, &QAction::triggered, this, &CameraMenu::OnFrameAll);
    connect(m_frameSelection, &QAction::triggered, this, &CameraMenu::OnFrameSelection);
    new KeypadShortcuts(viewports, this);
    connect(this, &QMenu::aboutToShow, this, &CameraMenu::showState);
}

QAction *CameraMenu::addSwitch(const char *name, const QString &text, const QString &tip,
                               const QList<QKeySequence> &keys, bool on, QWidget *window)
{
    QAction *action = viewportAction(name, nullptr, text, tip, keys, m_viewports, window);
    action->setCheckable(true);
    action->setChecked(on);
    addAction(action);
    return action;
}

void CameraMenu::addSides(QWidget *window)
{
    const auto add = [this, window](const char *name, const QString &text, const QString &tip,
                                    const QList<QKeySequence> &keys, Camera::Side side) {
        QAction *action = viewportAction(name, nullptr, text, tip, keys, m_viewports, window);
        connect(action, &QAction::triggered, this, [this, side] { OnLookFrom(side); });
        addAction(action);
    };
    // The keypad's digits are matched by the plain ones, too.
    const auto opposite = [](Qt::Key key) {
        return QList<QKeySequence>{int(Qt::ALT) | int(key), int(Qt::CTRL) | keypad(key)};
    };
    add("actionLookFront", tr("Fro&nt"), tr("Look at the model's front"), {Qt::Key_1}, Camera::Side::Front);
    add("actionLookBack", tr("&Back"), tr("Look at the model's back"), opposite(Qt::Key_1),
        Camera::Side::Back);
    add("actionLookRight", tr("&Right"), tr("Look from the right, where +X points"), {Qt::Key_3},
        Camera::Side::Right);
    add("actionLookLeft", tr("&Left"), tr("Look from the left, where -X points"), opposite(Qt::Key_3),
        Camera::Side::Left);
    add("actionLookTop", tr("&Top"), tr("Look down at the model"), {Qt::Key_7}, Camera::Side::Top);
    add("actionLookBottom", tr("Botto&m"), tr("Look up at the model"), opposite(Qt::Key_7),
        Camera::Side::Bottom);
}

void CameraMenu::addSteps(QWidget *window)
{
    constexpr float Step = 15.0f; // degrees
    QMenu *steps = addMenu(tr("Turn and &Zoom"));
    const auto add = [&](const char *name, const QString &text, const QString &tip, Qt::Key key,
                         const std::function<void(CameraCommands &)> &deed) {
        QAction *action = viewportAction(name, nullptr, text, tip, {keypad(key)}, m_viewports, window);
        action->setAutoRepeat(true);
        connect(action, &QAction::triggered, this, [this, deed] {
            if (KVOpenGLWidget *viewport = m_current())
                deed(viewport->cameraCommands());
        });
        steps->addAction(action);
    };
    add("actionOrbitLeft", tr("Turn &Left"), tr("Turn the camera 15 degrees to the left around the model"),
        Qt::Key_4, [](CameraCommands &camera) { camera.orbit(-Step, 0.0f); });
    add("actionOrbitRight", tr("Turn &Right"), tr("Turn the camera 15 degrees to the right around the model"),
        Qt::Key_6, [](CameraCommands &camera) { camera.orbit(Step, 0.0f); });
    add("actionOrbitUp", tr("Turn &Up"), tr("Turn the camera 15 degrees up around the model"), Qt::Key_8,
        [](CameraCommands &camera) { camera.orbit(0.0f, Step); });
    add("actionOrbitDown", tr("Turn &Down"), tr("Turn the camera 15 degrees down around the model"),
        Qt::Key_2, [](CameraCommands &camera) { camera.orbit(0.0f, -Step); });
    steps->addSeparator();
    add("actionZoomIn", tr("Zoom &In"), tr("Go nearer, as by a notch of the wheel"), Qt::Key_Plus,
        [](CameraCommands &camera) { camera.zoom(1); });
    add("actionZoomOut", tr("Zoom &Out"), tr("Go farther away, as by a notch of the wheel"), Qt::Key_Minus,
        [](CameraCommands &camera) { camera.zoom(-1); });
}

void CameraMenu::addProjection(QWidget *window)
{
    QMenu *lenses = addMenu(tr("L&ens"));
    auto *group = new QActionGroup(this);
    const struct
    {
        int degrees;
        QString text;
        QString tip;
    } rows[] = {
        {90, tr("&90°, Wide"), tr("A field of view of 90 degrees from top to bottom; the usual one")},
        {60, tr("&60°, Normal"), tr("A field of view of 60 degrees: what is near looks less distorted")},
        {45, tr("&45°, Long"), tr("A field of view of 45 degrees: what is near looks least distorted")},
    };
    for (const auto &row : rows) {
        const QByteArray name = "actionLens" + QByteArray::number(row.degrees);
        QAction *action = viewportAction(name, nullptr, row.text, row.tip, {}, m_viewports, window);
        action->setCheckable(true);
        action->setData(row.degrees);
        action->setChecked(row.degrees == Settings::Lens.value());
        group->addAction(action);
        lenses->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, &CameraMenu::OnLensChosen);
    m_orthographic = addSwitch("actionOrthographic", tr("Ort&hographic"),
                               tr("Show everything as large, however far away, or in perspective"),
                               {keypad(Qt::Key_5)}, false, window);
    connect(m_orthographic, &QAction::triggered, this, &CameraMenu::OnOrthographicTriggered);
    QAction *sides = addSwitch("actionOrthographicSides", tr("Ortho&graphic Sides"),
                               tr("Show the six sides orthographic, until the camera is turned or flown"), {},
                               Settings::OrthographicSides.value(), window);
    connect(sides, &QAction::triggered, this, &CameraMenu::OnOrthographicSidesToggled);
}

void CameraMenu::addMouse(QWidget *window)
{
    QAction *orbit = addSwitch("actionOrbit", tr("&Orbit with the Mouse"),
                               tr("Drags turn the camera around the model, as they do with Alt held"),
                               {Qt::Key_O}, Settings::OrbitMode.value(), window);
    orbit->setIcon(namedIcon(QStringLiteral("orbit")));
    connect(orbit, &QAction::triggered, this, &CameraMenu::OnOrbitToggled);
    m_turntable = addSwitch("actionTurntable", tr("T&urntable"),
                            tr("Turn the camera steadily around the model until you move it"), {Qt::Key_R},
                            false, window);
    connect(m_turntable, &QAction::triggered, this, &CameraMenu::OnTurntableTriggered);
    QAction *frameOnOpen = addSwitch("actionFrameOnOpen", tr("Frame Models &When They Open"),
                                     tr("Go where the whole model is in view as soon as it is opened"), {},
                                     Settings::FrameOnOpen.value(), window);
    connect(frameOnOpen, &QAction::triggered, this, &CameraMenu::OnFrameOnOpenToggled);
}

void CameraMenu::on_actionResetCamera_triggered()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->resetCamera();
}

void CameraMenu::OnFrameAll()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->frameAll();
}

void CameraMenu::OnFrameSelection()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->frameSelection(m_selection());
}

void CameraMenu::OnLookFrom(Camera::Side side)
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->cameraCommands().lookFrom(side);
}

void CameraMenu::OnOrbitToggled(bool on)
{
    Settings::OrbitMode.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setOrbitMode(on);
}

void CameraMenu::OnFrameOnOpenToggled(bool on)
{
    Settings::FrameOnOpen.setValue(on);
}

void CameraMenu::OnLensChosen(QAction *action)
{
    Settings::Lens.setValue(action->data().toInt());
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->cameraCommands().setLens(action->data().toFloat());
}

// It is switched off by turning the camera, too, so what it shows does not say what it does.
void CameraMenu::OnOrthographicTriggered()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->cameraCommands().toggleOrthographic();
    showState();
}

void CameraMenu::OnOrthographicSidesToggled(bool on)
{
    Settings::OrthographicSides.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->cameraCommands().setOrthographicSides(on);
}

// As above.
void CameraMenu::OnTurntableTriggered()
{
    KVOpenGLWidget *viewport = m_current();
    if (!viewport)
        return;
    TurntableTool *turntable = viewport->tools().turntable;
    turntable->isOn() ? turntable->stop() : turntable->start();
    viewport->playbackChanged(); // so that it ticks
    showState();
}

void CameraMenu::showState()
{
    KVOpenGLWidget *viewport = m_current();
    m_orthographic->setChecked(viewport && viewport->camera().isOrthographic());
    m_turntable->setChecked(viewport && viewport->tools().turntable->isOn());
}
