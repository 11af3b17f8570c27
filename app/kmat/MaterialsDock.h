// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"
#include "MaterialDocument.h"

#include <QDockWidget>
#include <QFileSystemWatcher>
#include <QTimer>

class MaterialCatalog;
class MaterialFileText;
class NoticeBar;
class QAction;
class QLabel;
class QPushButton;
class QSplitter;
class QToolButton;
class QTreeWidget;
class TextField;
class TextureField;
class TexturePreview;

/// A material file: its materials with their textures, the texture of the current one, which can be given
/// another path, and the text of the file.
class MaterialsDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MaterialsDock(QWidget *parent = nullptr);

    MaterialDocument &document() { return m_document; }
    const MaterialDocument &document() const { return m_document; }
    /// Where small pictures come from.
    void setCatalog(MaterialCatalog &catalog);
    /// Shows the document as it is, and a material of it, where one is named.
    void showMaterial(const QString &name);
    /// The same, but the dock stays as it is, hidden or behind others.
    void selectMaterial(const QString &name);
    /// The name of the material that is current; empty where there is none.
    QString currentMaterial() const;
    TextField *textureField() const { return m_field; }
    /// Adds what asks who names the current material, or the texture, to the list and to the field.
    void addUses(QAction *uses);
    /// Stores what is typed. Returns true when it cannot be, and has the keys then.
    [[nodiscard]] bool returnToTyping();
    /// Nothing is edited here while another file is being read.
    void setBusy(bool busy);
    /// Textures may be others.
    void reloadTextures();

signals:
    void openWanted();
    void newWanted();
    void newFileWanted();
    void renameWanted(int material);
    void saveWanted();
    /// The file is to be read anew: another program has changed it.
    void reloadWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void createContents();
    QToolButton *addButton(const char *name, const char *icon, const QString &text, const QString &tip,
                           void (MaterialsDock::*wanted)());
    void createListActions();
    void createField(QWidget *parent);
    void fill();
    void showTitle();
    void takeColors();
    void showCurrent();
    void store(const QString &texture);
    void watch();
    void lookAtFile();
    /// Which material and which of its samplers the current row is; -1 for none.
    std::pair<int, int> current() const;

    MaterialDocument m_document;
    MaterialCatalog *m_catalog = nullptr;
    QLabel *m_title;
    QLabel *m_problem;
    NoticeBar *m_notice;
    QPushButton *m_reload = nullptr;
    QTreeWidget *m_list;
    QAction *m_rename = nullptr;
    QAction *m_add = nullptr;
    TextureField *m_texture;
    TextField *m_field;
    TexturePreview *m_preview;
    MaterialFileText *m_text;
    QSplitter *m_parts;
    QToolButton *m_save = nullptr;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    ArchivesAhead m_ahead;
    FileStamp m_told; ///< as the file was when it was last told of
};
