// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CardClock.h"
#include "MultisampleTarget.h"
#include "ScenePainter.h"

#include <QColor>
#include <QImage>

#include <functional>
#include <memory>
#include <optional>

class Camera;
struct SkinnedMesh;
struct StaticMesh;

/// What a view shows: one of two borrowed models, how it is to look, and its copy on the graphics card. The
/// copy is made, used and dropped with its context current; everything else needs none, and stays when the
/// copy goes.
class ShownScene
{
public:
    /// As the settings want it.
    ShownScene();

    // What is shown. Each returns whether another model is shown than before, which is built anew then; what
    // was selected and marked of the other one is forgotten.
    bool setSkinned(bool on);
    bool setMesh(const SkinnedMesh *mesh, std::shared_ptr<MeshSource> ready);
    bool setMesh(const StaticMesh *mesh, std::shared_ptr<MeshSource> ready);
    /// The skinned mesh, where it is shown.
    const SkinnedMesh *skinnedMesh() const { return frame.skinned ? m_skinnedMesh : nullptr; }

    void selectSurface(int surface);
    /// The model has changed: the copy follows with the next refresh().
    void verticesChanged() { m_verticesChanged = true; }
    void indexesChanged() { m_indexesChanged = true; }

    static SurfaceOverlay overlay(int number); ///< None where there is no such
    static Shading shading(int number);        ///< Shaded where there is no such
    static SurfaceLook look(int number);       ///< Textured where there is no such
    const QColor &background() const { return m_background; }
    void setBackground(const QColor &color) { m_background = color; }

    // The copy.

    /// Makes a copy of everything; `stepFailed` is called for each shader step that fails.
    void makeCopy(const std::function<void()> &stepFailed);
    void dropCopy();
    /// Makes the copy of the model, with its textures, anew: the first time of what came ready with it.
    void rebuild();
    /// Lets more of it go to the card; false when all is there.
    bool uploadNext() { return m_painter && m_painter->model().uploadNext(); }
    /// What came ready does not count any more, but this does, if there is any: it was made of the model as
    /// it is now.
    void setReady(std::shared_ptr<MeshSource> ready)
    {
        m_ready = std::move(ready);
        if (m_ready)
            m_verticesChanged = m_indexesChanged = false;
    }
    /// Lets it follow the model. False when there was nothing to follow.
    bool refresh();
    void applyBackground();
    /// Paints the frame as it is seen from a camera.
    void paint(const Camera &camera);
    /// Whether the card is asked how long it takes for that.
    void setMeasured(bool on) { m_isMeasured = on; }
    /// Milliseconds a frame, as CardClock::takeMean() tells them.
    std::optional<float> takeCardTime() { return m_clock ? m_clock->takeMean() : std::nullopt; }
    /// What a picture of another size is painted of, beside a view of this height.
    SceneFrame still(const QSize &size, const Camera &camera, int viewHeight) const;
    /// Paints that. Null when there is no memory.
    QImage picture(const QSize &size, const QColor &color, const Camera &camera, int viewHeight);

    /// Null while there is none.
    const GLMesh *model() const { return m_painter ? &m_painter->model() : nullptr; }
    /// The bones and hot points of the frame painted last. Null while there is none of the model shown.
    const SceneMarks *marks() const;
    /// Of the skinned mesh that is shown; null while there is none.
    BonePalette *palette();
    int triangleCount() const;

    SceneFrame frame; ///< of the next paint

private:
    void modelReplaced(std::shared_ptr<MeshSource> ready);
    float groundHeight() const;
    std::optional<Box> modelBox() const;

    const SkinnedMesh *m_skinnedMesh = nullptr;
    const StaticMesh *m_staticMesh = nullptr;
    std::shared_ptr<MeshSource> m_ready; ///< made before of the model as it was set
    int m_selectedSurface = GLMesh::NoSurface;
    bool m_verticesChanged = false;
    bool m_indexesChanged = false;
    QColor m_background;
    bool m_isMeasured = false;
    std::unique_ptr<ScenePainter> m_painter;
    // While they are wanted.
    std::unique_ptr<MultisampleTarget> m_samples;
    std::unique_ptr<CardClock> m_clock;
};
