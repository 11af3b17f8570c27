// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UvMap.h"
#include "UvSource.h"
#include "UvTexture.h"

#include <QDockWidget>
#include <QPointer>

#include <array>
#include <vector>

class QComboBox;
class QLabel;
class UvView;

/// The triangles of the current surface over its texture. What is selected in the tree is marked here, and
/// what is picked here is selected there. It reads models, and changes none; while it is hidden it does
/// nothing.
class UvDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit UvDock(QWidget *parent = nullptr);

    /// What can be shown; everything outlives the dock.
    void setDocuments(SkinnedMeshDocument &skinned, KVTreeView &skinnedTree, StaticMeshDocument &rigid,
                      KVTreeView &rigidTree);

public slots:
    /// Goes on with this document; an animation stands for the mesh that it moves, null for nothing.
    void setCurrent(const Document *document);
    /// Materials, textures or the folders that they are in have changed.
    void reload();

signals:
    /// Its records are about to be selected: its tree is to be in front.
    void documentWanted(DocumentType type);
    /// The vertices that are marked here, ascending: none while the dock is hidden.
    void verticesMarked(DocumentType type, const std::vector<int> &vertices);
    /// What trees leave out has changed in the settings.
    void hidingChanged();
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// One of the two documents.
    struct Model : UvSource
    {
        int surface = 0;         ///< the one that is shown
        std::vector<int> marked; ///< vertices
    };
    /// What is made of a surface in another thread.
    struct Made
    {
        UvMap map;
        UvTexture texture;
    };

    void follow(size_t which);
    void createActions(QWidget *buttons);
    Model *current() { return m_current < 0 || !isVisible() ? nullptr : &m_models[size_t(m_current)]; }
    void listSurfaces();
    /// Makes the surface anew that is shown; `isOther` when it is another one than before.
    void showSurface(bool isOther);
    /// Says so where the surface is still being made: what is seen then answers no hand.
    void tellReading();
    void showMade(Made made, bool isOther);
    /// Takes over what is selected in the tree. Returns whether that is of another surface, which is to be
    /// shown then.
    bool followTree();
    void mark(std::vector<int> vertices);
    void chooseSurface(int surface);
    void chooseVertices(const std::vector<int> &vertices);
    void showInTree();
    void point(const QPointF &place, int vertex);

    UvView *m_view;
    QComboBox *m_surfaces;
    QLabel *m_words;
    QLabel *m_place;
    QLabel *m_hidden;
    Background m_maker;
    std::array<Model, 2> m_models{};
    int m_current = -1;
};
