// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class RotateDialog;
}

/// Asks for rotations of the whole model; it changes none itself and stays open.
class RotateDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RotateDialog(QWidget *parent = nullptr);
    ~RotateDialog() override;

signals:
    /// Turn the current model, angles in degrees.
    void rotate(float pitch, float roll, float yaw);

private slots:
    void on_btnApply_clicked();

private:
    std::unique_ptr<Ui::RotateDialog> m_ui;
};
