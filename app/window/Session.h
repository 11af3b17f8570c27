// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentPanes.h"

#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include <array>

class AnimTrackFrame;
class DocumentFiles;
class MaterialsPane;
class QTabWidget;

/// Remembers what is open and how it is looked at: the files, the current tabs, the current record of each
/// tree, the material of the file of materials, the cameras, the animation that plays. Brings it back at the
/// next start, where the user wants that.
///
/// It is stored some seconds after a change and when the window closes, so that a crash loses little of it.
class Session : public QObject
{
    Q_OBJECT

public:
    /// From the first change after storing to the next storing.
    static constexpr int DelayMs = 3000;

    /// `tabs` are told apart by their pages' object names. Everything outlives the session.
    Session(DocumentFiles &files, const std::array<DocumentPane, 3> &panes,
            const std::array<QTabWidget *, 2> &tabs, AnimTrackFrame &track, MaterialsPane &materials,
            QWidget *window);

    /// Opens what was stored last, unless the user does not want it. Documents that are open stay, and so
    /// does what `paths`, files that are opened next, are going to fill: the session leaves the whole tab of
    /// such a file alone. What cannot be opened is told in the log.
    void restore(const QStringList &paths);
    /// Stores what is open now, unless the user does not want it.
    void store();

    void setDelay(int milliseconds) { m_timer.setInterval(milliseconds); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void noteChange();
    QVariantMap state() const;
    QVariantMap stateWithAwaited() const;
    void storeAs(const QVariantMap &now);
    void open(const DocumentPane &pane, const QVariantMap &state);
    void openMaterials(const QVariantMap &state);
    void placeView(const DocumentPane &pane, const QVariantMap &state) const;
    /// Returns true when the pane shows the file as it was.
    bool showRecord(const DocumentPane &pane, const QVariantMap &file) const;

    DocumentFiles &m_files;
    const std::array<DocumentPane, 3> m_panes;
    const std::array<QTabWidget *, 2> m_tabs;
    AnimTrackFrame &m_track;
    MaterialsPane &m_materials;
    QWidget *m_window;
    QTimer m_timer;
    QVariantMap m_stored;
    std::array<QVariantMap, 3> m_awaited; ///< the map that each document's file was last opened of
    QVariantMap m_awaitedMaterials;       ///< what was stored of the file of materials that was opened last
};
