// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "DocumentPane.h"

#include <QMainWindow>
#include <QUndoGroup>

#include <array>
#include <memory>

class ConsoleLog;
class DisplayOptions;
class DocumentFiles;
class ImportExport;
class KVOpenGLWidget;
class ModelTransforms;
class PictureSaver;
class Problems;
class Session;
class Shortcuts;
class ViewSelection;

namespace Ui {
class MainWindow;
}

/// The window: it owns the three documents and wires them to what shows and edits them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens files by their extension, each in its tab; the first one's tab becomes current. A model of a
    /// foreign format goes to the import dialog.
    void openFiles(const QStringList &paths);
    /// Opens what the last session left, where that is wanted, and then these files.
    void openAtStart(const QStringList &paths);

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void OnStartSetupPaths();
    void on_actionOpen_triggered();
    void on_actionSave_triggered();
    void on_actionSaveAs_triggered();
    void on_actionSkinnedSaveAs_triggered();
    void on_actionAnimSaveAs_triggered();
    void on_actionSaveAll_triggered();
    void on_actionImport_triggered();
    void on_actionExport_triggered();
    void on_actionExit_triggered();
    void on_actionResetCamera_triggered();
    void on_actionFullScreen_triggered(bool on);
    void on_actionRefreshExplorers_triggered();
    void on_actionResetLayout_triggered();
    void on_actionFilter_triggered();
    void on_actionCommands_triggered();
    void on_actionRotate_triggered();
    void on_actionScale_triggered();
    void on_actionPreferences_triggered();
    void on_actionControls_triggered();
    void on_actionAbout_triggered();
    void on_actionConsoleClear_triggered();
    void on_tabWidget_currentChanged();
    void on_tabTrees_currentChanged(int index);
    void OnConsoleCustomContextMenu(const QPoint &position);
    void OnUndoCleanChanged();
    void OnContextLost();

private:
    void createConsole();
    void createPanes();
    void createViewMenu(const DisplayOptions &display);
    void createViewToolBars();
    void readSettings();
    void connectPlayback();
    void createProblems();
    void createPrompts();

    /// The kind whose document the actions act on; none on a tab without one.
    DocumentPane *currentPane();
    DocumentPane &pane(DocumentType type) { return m_panes[size_t(type)]; }
    std::array<KVOpenGLWidget *, 2> viewports() const;
    void showPane(DocumentType type);
    void selectRecord(DocumentType type, const RecordRef &record);
    void showRecord(DocumentType type, const RecordRef &record);
    void showPicked(DocumentType type, const RecordRef &record);
    void tell(const QString &text);
    void importFile(const QString &path);
    Document *currentDocument();
    void updateCurrentDocument();
    void showReadOut(const QString &text);
    void onReplaced(DocumentType type);
    void onSaved(DocumentType type);
    void onRecordsChanged(DocumentType type, const QVector<RecordRef> &records);
    void showInViewport(DocumentType type, const RecordRef &record);

    std::unique_ptr<Ui::MainWindow> m_ui;
    ConsoleLog *m_console = nullptr;
    SkinnedMeshDocument m_skinnedMesh;
    AnimDocument m_anim;
    StaticMeshDocument m_staticMesh;
    QUndoGroup m_undoGroup;
    DocumentFiles *m_files;
    ModelTransforms *m_transforms;
    ImportExport *m_importExport;
    Problems *m_problems;
    PictureSaver *m_pictures;
    ViewSelection *m_viewSelection = nullptr;
    Session *m_session = nullptr;
    Shortcuts *m_shortcuts = nullptr;
    DocumentPanes m_panes{};
    QByteArray m_defaultLayout; ///< of docks and tool bars
    bool m_askedForFolders = false;
    bool m_painted = false;
    QString m_readOut; ///< the camera position that the status bar shows
};
