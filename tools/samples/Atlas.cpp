// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Atlas.h"

#include "Occlusion.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {
/// Texels between charts, so that filtering never mixes two of them.
constexpr int Padding = 3;

struct ChartSlot
{
    size_t part;
    size_t chart;
    QRect texels;
};

/// Rows of charts, tallest first. False when they do not fit.
bool packCharts(const Figure &figure, std::vector<ChartSlot> &places, float texelsPerUnit, int texels)
{
    const auto side = [&](const ChartSlot &place, float units) {
        return std::max(2, int(std::lround(units * texelsPerUnit * figure.parts[place.part].detail)));
    };
    for (ChartSlot &place : places) {
        const Chart &chart = figure.parts[place.part].shape.charts[place.chart];
        place.texels = QRect(0, 0, side(place, chart.width), side(place, chart.height));
    }
    std::stable_sort(places.begin(), places.end(), [](const ChartSlot &a, const ChartSlot &b) {
        return a.texels.height() > b.texels.height();
    });
    int x = Padding, y = Padding, rowHeight = 0;
    for (ChartSlot &place : places) {
        if (x + place.texels.width() + Padding > texels) {
            x = Padding;
            y += rowHeight + Padding;
            rowHeight = 0;
        }
        rowHeight = std::max(rowHeight, place.texels.height());
        if (x + place.texels.width() + Padding > texels || y + rowHeight + Padding > texels)
            return false;
        place.texels.moveTo(x, y);
        x += place.texels.width() + Padding;
    }
    return true;
}

std::vector<ChartSlot> layOut(const Figure &figure, int material, int texels)
{
    std::vector<ChartSlot> places;
    for (size_t part = 0; part < figure.parts.size(); ++part) {
        if (figure.parts[part].material != material || figure.parts[part].twin >= 0)
            continue;
        for (size_t chart = 0; chart < figure.parts[part].shape.charts.size(); ++chart)
            places.push_back({part, chart, {}});
    }
    float texelsPerUnit = 32.0f;
    while (!packCharts(figure, places, texelsPerUnit, texels))
        texelsPerUnit *= 0.98f;
    return places;
}

void moveToAtlas(Figure &figure, const std::vector<ChartSlot> &places, int texels)
{
    const auto place = [&](Part &part, size_t owner) {
        for (const ChartSlot &slot : places) {
            if (slot.part != owner)
                continue;
            for (ShapeVertex &vertex : part.shape.vertices) {
                if (size_t(vertex.chart) != slot.chart)
                    continue;
                const QRect &at = slot.texels;
                vertex.uv = QVector2D(float(at.x()) + 0.5f + vertex.uv.x() * float(at.width() - 1),
                                      float(at.y()) + 0.5f + vertex.uv.y() * float(at.height() - 1)) /
                            float(texels);
            }
        }
    };
    for (size_t i = 0; i < figure.parts.size(); ++i) {
        Part &part = figure.parts[i];
        place(part, part.twin >= 0 ? size_t(part.twin) : i);
    }
}

/// Light from the front and above, symmetric, since both sides of a model share their charts.
QVector3D shade(const Surfacing &surfacing, const QVector3D &normal, float openness)
{
    const QVector3D towardsKey = QVector3D(0.0f, -0.62f, 0.78f).normalized();
    const QVector3D towardsViewer(0.0f, -1.0f, 0.0f);
    const QVector3D sky(0.92f, 0.93f, 0.97f), floor(0.62f, 0.58f, 0.60f), key(0.24f, 0.215f, 0.175f);
    const float lambert = std::max(0.0f, QVector3D::dotProduct(normal, towardsKey));
    const QVector3D light =
        mixed(floor, sky, 0.5f + 0.5f * normal.z()) * openness + key * (lambert * std::sqrt(openness));
    const QVector3D halfway = (towardsKey + towardsViewer).normalized();
    const float glint = std::pow(std::max(0.0f, QVector3D::dotProduct(normal, halfway)), 28.0f) * openness;
    const QVector3D lit = surfacing.colour * light + QVector3D(1.0f, 0.97f, 0.9f) * (surfacing.gloss * glint);
    return mixed(lit, surfacing.colour, surfacing.glow);
}

