// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvView.h"

#include "EmptyText.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {
constexpr QSize CheckerSize{256, 256}; // texels that a missing texture counts
constexpr int CheckerSide = 32;
constexpr double Margin = 12.0;                      // pixels around what is brought into view
constexpr double LeastSide = 8.0, MostTexel = 128.0; // pixels of a whole texture, of a texel
constexpr double FarAway = 1000.0;                   // textures; what is beyond is not brought into view
constexpr double Notch = 1.25;
constexpr int Step = 40;               // pixels that an arrow key moves
constexpr double Reach = 6.0;          // pixels of the mouse
constexpr double RepeatOpacity = 0.35; // of the texture where it is repeated
constexpr size_t SmoothEdges = 4000;   // more of them are drawn plainly
constexpr QRgb EdgeColor = 0xffffffff, EdgeShadow = 0xa0000000;
constexpr QRgb MarkColor = 0xffff8c00, MarkFill = 0x60ff8c00; // as the view marks what is selected

QPixmap checker(const QPalette &palette)
{
    QPixmap tile(2 * CheckerSide, 2 * CheckerSide);
    tile.fill(palette.color(QPalette::Mid));
    QPainter painter(&tile);
    const QColor other = palette.color(QPalette::Dark);
    painter.fillRect(0, 0, CheckerSide, CheckerSide, other);
    painter.fillRect(CheckerSide, CheckerSide, CheckerSide, CheckerSide, other);
    return tile;
}
} // namespace

UvView::UvView(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(80, 60);
}

void UvView::show(UvMap map, QImage texture, bool fits)
{
    const bool isOther = texture.size() != m_texture.size();
    m_map = std::move(map);
    m_texture = std::move(texture);
    m_fewer = {};
    m_hovered = -1;
    if (fits || m_isFitted || isOther)
        fit();
    forgetPicture();
}

void UvView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    forgetPicture();
}

void UvView::setMarked(std::vector<int> vertices)
{
    m_marked = std::move(vertices);
    update();
}

QSize UvView::textureSize() const
{
    return m_texture.isNull() ? CheckerSize : m_texture.size();
}

QPointF UvView::toWidget(const QPointF &place) const
{
    return toPixels().map(place);
}

QPointF UvView::toMap(const QPointF &pixel) const
{
    const QPointF away = pixel - m_origin;
    return {away.x() / (textureSize().width() * m_scale), away.y() / (textureSize().height() * m_scale)};
}

QTransform UvView::toPixels() const
{
    return QTransform(textureSize().width() * m_scale, 0, 0, textureSize().height() * m_scale, m_origin.x(),
                      m_origin.y());
}

QSizeF UvView::reach() const
{
    return {Reach / (textureSize().width() * m_scale), Reach / (textureSize().height() * m_scale)};
}

void UvView::forgetPicture()
{
    m_picture = {};
    update();
}

// --- What is in view ---------------------------------------------------------------------------------------

void UvView::bring(const QRectF &area)
{
    const QSizeF room(std::max(1.0, width() - 2 * Margin), std::max(1.0, height() - 2 * Margin));
    const double across = std::max(area.width(), 1.0 / textureSize().width()) * textureSize().width();
    const double down = std::max(area.height(), 1.0 / textureSize().height()) * textureSize().height();
    m_scale = 1.0;
    zoom(std::min(room.width() / across, room.height() / down), {});
    m_origin = {};
    m_origin = QRectF(rect()).center() - toWidget(area.center());
    forgetPicture();
}

void UvView::fit()
{
    const QRectF reachable(-FarAway, -FarAway, 2 * FarAway, 2 * FarAway);
    bring(QRectF(0, 0, 1, 1) | (m_map.bounds() & reachable));
    m_isFitted = true;
}

void UvView::fitMarked()
{
    QPolygonF places;
    for (const int vertex : m_marked) {
        if (m_map.has(vertex))
            places.append(m_map.place(vertex));
    }
    if (places.isEmpty())
        return fit();
    const QRectF around = places.boundingRect();
    const double room = 0.1 * std::max({around.width(), around.height(), 0.1});
    bring(around.adjusted(-room, -room, room, room));
    m_isFitted = false;
}

