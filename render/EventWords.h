// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVector>

#include <functional>

class QLabel;
class QOpenGLWidget;
class SceneMarks;

/// What the events of a picture are called, written beside their marks.
class EventWords : public QObject
{
public:
    /// More would cover the model.
    static constexpr int Most = 8;

    /// Belongs to the view; `marks` gives those of the frame painted last, or null.
    EventWords(QOpenGLWidget &view, std::function<const SceneMarks *()> marks);

private:
    void follow();
    QLabel *label(int number);

    QOpenGLWidget &m_view;
    std::function<const SceneMarks *()> m_marks;
    QVector<QLabel *> m_labels; ///< made when they are first needed
};
