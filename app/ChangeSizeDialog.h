// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ChangeSizeDialog;
}

/// Asks for the length of a list.
class ChangeSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// As many as a 16-bit index can name.
    static constexpr int MostEntries = 65535;

    /// `least`: the smallest length allowed; `current`: the length the list has.
    ChangeSizeDialog(const QString &title, int least, int current, QWidget *parent = nullptr);
    ~ChangeSizeDialog() override;

    int size() const;

private:
    std::unique_ptr<Ui::ChangeSizeDialog> m_ui;
};
