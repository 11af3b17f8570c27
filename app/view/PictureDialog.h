// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PicturePlan.h"
#include "Playback.h"

#include <QDialog>

#include <memory>

namespace Ui {
class PictureDialog;
}

/// What a picture is taken of.
struct PictureSubject
{
    QSize viewSize;      ///< pixels of the screen
    QString name;        ///< what files are called, without an extension
    int frameCount = 0;  ///< of the animation that the view shows; 0: none
    FrameRange selected; ///< of these frames
};

/// Asks for the size of a picture of the view, and whether its background is transparent; or for a sequence
/// of them, and the names of its files. Starts with the last answer, and keeps the new one when it is
/// accepted.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    /// In the order of their combo box.
    enum Kind { View, Frames, Turntable };

    PictureDialog(const PictureSubject &subject, QWidget *parent);
    ~PictureDialog() override;

    QSize pictureSize() const;
    bool isTransparent() const;

    Kind kind() const;
    // Of a sequence.
    PicturePlan plan() const;
    /// The files of its pictures, in their order.
    QStringList files() const;

private slots:
    void on_cbPictureKind_currentIndexChanged(int kind);
    void on_cbTurnFrames_toggled(bool on);
    void on_sbFirstFrame_valueEdited(int frame);
    void on_sbLastFrame_valueEdited(int frame);
    void on_sbPictureWidth_valueEdited(int width);
    void on_sbPictureHeight_valueEdited(int height);
    void on_btnViewSize_clicked();
    void on_btnPictureFolder_clicked();
    void accept() override;

private:
    void readSettings();
    void showRows();
    void showFiles();

    std::unique_ptr<Ui::PictureDialog> m_ui;
    PictureSubject m_subject;
};