void UvView::zoom(double factor, const QPointF &at)
{
    const double longSide = std::max(textureSize().width(), textureSize().height());
    const double scale = std::clamp(m_scale * factor, LeastSide / longSide, MostTexel);
    m_origin = at - (at - m_origin) * (scale / m_scale);
    m_scale = scale;
    m_isFitted = false;
    forgetPicture();
}

void UvView::moveBy(const QPointF &pixels)
{
    m_origin += pixels;
    m_isFitted = false;
    const double ratio = devicePixelRatioF();
    const QPointF moved = pixels * ratio;
    const QPoint whole = moved.toPoint();
    update();
    if (m_picture.isNull() || moved != QPointF(whole))
        return forgetPicture();
    // What stays in view is there already.
    QRegion bare;
    m_picture.scroll(whole.x(), whole.y(), QRect({}, m_picture.size()), &bare);
    QPainter painter(&m_picture);
    for (const QRect &area : bare) {
        const QRectF logical(area.x() / ratio, area.y() / ratio, area.width() / ratio, area.height() / ratio);
        painter.setClipRect(logical);
        drawStill(painter, logical);
    }
}

// --- Painting ----------------------------------------------------------------------------------------------

void UvView::drawTexture(QPainter &painter, const QRectF &area) const
{
    const QTransform pixels = toPixels();
    const QRectF whole = pixels.mapRect(QRectF(0, 0, 1, 1));
    // Near texels have edges; far ones are made fewer, as one would be taken for many otherwise.
    const bool isFar = m_scale < 1.0 && !m_texture.isNull();
    const QSize fewer = whole.size().toSize().expandedTo({1, 1});
    if (isFar && m_fewer.size() != fewer)
        m_fewer = m_texture.scaled(fewer, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QBrush brush(m_texture.isNull() ? QBrush(checker(palette())) : QBrush(isFar ? m_fewer : m_texture));
    const QSizeF size = isFar ? m_fewer.size() : textureSize();
    brush.setTransform(QTransform::fromScale(1 / size.width(), 1 / size.height()) * pixels);
    painter.setOpacity(RepeatOpacity);
    painter.fillRect(area, brush);
    painter.setOpacity(1.0);
    const QRectF inside = whole & area;
    if (!inside.isEmpty()) {
        painter.fillRect(inside, palette().color(QPalette::Base));
        painter.fillRect(inside, brush);
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 0));
    painter.drawRect(whole);
}

void UvView::drawStill(QPainter &painter, const QRectF &area) const
{
    painter.fillRect(area, palette().color(QPalette::Base));
    if (!m_emptyText.isEmpty())
        return;
    drawTexture(painter, area);

    const QTransform pixels = toPixels();
    const QRectF seen = area.adjusted(-3, -3, 3, 3); // lines have their width
    QVector<QLineF> lines;
    lines.reserve(int(m_map.edges().size()));
    for (const QLineF &edge : m_map.edges()) {
        const QLineF line = pixels.map(edge);
        if (std::max(line.x1(), line.x2()) >= seen.left() && std::min(line.x1(), line.x2()) <= seen.right() &&
            std::max(line.y1(), line.y2()) >= seen.top() && std::min(line.y1(), line.y2()) <= seen.bottom())
            lines.append(line);
    }
    // The same for every part of the picture, however many of them are in it.
    if (m_map.edges().size() <= SmoothEdges) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor::fromRgba(EdgeShadow), 2.5));
        painter.drawLines(lines);
        painter.setPen(QPen(QColor::fromRgba(EdgeColor), 1.0));
        painter.drawLines(lines);
        painter.setRenderHint(QPainter::Antialiasing, false);
    } else {
        painter.setPen(QPen(QColor::fromRgba(EdgeColor), 0));
        painter.drawLines(lines);
    }
}

