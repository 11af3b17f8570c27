// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "Files.h"
#include "ViewportAction.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QStringList>
#include <QTimer>

#include <array>
#include <functional>

/// Lets the viewports follow the material files and textures of what they show, which other programs change.
/// Another thread looks for them: a model may name hundreds.
class TextureWatch : public QObject
{
    Q_OBJECT

public:
    /// A file counts as written when its size and time have rested for this long.
    static constexpr int RestMs = 500;

    /// The viewports show the models of the documents; all of them outlive this.
    TextureWatch(const SkinnedMeshDocument &skinned, const StaticMeshDocument &rigid,
                 const Viewports &viewports, QObject *parent);

public slots:
    /// Looks all textures up again, and has the viewports draw what it finds.
    void reload();

signals:
    void reloaded();

private:
    struct Shown
    {
        KVOpenGLWidget *viewport;
        std::function<QStringList()> materials;
        QStringList listed; ///< of the materials
        QStringList names;  ///< of their files and textures, relative to game and mod
        /// Where these are, or would be, as they were drawn.
        QMap<QString, FileStamp> files;
        QMap<QString, FileStamp> seen; ///< the same at the last look
    };

    void follow(const Document &document);
    void collect();
    void take(Shown &shown, const QStringList &materials, QStringList names,
              QMap<QString, FileStamp> files) const;
    void watchPaths();
    void look();

    std::array<Shown, 2> m_shown;
    QTimer m_collect;
    QTimer m_rest;
    QFileSystemWatcher m_watcher;
    bool m_isReloadWanted = false;
    Background m_collecting;
    Background m_looking;
};
