// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FolderChooser.h"
#include "ImportSteps.h"

#include <QGroupBox>

#include <memory>

namespace Ui {
class OutputPaths;
}

/// Where the files of an import go, all inside the mod folder, and which are written.
class OutputPaths : public QGroupBox
{
    Q_OBJECT

public:
    explicit OutputPaths(QWidget *parent = nullptr);
    ~OutputPaths() override;

    /// Shows and changes the paths of these choices, which have to live as long.
    void edit(ImportChoices &choices);
    void setFolderChooser(FolderChooser chooser) { m_chooseFolder = std::move(chooser); }
    /// What is written is kept apart for each way to arrive.
    void setArrival(Arrival arrival);
    void showPaths();

    // What was typed, if it can be taken.
    void takeModFolder();
    void takeKMatPath();
    void takeTextureFolder();
    void browseModFolder();
    void browseKMatPath();
    void browseTextureFolder();
    void storeCopyTextures(bool on);
    void storeCreateKMat(bool on);

    /// Of typed paths.
    int refusals() const { return m_refusals; }
    /// What is typed does not matter any more.
    void setLeaving(bool on) { m_leaving = on; }

signals:
    void modFolderEdited();
    void kmatPathEdited();
    void textureFolderEdited();
    void entered();
    void copyTexturesToggled(bool on);
    void createKMatToggled(bool on);

private:
    bool refusePath(const QString &path, const QString &problem = {});

    std::unique_ptr<Ui::OutputPaths> m_ui;
    FolderChooser m_chooseFolder = chooseFolder;
    ImportChoices *m_choices = nullptr;
    int m_refusals = 0;
    bool m_leaving = false;
};
