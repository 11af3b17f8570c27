// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneSight.h"

#include "BoundingSphere.h"
#include "Camera.h"
#include "Picking.h"
#include "ShownScene.h"
#include "SkinnedMesh.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace {
/// A single point or a small part is not gone nearer to than this share of the model's size.
constexpr float LeastShare = 0.06f;
/// How far away the point looked at is where there is nothing.
constexpr float EmptyDistance = 500.0f;

/// Those of the model that are not strays.
std::vector<QVector3D> cornersTogether(const GLMesh &model)
{
    std::vector<QVector3D> places = cornersOf(model);
    dropStrays(places);
    return places;
}

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

SceneSight::SceneSight(const ShownScene &scene, const Camera &camera)
    : m_scene(scene)
    , m_camera(camera)
{}

HitMarks SceneSight::marksAt(const QPoint &pixel) const
{
    HitMarks hit;
    const SceneMarks *marks = m_scene.marks();
    if (!marks)
        return hit;
    hit.hotPoint = marks->hotPointAt(pixel);
    if (hit.hotPoint == HitMarks::None)
        hit.bone = marks->boneAt(pixel);
    return hit;
}

int SceneSight::surfaceAt(const QPoint &pixel) const
{
    return surfaceAt(pixel, nullptr);
}

int SceneSight::boneAt(const QPoint &pixel) const
{
    const SceneMarks *marks = m_scene.marks();
    int bone = marks ? marks->boneAt(pixel) : HitMarks::None;
    if (bone == HitMarks::None)
        surfaceAt(pixel, nullptr, &bone);
    return boneToModel(bone) ? bone : HitMarks::None;
}

std::optional<QMatrix4x4> SceneSight::boneToModel(int bone) const
{
    const GLMesh *model = m_scene.model();
    if (!model || !m_scene.skinnedMesh() || bone < 0 || size_t(bone) >= model->palette.size())
        return {};
    return model->palette[size_t(bone)];
}

std::optional<BoxHandle> SceneSight::boxHandle() const
{
    const MarkedRecords &marks = m_scene.frame.marks;
    if (!marks.showsBoxes() || marks.handledBox == MarkedRecords::NoBox)
        return {};
    if (marks.handledBox == MarkedRecords::ModelBox)
        return marks.box ? std::make_optional<BoxHandle>(marks.box->min, marks.box->max, QMatrix4x4())
                         : std::nullopt;
    const SkinnedMesh *mesh = m_scene.skinnedMesh();
    const auto toModel = boneToModel(marks.handledBox);
    if (!mesh || !toModel || size_t(marks.handledBox) >= mesh->nodes.size())
        return {};
    const SkinnedMeshNode &bone = mesh->nodes[size_t(marks.handledBox)];
    return BoxHandle(bone.bbMin, bone.bbMax, *toModel);
}

std::optional<PointHandle> SceneSight::pointHandle() const
{
    const SceneFrame &frame = m_scene.frame;
    if (!frame.highlight.on || !frame.marks.handlesPoint || frame.marks.bonesAlone)
        return {};
    return PointHandle{frame.highlight.position, frame.highlight.bone,
                       boneToModel(frame.highlight.bone).value_or(QMatrix4x4())};
}

int SceneSight::surfaceAt(const QPoint &pixel, QVector3D *place, int *bone) const
{
    const GLMesh *model = m_scene.model();
    if (!model)
        return HitMarks::None;
    // Through the middle of the pixel.
    SurfacePicker picker(model->vertices().vertices, model->palette,
                         screenMap().ray(QPointF(pixel) + QPointF(0.5, 0.5)), m_scene.frame.backCull);
    for (int surface = 0; surface < model->surfaceCount(); ++surface)
        picker.tryTriangles(surface, model->indexes(surface));
    if (place && picker.surface() != SurfacePicker::None)
        *place = picker.place();
    if (bone && picker.surface() != SurfacePicker::None)
        *bone = model->vertices().vertices[picker.vertex()].boneId;
    return picker.surface();
}

ScreenMap SceneSight::screenMap() const
{
    const SceneFrame &frame = m_scene.frame;
    return {m_camera.projectionMatrix(frame.viewport.width(), frame.viewport.height()),
            m_camera.viewMatrix() * ScenePainter::modelMatrix(frame), frame.viewport};
}

bool SceneSight::showsGizmo() const
{
    return m_scene.frame.showAxisGizmo;
}

QVector3D SceneSight::pivot() const
{
    if (m_camera.framed())
        return *m_camera.framed();
    const QMatrix4x4 toView = ScenePainter::modelMatrix(m_scene.frame);
    const QSize size = m_scene.frame.viewport;
    QVector3D place;
    if (surfaceAt({size.width() / 2, size.height() / 2}, &place) != HitMarks::None)
        return toView.map(place);
    // Beside the model: as deep as half of its corners, which strays do not move.
    const QVector3D eye = m_camera.eye(), sight = m_camera.sight();
    float distance = EmptyDistance;
    std::vector<float> depths;
    for (const QVector3D &corner : m_scene.model() ? cornersOf(*m_scene.model()) : std::vector<QVector3D>()) {
        const float depth = QVector3D::dotProduct(toView.map(corner) - eye, sight);
        if (std::isfinite(depth))
            depths.push_back(depth);
    }
    if (!depths.empty()) {
        const auto middle = depths.begin() + std::ptrdiff_t(depths.size() / 2);
        std::nth_element(depths.begin(), middle, depths.end());
        if (*middle > Camera::NearPlane)
            distance = *middle;
    }
    return eye + sight * distance;
}

std::vector<QVector3D> SceneSight::upright(std::vector<QVector3D> places) const
{
    const QMatrix4x4 toView = ScenePainter::modelMatrix(m_scene.frame);
    for (QVector3D &place : places)
        place = toView.map(place);
    return places;
}

std::vector<QVector3D> SceneSight::modelPlaces(int *strays) const
{
    if (!m_scene.model())
        return {};
    std::vector<QVector3D> places = cornersOf(*m_scene.model());
    const int dropped = dropStrays(places);
    if (strays)
        *strays = dropped;
    return upright(std::move(places));
}

std::vector<QVector3D> SceneSight::selectedPlaces(const ModelSelection &selection) const
{
    if (!m_scene.model())
        return {};
    const GLMesh &model = *m_scene.model();
    std::vector<QVector3D> places = placesOf(model, m_scene.skinnedMesh(), selection);
    if (places.empty())
        return modelPlaces();
    QVector3D low = places.front(), high = low, lowest = low, highest = low;
    widen(low, high, places);
    widen(lowest, highest, cornersTogether(model));
    const float least = LeastShare * (highest - lowest).length();
    const QVector3D middle = 0.5f * (low + high);
    for (int axis = 0; axis < 3; ++axis) {
        QVector3D reach;
        reach[axis] = least;
        places.push_back(middle - reach);
        places.push_back(middle + reach);
    }
    return upright(std::move(places));
}

QVector3D SceneSight::modelMiddle() const
{
    return BoundingSphere::of(modelPlaces()).middle;
}
