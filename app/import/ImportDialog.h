// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportRun.h"
#include "ModelUpdater.h"
#include "OutputPaths.h"
#include "Settings.h"

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui {
class ImportDialog;
}

/// Imports a model of a foreign format: choices, a wait that can be given up, and an account of what
/// happened. Every choice is written to the settings at once.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    enum Mode { SkinnedMeshMode, StaticMeshMode };

    explicit ImportDialog(Mode mode, QWidget *parent = nullptr);
    ~ImportDialog() override;

    /// Takes this model as if it had been chosen, with the material file named after it.
    void setModelPath(const QString &path);
    /// What the new model's `version` field shall hold.
    void setVersions(qint32 meshVersion, qint32 animVersion);
    /// Who is asked about a model before it is imported: it may come back over the one that is open.
    using UpdateOffer = std::function<ModelUpdater::Answer(const QString &path)>;
    void setUpdateOffer(UpdateOffer offer) { m_offerUpdate = std::move(offer); }
    void setFolderChooser(FolderChooser chooser) { m_paths->setFolderChooser(std::move(chooser)); }

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

signals:
    /// The import has succeeded; `name` is the source's complete base name.
    void skinnedMeshImported(SkinnedMesh &mesh, AnimFile &anim, const QString &name);
    void staticMeshImported(StaticMesh &mesh, const QString &name);

private slots:
    void on_btnImport_clicked();
    void on_btnCancel_clicked();
    void on_btnStop_clicked();
    void on_btnSuccess_clicked();
    void on_btnSuccessAgain_clicked();
    void on_btnErrorBack_clicked();
    void on_btnModelBrowse_clicked();
    void on_btnT2DirBrowse_clicked() { m_paths->browseModFolder(); }
    void on_btnkmatPathBrowse_clicked() { m_paths->browseKMatPath(); }
    void on_btnTextureDirBrowse_clicked() { m_paths->browseTextureFolder(); }
    void LoseWidgetFocus();
    void OnTxtModelPathChanged();
    void OnTxtKMatPathChanged() { m_paths->takeKMatPath(); }
    void OnTxtTexPathChanged() { m_paths->takeTextureFolder(); }
    void OnTxtT2DirChanged() { m_paths->takeModFolder(); }
    void OnSwapYZChanged(bool on) { store(m_swapYZ, Settings::ImportSwapYZ, on); }
    void OnGenNormalsChanged(bool on) { store(m_choices.genNormals, Settings::ImportGenNormals, on); }
    void OnFlipUVChanged(bool on) { store(m_choices.flipUV, Settings::ImportFlipUV, on); }
    void OnCBcbFlipWindingOrderChanged(bool on)
    {
        store(m_choices.flipWindingOrder, Settings::ImportFlipWindingOrder, on);
    }
    void OnCBCopyTexturesChanged(bool on) { m_paths->storeCopyTextures(on); }
    void OnCBCreateKMatChanged(bool on) { m_paths->storeCreateKMat(on); }
    void OnCBRotatePitchChanged(bool on) { store(m_choices.rotatePitch, Settings::ImportRotPitch, on); }
    void OnScaleChanged(float scale) { store(m_choices.scale, Settings::ImportScale, scale); }
    void OnArrivalChanged(Arrival arrival);
    void OnContentsLooked();

private:
    template <typename T>
    static void store(T &field, const SettingKey<T> &key, const T &value)
    {
        field = value;
        key.setValue(value);
    }

    QString modeName() const;
    QString nativeModelPath() const;
    void readChoices();
    void fitToScreen();
    void fillEditors();
    void connectEditors();
    void updateElapsed();
    void updateImportButton();
    void showPaths();
    void showArrival();
    void lookInside();
    void start();
    bool gainsFromReady() const;

    void onFinished(const ImportMessages &messages, const QString &outcome);
    void showSuccess(const ImportMessages &messages, const QString &outcome);
    void showError(const ImportMessages &messages);

    std::unique_ptr<Ui::ImportDialog> m_ui;
    OutputPaths *m_paths = nullptr; ///< in the form
    const Mode m_mode;
    UpdateOffer m_offerUpdate;
    ImportRun m_run;
    QTimer m_tick; ///< of the elapsed time
    ImportChoices m_choices;
    bool m_swapYZ = false;    ///< kept, and of no effect
    bool m_isWaiting = false; ///< for what the file holds, to begin the import
    bool m_hasRig = false;    ///< what was imported last, or its animations
    QString m_lookedInto;     ///< path and time of the file
    bool m_staysPut =
        false; ///< the Enter key that comes next has ended the typing of a path that was refused
};
