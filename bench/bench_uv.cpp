// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// A large surface over its texture.
#include "Bench.h"
#include "UvView.h"

#include <QApplication>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <numeric>

namespace {
constexpr int Side = 173; // quads: 60,000 triangles
constexpr QSize Size{900, 600};
constexpr double Frame = 16e-3; // seconds

UvMap grid()
{
    std::vector<QVector2D> uvs;
    std::vector<quint16> indexes;
    for (int y = 0; y <= Side; ++y) {
        for (int x = 0; x <= Side; ++x)
            uvs.emplace_back(float(x + 0.3 * std::sin(y)) / Side, float(y + 0.3 * std::cos(x)) / Side);
    }
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            const int corner = y * (Side + 1) + x;
            for (const int index :
                 {corner, corner + 1, corner + Side + 2, corner + Side + 2, corner + Side + 1, corner})
                indexes.push_back(quint16(index));
        }
    }
    return {uvs, indexes};
}

void turnWheel(UvView &view, int delta)
{
    const QPoint middle = view.rect().center();
    QWheelEvent event(middle, view.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    UvView view;
    view.resize(Size);
    QImage texture(1024, 1024, QImage::Format_RGBA8888);
    texture.fill(Qt::darkGreen);
    view.show(grid(), texture, true);
    view.QWidget::show();
    QCoreApplication::processEvents();

    // Time of the processor, since pictures are drawn by it. To and fro, so that all of it is drawn anew; the
    // floor draws the same lines and nothing else.
    int delta = 15;
    const auto drawAnew = [&] {
        return Bench::processSeconds([&] {
            turnWheel(view, delta = -delta);
            view.repaint();
        });
    };
    const auto bareLines = [&] {
        return Bench::processSeconds([&] {
            QPixmap picture(Size);
            picture.fill(Qt::black);
            QPainter painter(&picture);
            painter.setPen(QPen(Qt::white, 0));
            QVector<QLineF> lines;
            for (const QLineF &edge : view.map().edges())
                lines.append({view.toWidget(edge.p1()), view.toWidget(edge.p2())});
            painter.drawLines(lines);
        });
    };
    Bench::ratio("uv_draw_60000", 1.5, 20, drawAnew, bareLines);
    Bench::limit("uv_draw_60000_limit", Frame, 20, drawAnew);
    Bench::limit("uv_paint_60000", Frame, 20, [&] {
        std::vector<int> marked(1000);
        std::iota(marked.begin(), marked.end(), 0);
        view.setMarked(std::move(marked));
        return Bench::processSeconds([&] { view.repaint(); });
    });
    Bench::limit("uv_point_60000", Frame, 20, [&] {
        return Bench::processSeconds([&] {
            benchmark::DoNotOptimize(view.map().verticesAt({0.5, 0.5}, {0.01, 0.01}));
            benchmark::DoNotOptimize(view.map().trianglesAt({0.5, 0.5}));
        });
    });
    return Bench::run(argc, argv);
}
