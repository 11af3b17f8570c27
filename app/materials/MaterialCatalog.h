// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QElapsedTimer>
#include <QIcon>
#include <QPixmap>
#include <QSet>
#include <QStringList>
#include <QVector>

/// A material of a .kmat file below one of the folders.
struct Material
{
    QString path;    ///< as surfaces name it: "materials/mat_house/colormap"
    QString texture; ///< relative to the folders; empty where it has none

    bool operator==(const Material &other) const { return path == other.path && texture == other.texture; }
};

/// All materials of the game folder and the mod folder, ascending by path, but for those whose path a model
/// cannot hold. Of a file that stands in both, the game folder's counts, as everywhere. Ends early, with what
/// it has, when `cancelled` becomes true.
QVector<Material> listMaterials(const QString &gamePath, const QString &outputDir,
                                const Background::Cancelled &cancelled);

/// The materials that a surface can be given, with small pictures of their textures. The folders are read in
/// another thread, and so are the pictures, when somebody asks for them.
class MaterialCatalog : public QObject
{
    Q_OBJECT

public:
    explicit MaterialCatalog(QObject *parent = nullptr);

    /// As they were read last; none before the first time.
    const QVector<Material> &materials() const { return m_materials; }
    /// Whether they are being read for the first time.
    bool isEmptyYet() const { return !m_wasRead; }
    /// Reads the folders anew, unless that is under way.
    void refresh();
    /// The same, unless they were read a moment ago.
    void refreshOld();
    /// Materials, textures or the folders themselves have changed: pictures are made anew.
    void reload();

    /// Somebody wants to see a material of a file, or all of it.
    void open(const QString &file, const QString &material) { emit openWanted(file, material); }

    /// A picture of a material's texture; an empty one of the same size until it is there.
    QIcon icon(const QString &texture);
    /// Of all pictures together not more are kept.
    static constexpr int MostIcons = 512;
    static constexpr int IconSide = 32; // pixels

signals:
    void changed();
    /// Pictures that were asked for are there.
    void iconsReady();
    void openWanted(const QString &file, const QString &material);

private:
    void makeIcons();

    Background m_reader;
    Background m_painter;
    QVector<Material> m_materials;
    QElapsedTimer m_sinceRead;
    bool m_wasRead = false;
    bool m_isStale = false; ///< what is being read may be as it was before
    QHash<QString, QIcon> m_icons;
    QStringList m_made;   ///< their textures, the oldest first
    QStringList m_wanted; ///< the last one first
    const QIcon m_none;
};
