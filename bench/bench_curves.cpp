// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "CurveKeys.h"
#include "CurvePainter.h"
#include "TurnAngles.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cmath>

/// The curves of a long animation: a paint of three of them against bare polylines through the same points,
/// and the edit of all their keys against what their angles take.
namespace {
constexpr int Frames = 10000;
constexpr int Bones = 128;
constexpr QSize PictureSize(1200, 300);

AnimBlock longBlock()
{
    AnimBlock block;
    block.nodes.resize(Bones);
    block.setFrameCount(Frames);
    block.setRotationCount(Bones);
    for (int bone = 0; bone < Bones; ++bone) {
        block.nodes[size_t(bone)].rotationIndex = quint16(bone);
        for (int frame = 0; frame < Frames; ++frame)
            block.rotations.at(bone, frame) =
                Motion::turnOf({40 * std::sin(frame * 0.05), 30 * std::cos(frame * 0.11), frame * 0.7})
                    .toVector();
    }
    return block;
}

struct Scene
{
    Scene()
    {
        data.show(&block, {5}, 0x38);
        places.arrange(QFont(), PictureSize);
        places.showAll();
        selection.reset(data.count(), Frames);
        image.fill(Qt::white);
    }

    AnimBlock block = longBlock();
    CurveData data;
    CurvePlaces places{data};
    CurveSelection selection;
    QImage image{PictureSize, QImage::Format_RGB32};
};

void registerPaint(Scene &scene)
{
    const auto paint = [&scene] {
        QPainter painter(&scene.image);
        paintCurves(painter, scene.places, {scene.selection}, QPalette());
    };
    const auto bare = [&scene] {
        QPainter painter(&scene.image);
        for (int curve = 0; curve < scene.data.count(); ++curve) {
            QPolygonF line;
            line.reserve(Frames);
            for (int frame = 0; frame < Frames; ++frame)
                line.append(scene.places.placeOf({curve, frame}));
            painter.drawPolyline(line);
        }
    };
    Bench::ratio("curves_paint", 1.25, 15, paint, bare);
    Bench::limit("curves_paint_time", 0.016, 15, paint);
}

void registerEdit(Scene &scene)
{
    const auto edit = [&scene] {
        CurveSelection all;
        all.reset(scene.data.count(), Frames);
        for (int curve = 0; curve < scene.data.count(); ++curve)
            all.add(curve, 0, Frames - 1);
        BlockKeys keys = CurveKeys::changed(scene.data, all, CurveUnit::Degrees,
                                            [](const CurveKey &, double value) { return value + 0.25; });
        keys.exchange(scene.block);
        keys.exchange(scene.block);
    };
    const auto show = [&scene] {
        CurveData anew;
        anew.show(&scene.block, {5}, 0x38);
    };
    // What any view of angles has to do with each key once.
    Bench::ratio("curves_edit_of_all_keys", 4.0, 15, edit, show);
}
} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Scene scene;
    registerPaint(scene);
    registerEdit(scene);
    return Bench::run(argc, argv);
}
