// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AboutDialog;
}

/// Name, version and licences, greeted with a short sound where there is something to play it on.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
    ~AboutDialog() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void on_btnAboutQt_clicked();

private:
    std::unique_ptr<Ui::AboutDialog> m_ui;
};
