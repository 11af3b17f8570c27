// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "PlannedScene.h"
#include "SavePath.h"

#include <QCoreApplication>
#include <QStringList>

class KVOpenGLWidget;
class PictureDialog;

/// Saves sequences of pictures of what a view shows: drawn in other threads, of copies of the models.
class SequenceSaver
{
    Q_DECLARE_TR_FUNCTIONS(SequenceSaver)

public:
    SequenceSaver(SkinnedMeshDocument &skinned, AnimDocument &anim, StaticMeshDocument &rigid)
        : m_skinned(skinned)
        , m_anim(anim)
        , m_rigid(rigid)
    {}

    /// Draws and writes what is wanted of a view, after a question where that replaces files, and while a
    /// dialog tells how far it is and offers to give up. Returns what to tell of it; empty when nothing was
    /// begun. What failed is in the log and in a box that names the file.
    QString save(const KVOpenGLWidget &view, const PictureDialog &wanted, QWidget *window);

    /// Why there is no picture of this size, where none was painted.
    static QString unpaintable(const QSize &size);

private:
    struct Job;

    static bool mayBegin(const QStringList &files, QWidget *window);
    /// What could not be written, if anything.
    static FailedSave draw(Job &job, const Background::Cancelled &cancelled);

    SkinnedMeshDocument &m_skinned;
    AnimDocument &m_anim;
    StaticMeshDocument &m_rigid;
};
