// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelPlaces.h"
#include "ViewSight.h"

#include <QVector3D>

class Camera;
class ShownScene;

/// What a camera sees of a scene: what stands where in the picture, and where to look.
class SceneSight : public ViewSight
{
public:
    SceneSight(const ShownScene &scene, const Camera &camera);

    HitMarks marksAt(const QPoint &pixel) const override;
    int surfaceAt(const QPoint &pixel) const override;
    int boneAt(const QPoint &pixel) const override;
    std::optional<QMatrix4x4> boneToModel(int bone) const override;
    std::optional<BoxHandle> boxHandle() const override;
    std::optional<PointHandle> pointHandle() const override;
    bool showsGizmo() const override;
    QVector3D pivot() const override;
    ScreenMap screenMap() const override;

    // Places in the view's space, for a camera that is to have them in its picture: of the whole model, but
    // for strays, or of what is selected of it, with a little room around it. Where nothing is selected that
    // has a place it is the whole model.
    std::vector<QVector3D> modelPlaces(int *strays = nullptr) const;
    std::vector<QVector3D> selectedPlaces(const ModelSelection &selection) const;
    /// Of the sphere around the whole model.
    QVector3D modelMiddle() const;

private:
    int surfaceAt(const QPoint &pixel, QVector3D *place, int *bone = nullptr) const;
    std::vector<QVector3D> upright(std::vector<QVector3D> places) const;

    const ShownScene &m_scene;
    const Camera &m_camera;
};