void UvView::drawMarked(QPainter &painter) const
{
    if (m_marked.empty() && m_hovered < 0)
        return;
    const QTransform pixels = toPixels();
    std::vector<bool> isMarked(size_t(m_map.vertices().empty() ? 0 : m_map.vertices().back() + 1), false);
    for (const int vertex : m_marked) {
        if (m_map.has(vertex))
            isMarked[size_t(vertex)] = true;
    }
    const auto mark = [&](int vertex, double radius, QRgb color) {
        const QPointF at = pixels.map(m_map.place(vertex));
        painter.fillRect(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius),
                         QColor::fromRgba(color));
    };
    painter.setPen(QPen(QColor::fromRgba(MarkColor), 0));
    painter.setBrush(QColor::fromRgba(MarkFill));
    for (const UvMap::Triangle &triangle : m_map.triangles()) {
        if (m_marked.size() >= 3 && isMarked[triangle[0]] && isMarked[triangle[1]] && isMarked[triangle[2]])
            painter.drawPolygon(pixels.map(
                QPolygonF({m_map.place(triangle[0]), m_map.place(triangle[1]), m_map.place(triangle[2])})));
    }
    const QRectF seen = QRectF(rect()).adjusted(-Reach, -Reach, Reach, Reach);
    for (const int vertex : m_map.vertices()) {
        if (!isMarked[size_t(vertex)] || !seen.contains(pixels.map(m_map.place(vertex))))
            continue;
        mark(vertex, 3.5, EdgeShadow);
        mark(vertex, 2.5, MarkColor);
    }
    if (m_hovered >= 0) {
        painter.setBrush(Qt::NoBrush);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor::fromRgba(MarkColor), 1.5));
        painter.drawEllipse(pixels.map(m_map.place(m_hovered)), Reach, Reach);
    }
}

void UvView::paintEvent(QPaintEvent *)
{
    const double ratio = devicePixelRatioF();
    const QSize needed = (QSizeF(size()) * ratio).toSize();
    if (m_picture.size() != needed || m_picture.devicePixelRatioF() != ratio) {
        m_picture = QPixmap(needed);
        m_picture.setDevicePixelRatio(ratio);
        QPainter painter(&m_picture);
        drawStill(painter, rect());
    }
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_picture);
        if (m_emptyText.isEmpty()) {
            drawMarked(painter);
            if (m_gesture == Gesture::Choose && m_last != m_pressed) {
                painter.setRenderHint(QPainter::Antialiasing, false);
                QColor fill = palette().color(QPalette::Highlight);
                painter.setPen(fill);
                fill.setAlpha(60);
                painter.setBrush(fill);
                painter.drawRect(QRect(m_pressed, m_last).normalized());
            }
        }
    }
    if (!m_emptyText.isEmpty())
        paintEmptyText(*this, m_emptyText);
}

void UvView::resizeEvent(QResizeEvent *event)
{
    if (m_isFitted)
        fit();
    else if (event->oldSize().isValid())
        m_origin += QPointF(width() - event->oldSize().width(), height() - event->oldSize().height()) / 2;
    forgetPicture();
}

void UvView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        forgetPicture();
    QWidget::changeEvent(event);
}

// --- Mouse and keys ----------------------------------------------------------------------------------------

