// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class PictureDialog;
}

/// Asks for the size of a picture of the view, and whether its background is transparent. Starts with the
/// last answer, and keeps the new one when it is accepted.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    /// `viewSize` is that of the view in pixels of the screen.
    PictureDialog(const QSize &viewSize, QWidget *parent);
    ~PictureDialog() override;

    QSize pictureSize() const;
    bool isTransparent() const;

private slots:
    void on_sbPictureWidth_valueEdited(int width);
    void on_sbPictureHeight_valueEdited(int height);
    void on_btnViewSize_clicked();
    void accept() override;

private:
    std::unique_ptr<Ui::PictureDialog> m_ui;
    QSize m_viewSize;
};