QRgb toRgb(const QVector3D &colour)
{
    const auto component = [](float value) {
        return int(std::lround(std::clamp(value, 0.0f, 1.0f) * 255.0f));
    };
    return qRgb(component(colour.x()), component(colour.y()), component(colour.z()));
}

/// Paints every texel whose middle lies in the triangle.
void paintTriangle(QImage &image, const Part &part, const QMatrix4x4 &toModel,
                   const std::vector<float> &openness, const std::array<size_t, 3> &corners)
{
    const auto vertex = [&](size_t i) -> const ShapeVertex & { return part.shape.vertices[corners[i]]; };
    std::array<QVector2D, 3> at;
    for (size_t i = 0; i < 3; ++i)
        at[i] = vertex(i).uv * float(image.width()) - QVector2D(0.5f, 0.5f);
    const auto cross = [](const QVector2D &a, const QVector2D &b) { return a.x() * b.y() - a.y() * b.x(); };
    const float area = cross(at[1] - at[0], at[2] - at[0]);
    if (std::abs(area) < 1e-4f)
        return;
    const int left = int(std::floor(std::min({at[0].x(), at[1].x(), at[2].x()})));
    const int right = int(std::ceil(std::max({at[0].x(), at[1].x(), at[2].x()})));
    const int top = int(std::floor(std::min({at[0].y(), at[1].y(), at[2].y()})));
    const int bottom = int(std::ceil(std::max({at[0].y(), at[1].y(), at[2].y()})));
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const QVector2D texel{float(x), float(y)};
            const float b = cross(texel - at[0], at[2] - at[0]) / area;
            const float c = cross(at[1] - at[0], texel - at[0]) / area;
            const float a = 1.0f - b - c;
            if (a < -1e-3f || b < -1e-3f || c < -1e-3f)
                continue;
            const auto blend = [&](const auto &get) { return get(0) * a + get(1) * b + get(2) * c; };
            PaintPoint point;
            point.position = blend([&](size_t i) { return vertex(i).position; });
            const QVector3D normal = blend([&](size_t i) { return vertex(i).normal; });
            point.normal = toModel.mapVector(normal).normalized();
            point.uv = texel;
            point.chart = vertex(0).chart;
            const float open = blend([&](size_t i) { return openness[corners[i]]; });
            image.setPixel(x, y, toRgb(shade(part.paint(point), point.normal, open)));
        }
    }
}

/// Spreads painted texels over the unpainted ones beside them.
void spreadEdges(QImage &image, int times)
{
    for (; times > 0; --times) {
        const QImage before = image;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(before.pixel(x, y)) != 0)
                    continue;
                constexpr std::array<std::array<int, 2>, 8> Beside{
                    {{-1, 0}, {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}}};
                for (const auto &[dx, dy] : Beside) {
                    if (before.valid(x + dx, y + dy) && qAlpha(before.pixel(x + dx, y + dy)) != 0) {
                        image.setPixel(x, y, before.pixel(x + dx, y + dy));
                        break;
                    }
                }
            }
        }
    }
}
} // namespace

QImage bakeTexture(Figure &figure, int material, int texels)
{
    moveToAtlas(figure, layOut(figure, material, texels), texels);

    QImage image(texels, texels, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const Occlusion occlusion(figure);
    const std::vector<QMatrix4x4> matrices = figure.restMatrices();
    for (const Part &part : figure.parts) {
        if (part.material != material || part.twin >= 0)
            continue;
        const QMatrix4x4 &toModel = matrices[size_t(part.bone)];
        std::vector<float> openness;
        for (const ShapeVertex &vertex : part.shape.vertices)
            openness.push_back(
                occlusion.openness(toModel * vertex.position, toModel.mapVector(vertex.normal)));
        for (size_t i = 0; i < part.shape.triangles.size(); i += 3)
            paintTriangle(image, part, toModel, openness,
                          {size_t(part.shape.triangles[i]), size_t(part.shape.triangles[i + 1]),
                           size_t(part.shape.triangles[i + 2])});
    }
    spreadEdges(image, Padding);
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(qRgb(128, 128, 128));
    for (int y = 0; y < texels; ++y) {
        for (int x = 0; x < texels; ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                opaque.setPixel(x, y, image.pixel(x, y));
        }
    }
    return opaque;
}
