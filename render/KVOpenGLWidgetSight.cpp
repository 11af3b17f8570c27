// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// What the camera is aimed at, and what the mouse hits.
#include "KVOpenGLWidget.h"

#include "Picking.h"
#include "Picture.h"

#include <QToolTip>

#include <algorithm>

namespace {
/// A single point or a small part is not gone nearer to than this share of the model's size.
constexpr float LeastShare = 0.06f;
/// How far away the point looked at is where there is nothing.
constexpr float EmptyDistance = 500.0f;

void widen(QVector3D &low, QVector3D &high, const std::vector<QVector3D> &places)
{
    for (const QVector3D &place : places) {
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], place[axis]);
            high[axis] = std::max(high[axis], place[axis]);
        }
    }
}
} // namespace

void KVOpenGLWidget::cameraMoved()
{
    playbackChanged();
    update();
}

void KVOpenGLWidget::resetCamera()
{
    m_camera.reset();
    cameraMoved();
}

void KVOpenGLWidget::placeCamera(const QVector3D &position, float yaw, float pitch)
{
    m_camera.place(position, yaw, pitch);
    cameraMoved();
}

void KVOpenGLWidget::frameAll()
{
    if (m_painter)
        framePlaces(cornersOf(m_painter->model()));
}

void KVOpenGLWidget::frameSelection(const ModelSelection &selection)
{
    if (!m_painter)
        return;
    const GLMesh &model = m_painter->model();
    std::vector<QVector3D> places = placesOf(model, m_frame.skinned ? m_skinnedMesh : nullptr, selection);
    if (places.empty()) {
        frameAll();
        return;
    }
    QVector3D low = places.front(), high = low, lowest = low, highest = low;
    widen(low, high, places);
    widen(lowest, highest, cornersOf(model));
    const float least = LeastShare * (highest - lowest).length();
    const QVector3D middle = 0.5f * (low + high);
    for (int axis = 0; axis < 3; ++axis) {
        QVector3D reach;
        reach[axis] = least;
        places.push_back(middle - reach);
        places.push_back(middle + reach);
    }
    framePlaces(std::move(places));
}

void KVOpenGLWidget::framePlaces(std::vector<QVector3D> places)
{
    const QMatrix4x4 upright = ScenePainter::modelMatrix(m_frame);
    for (QVector3D &place : places)
        place = upright.map(place);
    m_camera.frame(places, size());
    cameraMoved();
}

void KVOpenGLWidget::lookFrom(Camera::Side side)
{
    m_camera.lookFrom(side, pivot());
    cameraMoved();
}

ScreenMap KVOpenGLWidget::screenMap() const
{
    return {m_frame.projection, m_camera.viewMatrix() * ScenePainter::modelMatrix(m_frame), size()};
}

int KVOpenGLWidget::surfaceAt(const QPoint &pixel, QVector3D *place) const
{
    if (!m_painter)
        return SurfacePicker::None;
    const GLMesh &model = m_painter->model();
    // Through the middle of the pixel.
    SurfacePicker picker(model.vertices().vertices, model.palette,
                         screenMap().ray(QPointF(pixel) + QPointF(0.5, 0.5)), m_backCull);
    for (int surface = 0; surface < model.surfaceCount(); ++surface)
        picker.tryTriangles(surface, model.indexes(surface));
    if (place && picker.surface() != SurfacePicker::None)
        *place = picker.place();
    return picker.surface();
}

QVector3D KVOpenGLWidget::pivot() const
{
    if (m_camera.framed())
        return *m_camera.framed();
    const QMatrix4x4 upright = ScenePainter::modelMatrix(m_frame);
    QVector3D place;
    if (surfaceAt(centre(), &place) != SurfacePicker::None)
        return upright.map(place);
    // Beside the model: as deep as its middle.
    const QVector3D eye = m_camera.eye(), sight = m_camera.sight();
    float distance = EmptyDistance;
    const std::vector<QVector3D> places =
        m_painter ? cornersOf(m_painter->model()) : std::vector<QVector3D>();
    if (!places.empty()) {
        QVector3D low = places.front(), high = low;
        widen(low, high, places);
        const float depth = QVector3D::dotProduct(upright.map(0.5f * (low + high)) - eye, sight);
        if (depth > Camera::NearPlane)
            distance = depth;
    }
    return eye + sight * distance;
}

KVOpenGLWidget::HitMarks KVOpenGLWidget::marksAt(const QPoint &pixel) const
{
    HitMarks hit;
    // Those of a model that was replaced since they were painted are nobody's.
    if (!m_frame.marks.mesh)
        return hit;
    const SceneMarks &marks = m_painter->marks();
    hit.hotPoint = marks.hotPointAt(pixel);
    if (hit.hotPoint == SceneMarks::None)
        hit.bone = marks.boneAt(pixel);
    return hit;
}

void KVOpenGLWidget::pick(const QPoint &pixel)
{
    if (!m_painter)
        return;
    const auto [bone, hotPoint] = marksAt(pixel);
    if (hotPoint != SceneMarks::None) {
        emit hotPointPicked(hotPoint);
    } else if (bone != SceneMarks::None) {
        emit bonePicked(bone);
    } else {
        const int surface = surfaceAt(pixel);
        if (surface != SurfacePicker::None)
            emit surfacePicked(surface);
    }
}

void KVOpenGLWidget::hover(const QPoint &pixel)
{
    if (!m_painter)
        return;
    const auto [bone, hotPoint] = marksAt(pixel);
    if (hotPoint == m_hoveredHotPoint && bone == m_hoveredBone)
        return;
    m_hoveredHotPoint = hotPoint;
    m_hoveredBone = bone;
    QString name;
    if (hotPoint != SceneMarks::None && m_hotPointName)
        name = m_hotPointName(hotPoint);
    else if (bone != SceneMarks::None && m_boneName)
        name = m_boneName(bone);
    // An empty text hides the tip.
    QToolTip::showText(mapToGlobal(pixel), name, this);
}

QImage KVOpenGLWidget::picture(const QSize &size, const QColor &background)
{
    if (!m_painter || !takeContext())
        return {};
    refreshModel();
    SceneFrame frame = m_frame;
    frame.view = m_camera.viewMatrix();
    frame.projection = Camera::projectionMatrix(size.width(), size.height());
    // Marks are as large beside the model as they are in the view.
    frame.viewport = QSize(size.width() * height() / std::max(1, size.height()), height());
    const QImage image = paintPicture(*m_painter, frame, size, background);
    m_painter->setUpState(QColor(m_background.rgb()));
    doneCurrent();
    update();
    return image;
}
