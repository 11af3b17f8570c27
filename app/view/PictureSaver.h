// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SequenceSaver.h"

#include <QObject>

class KVOpenGLWidget;
class QAction;
class QSize;
class QWidget;

/// Saves what a viewport shows as a picture, or as a sequence of them.
class PictureSaver : public QObject
{
    Q_OBJECT

public:
    /// The models of the documents are those that viewports show.
    PictureSaver(SkinnedMeshDocument &skinned, AnimDocument &anim, StaticMeshDocument &rigid,
                 QWidget *window);

    QAction *action() const { return m_action; }
    /// Whose picture the action takes, and the name it proposes; null disables it, and so does a viewport
    /// that cannot draw.
    void setSource(KVOpenGLWidget *viewport, const QString &name);

    /// Paints and writes a PNG file in one step. Returns true on failure, after an error in the log and a box
    /// that names the file.
    bool save(const QString &path, const QSize &size, bool transparent);

signals:
    void told(const QString &text);

private slots:
    void on_actionSavePicture_triggered();

private:
    void saveOne(const QSize &size, bool transparent);
    bool refuse(const QString &path, const QString &reason);

    QWidget *m_window;
    SequenceSaver m_sequences;
    QAction *m_action;
    KVOpenGLWidget *m_viewport = nullptr;
    QString m_name;
};
