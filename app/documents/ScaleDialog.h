// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ScaleDialog;
}

/// Asks for a scaling of the whole model; it changes none itself and stays open.
class ScaleDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ScaleDialog(QWidget *parent = nullptr);
    ~ScaleDialog() override;

signals:
    void scale(float factor);

private slots:
    void on_btnApply_clicked();

private:
    std::unique_ptr<Ui::ScaleDialog> m_ui;
};
