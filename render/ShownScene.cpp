// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShownScene.h"

#include "Camera.h"
#include "Picture.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <algorithm>
#include <utility>

ShownScene::ShownScene()
    : m_background(Settings::BGColor.value())
{
    frame.showGround = Settings::ShowGround.value();
    frame.showAxisGizmo = Settings::ShowAxisGizmo.value();
    frame.brightness = Settings::Brightness.value();
    frame.backCull = Settings::BackCull.value();
    frame.marks.skeleton = Settings::ShowSkeleton.value();
    frame.marks.hotPoints = Settings::ShowHotPoints.value();
    frame.marks.boxes = Settings::ShowBoxes.value();
    frame.marks.events.wanted = Settings::ShowEvents.value();
    frame.overlay = overlay(Settings::SurfSelectType.value());
    frame.shading = shading(Settings::Shading.value());
    frame.look = look(Settings::SurfaceLook.value());
    frame.showVertexNormals = Settings::ShowVertexNormals.value();
    frame.sortsTransparency = Settings::SortTransparency.value();
    frame.sharpTexels = Settings::SharpTexels.value();
    frame.smoothEdges = Settings::SmoothEdges.value();
    frame.fadingGround = Settings::FadingGround.value();
    frame.onionSkin.options = {Settings::OnionSkin.value(), Settings::OnionSkinFrames.value(),
                               Settings::OnionSkinStep.value()};
    frame.showSurfaceTint = Settings::ShowSurfaceTint.value();
}

bool ShownScene::setSkinned(bool on)
{
    if (on == frame.skinned)
        return false;
    frame.skinned = on;
    modelReplaced({});
    return true;
}

bool ShownScene::setMesh(const SkinnedMesh *mesh, std::shared_ptr<MeshSource> ready)
{
    m_skinnedMesh = mesh;
    if (frame.skinned)
        modelReplaced(std::move(ready));
    return frame.skinned;
}

bool ShownScene::setMesh(const StaticMesh *mesh, std::shared_ptr<MeshSource> ready)
{
    m_staticMesh = mesh;
    if (!frame.skinned)
        modelReplaced(std::move(ready));
    return !frame.skinned;
}

void ShownScene::modelReplaced(std::shared_ptr<MeshSource> ready)
{
    m_ready = std::move(ready);
    m_verticesChanged = m_indexesChanged = false;
    m_selectedSurface = GLMesh::NoSurface;
    frame.selectedBone = -1;
    frame.highlight = {};
    frame.marks.mesh = nullptr;
    frame.marks.handledBox = MarkedRecords::NoBox;
    frame.marks.handlesPoint = false;
    frame.marks.draggedBox.reset();
    frame.marks.draggedPoint.reset();
    frame.marks.selectedBones.clear();
    frame.marks.selectedHotPoints.clear();
    frame.marks.vertices.clear();
}

void ShownScene::selectSurface(int surface)
{
    m_selectedSurface = surface;
    if (m_painter)
        m_painter->model().selectedSurface = surface;
}

namespace {
template <typename Choice>
Choice choiceOf(int number, Choice last)
{
    return number >= 0 && number <= int(last) ? Choice(number) : Choice(0);
}

template <typename Thing>
void keepWhile(bool wanted, std::unique_ptr<Thing> &thing)
{
    if (wanted != (thing != nullptr))
        thing = wanted ? std::make_unique<Thing>() : nullptr;
}
} // namespace

SurfaceOverlay ShownScene::overlay(int number)
{
    return choiceOf(number, SurfaceOverlay::PointsHidden);
}

Shading ShownScene::shading(int number)
{
    return choiceOf(number, Shading::ShadedWireframe);
}

SurfaceLook ShownScene::look(int number)
{
    return choiceOf(number, SurfaceLook::Normals);
}

void ShownScene::makeCopy(const std::function<void()> &stepFailed)
{
    m_painter = std::make_unique<ScenePainter>(stepFailed);
    applyBackground();
    rebuild();
}

void ShownScene::dropCopy()
{
    m_clock.reset();
    m_samples.reset();
    m_painter.reset();
}

