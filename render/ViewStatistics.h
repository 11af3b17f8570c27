// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <optional>

/// Frames a second, how long the graphics card takes for one and the number of triangles, in the corner of a
/// view. The text is made twice a second at most, and only when a number has changed.
class ViewStatistics : public QLabel
{
    Q_OBJECT

public:
    explicit ViewStatistics(QWidget *view);

    void setTriangles(int count);
    /// Milliseconds that the card took for some of the frames before, where it has told.
    void countFrame(std::optional<float> cardTime);
    /// `dt` seconds went by.
    void tick(float dt);

private:
    void showNumbers();

    int m_frames = 0;
    float m_time = 0.0f;    ///< seconds in which they were painted
    double m_cardSum = 0.0; ///< milliseconds
    int m_cardTimes = 0;
    QString m_cardTime; ///< empty while nothing moves, or where the card does not tell
    int m_rate = 0;     ///< frames a second; 0 while nothing moves
    int m_triangles = 0;
};
