// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "NamedThing.h"

#include <QDockWidget>

#include <array>

class IndexKeeper;
class KVTreeView;
class QComboBox;
class QLabel;
class QProgressBar;
class QToolButton;
class UsesList;

/// Lists which files of game and mod name what the current record names: its material, its sound, its id. It
/// follows the trees, and changes nothing.
class UsedByDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit UsedByDock(QWidget *parent = nullptr);

    /// The documents and their trees in the order of their kinds; all outlive the dock.
    void setDocuments(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                      const std::array<KVTreeView *, 3> &trees);
    /// The document in front; none on a tab without one.
    void setCurrent(const Document *document);

    /// Comes up with the uses of what the current record names, or of these things.
    void open(std::vector<NamedThing> things = {});
    /// While it is set, records become current because the list led to them, and it stays as it is.
    void setLeading(bool on) { m_isLeading = on; }
    /// Looks for files that have changed, now or as soon as the dock is seen.
    void refresh();
    /// Has the index that the list is made of.
    IndexKeeper &keeper() const { return *m_keeper; }

signals:
    /// A model is to be opened, and its record to be shown.
    void recordWanted(DocumentType type, const QString &path, const RecordRef &record);
    /// A material file is to be opened.
    void materialsWanted(const QString &path);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLayout *createTop();
    void follow();
    std::vector<NamedThing> thingsOfCurrent() const;
    void setThings(std::vector<NamedThing> things);
    void leave();
    void lookUp();
    void onIndexChanged();
    void updateProgress();
    void updateState();
    void updateCount();
    QString emptyText() const;
    void activate(int row);

    QLabel *m_label;
    QComboBox *m_thing;
    QLabel *m_count;
    QProgressBar *m_progress;
    QToolButton *m_read;
    UsesList *m_list;
    IndexKeeper *m_keeper;
    Background m_search;
    std::vector<NamedThing> m_things; ///< of the record that is followed
    SkinnedMeshDocument *m_skinnedMesh = nullptr;
    AnimDocument *m_anim = nullptr;
    StaticMeshDocument *m_staticMesh = nullptr;
    std::array<KVTreeView *, 3> m_trees{};
    const Document *m_current = nullptr;
    bool m_isStale = true;    ///< files may have changed while nobody looked
    bool m_isAsked = false;   ///< what is listed was asked for, and is not what the record names
    bool m_isLeading = false; ///< a record is current because the list led there
};
