// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CrashReportDialog;
}

/// Shows what was written down when the program crashed, and where.
class CrashReportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CrashReportDialog(const QString &path, QWidget *parent = nullptr);
    ~CrashReportDialog() override;

private slots:
    void on_btnCrashReportCopy_clicked();

private:
    std::unique_ptr<Ui::CrashReportDialog> m_ui;
};
