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
    /// `least` and `most`: the lengths allowed; `current`: the length the list has, allowed in any case.
    ChangeSizeDialog(const QString &title, int least, int most, int current, QWidget *parent = nullptr);
    ~ChangeSizeDialog() override;

    int size() const;

    void accept() override;

private:
    std::unique_ptr<Ui::ChangeSizeDialog> m_ui;
};
