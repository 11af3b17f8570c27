// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KVOpenGLWidget.h"
#include "Log.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"

#include <QApplication>
#include <QSurfaceFormat>

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

/// A context as the program sets it up, or forced to 3.3 core.
inline void useSurfaceFormat(bool core33)
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    if (core33)
        format.setVersion(3, 3);
    QSurfaceFormat::setDefaultFormat(format);
}
