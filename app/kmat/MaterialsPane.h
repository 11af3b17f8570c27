// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "FreeWindow.h"
#include "MaterialDocument.h"
#include "SaveGuard.h"

#include <QObject>

#include <functional>

class DocumentFiles;
class MaterialCatalog;
class MaterialWork;
class MaterialsDock;
class QAction;
class QMainWindow;
class QUndoGroup;
class UnsavedWork;

/// The dock of materials among the panes of the window: Save and Undo are about its file as long as it had
/// the keys last. Opens files in it and saves them, with the questions that belong to that.
class MaterialsPane : public QObject
{
    Q_OBJECT

public:
    /// Which are about what is edited in front.
    struct Actions
    {
        QAction *save;
        QAction *saveAs;
        QAction *saveToMod;
        QAction *saveAll;
    };

    MaterialsPane(MaterialsDock &dock, QUndoGroup &group, DocumentFiles &files, MaterialCatalog &catalog,
                  const Actions &actions, QMainWindow *window);

    /// Whether the dock had the keys last, and has a file.
    bool isActive() const;
    /// Takes the actions and the undo group over, where they are about the dock's file.
    void update();
    /// The file as work to be kept.
    UnsavedWork &work();
    const MaterialsDock &dock() const { return m_dock; }

    /// Opens what an earlier session had open, unless something is open already. The dock stays as it is,
    /// hidden or not; a failure is told in the log.
    void restore(const QString &path, const QString &material);
    /// The file that is being read; empty when there is none.
    QString awaitedPath() const { return isLoading() ? m_awaited : QString(); }

public slots:
    /// Shows a file, and of it a material, if one is named.
    void open(const QString &path, const QString &material = {});
    void openChosen();
    void addMaterial();
    void renameMaterial(int material);
    void startFile();
    /// Each returns true when the file was not saved.
    bool save();
    bool saveAs();
    bool saveToMod();
    void reload();

signals:
    /// What Save and Undo are about.
    void activeChanged();

protected:
    /// The window closes with what is not saved only when the user says so.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(const QWidget *focused);
    void setActive(bool active);
    /// Who asked for it is told in a box, too, when it cannot be read.
    enum class Asked { ByUser, BySession };
    void load(const QString &path, Asked asked, const std::function<void()> &then);
    /// Gives up what is being read.
    void cancelLoad();
    bool isLoading() const { return m_reading.isRunning() || m_free.isWaited(); }
    /// Goes on with what was read, unless the user keeps what was done meanwhile.
    void take(const QString &path, MaterialDocument::Read read, Asked asked,
              const std::function<void()> &then);
    void tellUnread(const QString &path, const QString &reason, Asked asked);
    /// Asks about what is unsaved. Returns true when another file may take its place.
    [[nodiscard]] bool mayLeave();
    void show();
    bool write(const QString &path);
    QString askName(const QString &title, const QString &text, const QString &proposed,
                    const std::function<QString(const QString &name)> &attempt);
    QString chooseFile(const QString &title) const;

    MaterialsDock &m_dock;
    MaterialDocument &m_document;
    QUndoGroup &m_group;
    DocumentFiles &m_files;
    Actions m_actions;
    QMainWindow *m_window;
    SaveGuard m_guard;
    MaterialWork *m_work;
    Background m_reading;
    FreeWindow m_free;
    QString m_awaited;          ///< being read, or read last
    bool m_isWaitedFor = false; ///< nothing was done since the reading began
    bool m_isEdited = false;    ///< the document was, since the reading began
    bool m_isActive = false;
};
