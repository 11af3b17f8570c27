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
constexpr double FarAway = 1000.0; // textures; what is beyond is not brought into view
constexpr double Notch = 1.25;
constexpr int Step = 40; // pixels that an arrow key moves
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
    const QSize before = textureSize();
    m_painter.setMap(std::move(map), std::move(texture), m_scale);
    m_hovered = -1;
    if (fits || m_isFitted || textureSize() != before)
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

void UvView::forgetPicture()
{
    m_picture = {};
    update();
}

// --- What is in view ---------------------------------------------------------------------------------------

void UvView::fit()
{
    // Bounds may have no width or no height, which would be none to a rectangle's operators.
    const QRectF bounds = map().bounds();
    const QPointF low(std::clamp(bounds.left(), -FarAway, 0.0), std::clamp(bounds.top(), -FarAway, 0.0));
    const QPointF high(std::clamp(bounds.right(), 1.0, FarAway), std::clamp(bounds.bottom(), 1.0, FarAway));
    m_scale.bring(QRectF(low, high), size());
    m_isFitted = true;
    forgetPicture();
}

void UvView::fitMarked()
{
    QPolygonF places;
    for (const int vertex : m_marked) {
        if (map().has(vertex))
            places.append(map().place(vertex));
    }
    if (places.isEmpty())
        return fit();
    const QRectF around = places.boundingRect();
    const double room = 0.1 * std::max({around.width(), around.height(), 0.1});
    m_scale.bring(around.adjusted(-room, -room, room, room), size());
    m_isFitted = false;
    forgetPicture();
}

void UvView::zoom(double factor, const QPointF &at)
{
    m_scale.zoom(factor, at);
    m_isFitted = false;
    forgetPicture();
}

void UvView::moveBy(const QPointF &pixels)
{
    m_scale.moveBy(pixels);
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
        m_painter.drawStill(painter, logical, m_scale, palette());
    }
}

// --- Painting ----------------------------------------------------------------------------------------------

void UvView::paintEvent(QPaintEvent *)
{
    const double ratio = devicePixelRatioF();
    const QSize needed = (QSizeF(size()) * ratio).toSize();
    if (m_picture.size() != needed || m_picture.devicePixelRatioF() != ratio) {
        m_picture = QPixmap(needed);
        m_picture.setDevicePixelRatio(ratio);
        QPainter painter(&m_picture);
        if (m_emptyText.isEmpty())
            m_painter.drawStill(painter, rect(), m_scale, palette());
        else
            painter.fillRect(rect(), palette().color(QPalette::Base));
    }
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_picture);
        if (m_emptyText.isEmpty()) {
            m_painter.drawMarked(painter, rect(), m_scale, m_marked, m_hovered);
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
        m_scale.moveBy(QPointF(width() - event->oldSize().width(), height() - event->oldSize().height()) / 2);
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
        choose(map().verticesIn(QRectF(toMap(m_pressed), toMap(m_last)).normalized()), event->modifiers());
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
    for (const int vertex : map().verticesAt(place, m_scale.sizeOf(UvPainter::Reach)))
        hits.push_back({vertex});
    if (hits.empty()) {
        for (const int triangle : map().trianglesAt(place)) {
            const UvMap::Triangle &corners = map().triangles()[size_t(triangle)];
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
    if (wanted != m_marked && m_emptyText.isEmpty())
        emit chosen(wanted);
}

void UvView::selectAll()
{
    choose(map().vertices(), Qt::NoModifier);
}

void UvView::point(const QPointF &pixel)
{
    if (!m_emptyText.isEmpty())
        return;
    const QPointF place = toMap(pixel);
    const std::vector<int> found = map().verticesAt(place, m_scale.sizeOf(UvPainter::Reach));
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

void UvView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    if (m_gesture != Gesture::None)
        endGesture(); // a menu or another window has the mouse
}

void UvView::keyPressEvent(QKeyEvent *event)
{
    // What is not shown is not moved, either.
    if (!m_emptyText.isEmpty() && m_gesture == Gesture::None)
        return QWidget::keyPressEvent(event);
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
