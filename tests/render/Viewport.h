// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "KVOpenGLWidget.h"
#include "Log.h"
#include "Playback.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"

#include <QApplication>
#include <QSurfaceFormat>

#include <cstdlib>
#include <limits>
#include <memory>

/// A square of 400 by 400 in the middle of the start view, facing the camera, two surfaces of one triangle.
inline StaticMesh facingSquare(const QString &material)
{
    const auto corner = [](float x, float z) {
        // As files have it: v counts from the bottom row.
        return StaticMeshVertex{{x, 0.0f, z + 300.0f}, {(x + 200.0f) / 400.0f, (z + 200.0f) / 400.0f}, {}};
    };
    StaticMesh square;
    square.vertices = {corner(-200.0f, -200.0f), corner(-200.0f, 200.0f), corner(200.0f, 200.0f),
                       corner(200.0f, -200.0f)};
    square.surfaces = {{material, {0, 1, 2}}, {material, {0, 2, 3}}};
    return square;
}

/// A viewport that counts its frames.
class Viewport : public KVOpenGLWidget
{
public:
    explicit Viewport(QWidget *parent = nullptr)
        : KVOpenGLWidget(parent)
    {
        resize(400, 300);
        setActive(true);
        setBackgroundColor(QColor(10, 200, 30));
    }

    int frames = 0;
    StaticMesh square; ///< shown by openSquare()
    SkinnedMesh mesh;  ///< shown by showBones(), with the animation
    AnimFile anim;

    /// Shows the view in front and waits for its first frame.
    void open()
    {
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
        activateWindow(); // there may be no window manager to do it
        QVERIFY(QTest::qWaitForWindowActive(this));
        setFocus();
        QTRY_VERIFY(frames > 0);
        QVERIFY(isValid());
    }

    void openSquare(const QString &material = QStringLiteral("_white"))
    {
        square = facingSquare(material);
        setBackCull(true);
        setStaticMesh(&square);
        open();
    }

    /// Shows a mesh in the pose of an animation.
    void showSkinned(const SkinnedMesh &shown, const AnimFile &played)
    {
        playback().mesh = &shown;
        playback().anim = &played;
        setSkinnedMeshMode(true);
        setSkinnedMesh(&shown);
    }

    /// Shows bones, each the child of the one before and that far from it.
    void showBones(const std::vector<QVector3D> &offsets)
    {
        mesh.nodes.resize(offsets.size());
        anim.blocks.resize(1);
        anim.blocks[0].nodes.resize(offsets.size());
        for (size_t bone = 0; bone < offsets.size(); ++bone) {
            offset(bone) = offsets[bone];
            if (bone > 0)
                mesh.nodes[bone - 1].childNodes = {quint16(bone)};
        }
        showSkinned(mesh, anim);
    }
    QVector3D &offset(size_t bone) { return anim.blocks[0].nodes[bone].initialPosition; }

    QColor pixel(int x, int y) { return grabFramebuffer().pixelColor(x, y); }
    QColor centrePixel() { return pixel(width() / 2, height() / 2); }

    /// Pixels of the next frame for which `holds(color)`.
    template <typename Holds>
    int count(Holds holds)
    {
        const QImage image = grabFramebuffer();
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += holds(image.pixelColor(x, y)) ? 1 : 0;
        }
        return found;
    }

protected:
    void paintGL() override
    {
        ++frames;
        KVOpenGLWidget::paintGL();
    }
};

inline bool isColor(const QColor &color, int red, int green, int blue)
{
    constexpr int Near = 3; // of 255
    return std::abs(color.red() - red) <= Near && std::abs(color.green() - green) <= Near &&
           std::abs(color.blue() - blue) <= Near;
}

inline bool isWhite(const QColor &color)
{
    return isColor(color, 255, 255, 255);
}

/// That of a Viewport.
inline bool isBackground(const QColor &color)
{
    return isColor(color, 10, 200, 30);
}

/// A row for each context that a test is to run in.
inline void addContexts()
{
    QTest::addColumn<bool>("core33");
    QTest::newRow("no version") << false;
    QTest::newRow("3.3 core") << true;
}

/// A view with nothing that plays, its context as the program sets it up or forced to 3.3 core.
template <typename View = Viewport>
std::unique_ptr<View> makeView(bool core33 = false)
{
    playback() = {};
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    if (core33)
        format.setVersion(3, 3);
    QSurfaceFormat::setDefaultFormat(format);
    return std::make_unique<View>();
}

/// The material "m/a/quarters": the upper half red and blue, the lower half white and half or wholly
/// transparent.
inline void putQuarters(const QString &folder)
{
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::blue);
    image.setPixelColor(0, 1, Qt::white);
    image.setPixelColor(1, 1, QColor(255, 255, 255, 2));
    if (!QDir(folder).mkpath(QStringLiteral("m")) ||
        !image.scaled(64, 64).save(folder + QStringLiteral("/quarters.png")) ||
        !TestSupport::writeFile(folder + QStringLiteral("/m/a.kmat"),
                                "material quarters {\n sampler \"diffuse\" 0 \"quarters.png\" {\n}\n}\n"))
        qFatal("no room for pictures");
}

/// Bone numbers and indexes from nowhere, more bones than the program holds, numbers that are none.
inline SkinnedMesh oddMesh()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    SkinnedMesh mesh;
    mesh.nodes.resize(300);
    mesh.bbMin = mesh.bbMax = {nan, nan, nan};
    for (int i = 0; i < 1000; ++i)
        mesh.vertices.push_back({{float(i), nan, 3e38f}, {nan, 1e30f}, {nan, 1e30f, 0.0f}, quint16(i * 65)});
    mesh.surfaces = {{QString(), {0, 999, 1000, 65535, 1, 2, 3, 4, 5, 6}}, {QStringLiteral("_white"), {}}};
    return mesh;
}