bool UvView::event(QEvent *event)
{
    // A drag that goes on is given up by it, before anything else is.
    if (event->type() == QEvent::ShortcutOverride && m_gesture != Gesture::None &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void UvView::wheelEvent(QWheelEvent *event)
{
    zoom(std::pow(Notch, event->angleDelta().y() / 120.0), event->position());
    point(event->position());
    event->accept();
}

void UvView::mousePressEvent(QMouseEvent *event)
{
    if (m_gesture != Gesture::None || !m_emptyText.isEmpty())
        return;
    const bool isLeft = event->button() == Qt::LeftButton;
    if (event->button() == Qt::MiddleButton || (isLeft && (event->modifiers() & Qt::AltModifier)))
        m_gesture = Gesture::Move;
    else if (isLeft)
        m_gesture = Gesture::Choose;
    if (m_gesture == Gesture::Move)
        setCursor(Qt::ClosedHandCursor);
    m_pressed = m_last = event->pos();
}

void UvView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint moved = event->pos() - m_last;
    if (m_gesture == Gesture::Move) {
        m_last = event->pos();
        moveBy(moved);
    } else if (m_gesture == Gesture::Choose &&
               (m_last != m_pressed ||
                (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())) {
        m_last = event->pos();
        update();
    }
    point(event->localPos());
}

void UvView::mouseReleaseEvent(QMouseEvent *event)
{
    const Gesture gesture = m_gesture;
    const bool ends = gesture == Gesture::Move ? !(event->buttons() & (Qt::LeftButton | Qt::MiddleButton))
                                               : event->button() == Qt::LeftButton;
    if (!ends)
        return;
    const bool isDrag = m_last != m_pressed;
    endGesture();
    if (gesture != Gesture::Choose)
        return;
    if (isDrag)
        choose(m_map.verticesIn(QRectF(toMap(m_pressed), toMap(m_last)).normalized()), event->modifiers());
    else
        click(event->localPos(), event->modifiers());
}

void UvView::endGesture()
{
    m_gesture = Gesture::None;
    unsetCursor();
    update();
}

void UvView::click(const QPointF &pixel, Qt::KeyboardModifiers keys)
{
    const QPointF place = toMap(pixel);
    std::vector<std::vector<int>> hits;
    for (const int vertex : m_map.verticesAt(place, reach()))
        hits.push_back({vertex});
    if (hits.empty()) {
        for (const int triangle : m_map.trianglesAt(place)) {
            const UvMap::Triangle &corners = m_map.triangles()[size_t(triangle)];
            hits.push_back({corners.begin(), corners.end()});
            std::sort(hits.back().begin(), hits.back().end());
        }
    }
    if (hits.empty())
        return choose({}, keys);
    // What lies over one another is taken in turns.
    const auto taken = std::find(hits.begin(), hits.end(), m_marked);
    choose(taken == hits.end() || std::next(taken) == hits.end() ? hits.front() : *std::next(taken), keys);
}

void UvView::choose(std::vector<int> vertices, Qt::KeyboardModifiers keys)
{
    vertices.erase(std::unique(vertices.begin(), vertices.end()), vertices.end());
    std::vector<int> wanted;
    if (keys & Qt::ControlModifier)
        std::set_symmetric_difference(m_marked.begin(), m_marked.end(), vertices.begin(), vertices.end(),
                                      std::back_inserter(wanted));
    else if (keys & Qt::ShiftModifier)
        std::set_union(m_marked.begin(), m_marked.end(), vertices.begin(), vertices.end(),
                       std::back_inserter(wanted));
    else
        wanted = std::move(vertices);
    if (wanted != m_marked)
        emit chosen(wanted);
}

void UvView::selectAll()
{
    choose(m_map.vertices(), Qt::NoModifier);
}

void UvView::point(const QPointF &pixel)
{
    if (!m_emptyText.isEmpty())
        return;
    const QPointF place = toMap(pixel);
    const std::vector<int> found = m_map.verticesAt(place, reach());
    const int vertex = found.empty() ? -1 : found.front();
    if (std::exchange(m_hovered, vertex) != vertex)
        update();
    emit pointed(place, vertex);
}

void UvView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    if (std::exchange(m_hovered, -1) >= 0)
        update();
    emit left();
}

void UvView::keyPressEvent(QKeyEvent *event)
{
    const QPointF middle = QRectF(rect()).center();
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_gesture == Gesture::None)
            return QWidget::keyPressEvent(event);
        return endGesture();
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(Notch, middle);
    case Qt::Key_Minus:
        return zoom(1 / Notch, middle);
    case Qt::Key_Left:
        return moveBy({Step, 0});
    case Qt::Key_Right:
        return moveBy({-Step, 0});
    case Qt::Key_Up:
        return moveBy({0, Step});
    case Qt::Key_Down:
        return moveBy({0, -Step});
    default:
        QWidget::keyPressEvent(event);
    }
}
