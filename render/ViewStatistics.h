// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Frames a second and the number of triangles, in the corner of a view. The text is made twice a second at
/// most, and only when a number has changed.
class ViewStatistics : public QLabel
{
    Q_OBJECT

public:
    explicit ViewStatistics(QWidget *view);

    void setTriangles(int count);
    void countFrame() { ++m_frames; }
    /// `dt` seconds went by.
    void tick(float dt);

private:
    void showNumbers();

    int m_frames = 0;
    float m_time = 0.0f; ///< seconds in which they were painted
    int m_rate = 0;      ///< frames a second; 0 while nothing moves
    int m_triangles = 0;
};
