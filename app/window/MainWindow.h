// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QMainWindow>
#include <QUndoGroup>

#include <memory>

class ConsoleLog;
class DocumentFiles;
class DocumentPanes;
class DocumentTitle;
class ExplorerFiles;
class ImportExport;
class MaterialsPane;
class ModelTransforms;
class NamedFiles;
class PaneKeys;
class PictureSaver;
class Preferences;
class Problems;
class Session;
class Shortcuts;
class WindowLayout;

namespace Ui {
class MainWindow;
}

/// The window: it makes and owns the three documents and what shows and edits them, and wires the actions of
/// its menus to those who carry them out.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens files by their extension, each in its tab; a model of a foreign format goes to the import
    /// dialog.
    void openFiles(const QStringList &paths);
    /// Opens what the last session left, where that is wanted, and then these files.
    void openAtStart(const QStringList &paths);

protected:
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_actionExit_triggered();
    void on_actionCommands_triggered();
    void on_actionControls_triggered();
    void on_actionAbout_triggered();
    void OnUndoCleanChanged();
    void OnContextLost();

private:
    void createConsole();
    void createDocuments();
    void createDocks();
    void createPrompts();
    void connectActions();
    static void readSettings();
    void updateCurrentDocument();
    void tell(const QString &text);

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
    DocumentPanes *m_panes = nullptr;
    MaterialsPane *m_materials = nullptr;
    DocumentTitle *m_title = nullptr;
    ExplorerFiles *m_explorerFiles = nullptr;
    Shortcuts *m_shortcuts = nullptr;
    Preferences *m_preferences = nullptr;
    NamedFiles *m_named = nullptr;
    PaneKeys *m_paneKeys = nullptr;
    WindowLayout *m_layout = nullptr;
    Session *m_session = nullptr;
    bool m_painted = false;
};