void ShownScene::applyBackground()
{
    m_painter->setUpState(QColor(m_background.rgb()));
}

void ShownScene::rebuild()
{
    const std::shared_ptr<MeshSource> ready = std::exchange(m_ready, nullptr);
    const bool isChanged = m_verticesChanged || m_indexesChanged;
    m_verticesChanged = m_indexesChanged = false;
    if (ready && !isChanged)
        m_painter->setModel(std::move(*ready));
    else if (skinnedMesh())
        m_painter->setModel(MeshSource::from(*m_skinnedMesh));
    else if (!frame.skinned && m_staticMesh)
        m_painter->setModel(MeshSource::from(*m_staticMesh));
    else
        m_painter->clearModel();
    m_painter->model().selectedSurface = m_selectedSurface;
    frame.groundHeight = groundHeight();
}

bool ShownScene::refresh()
{
    if (!m_verticesChanged && !m_indexesChanged)
        return false;
    GLMesh &copy = m_painter->model();
    if (skinnedMesh())
        copy.refresh(*m_skinnedMesh, m_indexesChanged);
    else if (!frame.skinned && m_staticMesh)
        copy.refresh(*m_staticMesh, m_indexesChanged);
    m_verticesChanged = m_indexesChanged = false;
    frame.groundHeight = groundHeight();
    return true;
}

// A skinned mesh's vertices lie in their bones' spaces and say nothing about the posed model, so its own box
// counts; files of static meshes often hold an empty one. A box that was rotated has no order.
float ShownScene::groundHeight() const
{
    float height = 0.0f;
    if (skinnedMesh())
        height = std::min(m_skinnedMesh->bbMin.z(), m_skinnedMesh->bbMax.z());
    else if (!frame.skinned && m_staticMesh)
        height = model()->boxMin().z();
    return height < 0.0f ? height : 0.0f;
}

std::optional<Box> ShownScene::modelBox() const
{
    if (!frame.marks.boxes)
        return {};
    if (const SkinnedMesh *mesh = skinnedMesh())
        return Box{mesh->bbMin, mesh->bbMax};
    if (!frame.skinned && m_staticMesh)
        return Box{m_staticMesh->bbMin, m_staticMesh->bbMax};
    return {};
}

void ShownScene::paint(const Camera &camera)
{
    frame.view = camera.viewMatrix();
    frame.projection = camera.projectionMatrix(frame.viewport.width(), frame.viewport.height());
    frame.marks.mesh = skinnedMesh();
    frame.marks.box = modelBox();
    keepWhile(m_isMeasured, m_clock);
    keepWhile(frame.smoothEdges, m_samples);
    if (m_clock)
        m_clock->begin();
    const bool hasSamples = m_samples && m_samples->begin();
    m_painter->paint(frame);
    if (hasSamples)
        m_samples->end();
    if (m_clock)
        m_clock->end();
}

SceneFrame ShownScene::still(const QSize &size, const Camera &camera, int viewHeight) const
{
    SceneFrame still = frame;
    still.gizmoHover = {};
    still.view = camera.viewMatrix();
    still.projection = camera.projectionMatrix(size.width(), size.height());
    // Marks are as large beside the model as they are in the view.
    still.viewport = QSize(size.width() * viewHeight / std::max(1, size.height()), viewHeight);
    return still;
}

QImage ShownScene::picture(const QSize &size, const QColor &color, const Camera &camera, int viewHeight)
{
    refresh();
    const QImage image = paintPicture(*m_painter, still(size, camera, viewHeight), size, color);
    applyBackground();
    return image;
}

// Those of a model that was replaced since they were painted are nobody's.
const SceneMarks *ShownScene::marks() const
{
    return m_painter && frame.marks.mesh ? &m_painter->marks() : nullptr;
}

BonePalette *ShownScene::palette()
{
    return m_painter && skinnedMesh() ? &m_painter->model().palette : nullptr;
}

int ShownScene::triangleCount() const
{
    size_t triangles = 0;
    for (int surface = 0; m_painter && surface < model()->surfaceCount(); ++surface)
        triangles += model()->indexes(surface).size() / 3;
    return int(triangles);
}
