// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Companions.h"
#include "DocumentKind.h"

#include <QTimer>

#include <optional>

class DocumentFiles;
class FolderExplorer;
class NoticeBar;
class QAction;
class QBoxLayout;
class QMenu;
class QPushButton;

/// Opens the animation that belongs to a skinned mesh along with it, whichever way the mesh is opened, and
/// says above the view where there is none: then it offers what was found.
class AnimationFollower : public QObject
{
    Q_OBJECT

public:
    /// `animations` lists files to choose from, and shows the one that was opened; `sync` switches the
    /// following on and off; the notice gets the first place in `view`. All of them outlive this.
    AnimationFollower(DocumentFiles &files, FolderExplorer &animations, QAction &sync, QBoxLayout &view,
                      QObject *parent);

    /// Whether the animation of a mesh is still being looked for.
    bool isSearching() const { return m_turn.isActive() || m_search.isRunning() || m_isFollowing; }

signals:
    /// The view shows the mesh with the animation that was found for it.
    void posed();

private slots:
    void OnActionAnimSyncSkinSelect(bool on);
    void OnOpened(DocumentType type);
    void OnReplaced();
    void OnTurnEnded();

private:
    void search(const QString &mesh);
    void follow(const CompanionFile &found);
    void openAlong(const CompanionFile &found);
    void openOffered(const QString &path);
    void offer(const CompanionFile &found);

    DocumentFiles &m_files;
    FolderExplorer &m_animations;
    QAction &m_sync;
    NoticeBar *m_bar;
    QPushButton *m_offer;
    QMenu *m_offers;
    QString m_onlyOffer;
    QTimer m_turn;
    QString m_mesh;          ///< opened since the event loop's last turn
    bool m_isChosen = false; ///< so was an animation, by the user
    std::optional<CompanionFile> m_found;
    bool m_isFollowing = false; ///< while that is read
    Background m_search;
};
