// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UvPainter.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

/// Shows a UvMap over its texture, and lets vertices be picked there: the wheel brings it nearer, the middle
/// button (or Alt) moves it, a click takes a vertex or the corners of a triangle, a drag all vertices in its
/// rectangle. Shift adds to what is marked, Ctrl changes it over. Nothing of the model is changed.
class UvView : public QWidget
{
    Q_OBJECT

public:
    explicit UvView(QWidget *parent = nullptr);

    /// Shows another map; a null texture is a checkered one. `fits` brings all of it into view, otherwise the
    /// place that is looked at stays.
    void show(UvMap map, QImage texture, bool fits);
    /// What is said instead of a map; empty: the map is there.
    void setEmptyText(const QString &text);
    /// Marks vertices of the model, ascending; those that the map does not have are kept all the same.
    void setMarked(std::vector<int> vertices);

    const UvMap &map() const { return m_painter.map(); }
    const std::vector<int> &marked() const { return m_marked; }

    /// Where a place of the map stands in the widget, in its pixels, and the other way.
    QPointF toWidget(const QPointF &place) const { return m_scale.toPixels().map(place); }
    QPointF toMap(const QPointF &pixel) const { return m_scale.toMap(pixel); }
    /// In texels; what it counts as, where there is none.
    QSize textureSize() const { return m_scale.textureSize(); }
    bool hasTexture() const { return !m_painter.texture().isNull(); }

    QSize sizeHint() const override { return {400, 300}; }

public slots:
    /// Brings the texture with all triangles into view.
    void fit();
    /// The same with the marked vertices; all, where none is marked.
    void fitMarked();
    void selectAll();

signals:
    /// The user wants these vertices to be the selected ones, ascending.
    void chosen(const std::vector<int> &vertices);
    /// The mouse is over a place of the map, and over a vertex or -1.
    void pointed(const QPointF &place, int vertex);
    /// The mouse has left.
    void left();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    enum class Gesture { None, Move, Choose };

    void moveBy(const QPointF &pixels);
    void zoom(double factor, const QPointF &at);
    void forgetPicture();
    void click(const QPointF &pixel, Qt::KeyboardModifiers keys);
    void choose(std::vector<int> vertices, Qt::KeyboardModifiers keys);
    void point(const QPointF &pixel);
    void endGesture();

    UvPainter m_painter;
    UvScale m_scale;
    QString m_emptyText;
    std::vector<int> m_marked;
    bool m_isFitted = true;
    QPixmap m_picture; ///< of what stands still; null: to be drawn
    Gesture m_gesture = Gesture::None;
    QPoint m_pressed;
    QPoint m_last;
    int m_hovered = -1;
};
