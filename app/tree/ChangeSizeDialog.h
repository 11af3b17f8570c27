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
    /// `consequence`: what another length takes away and adds. `least` and `most`: the lengths allowed;
    /// `current`: the length the list has, allowed in any case.
    ChangeSizeDialog(const QString &title, const QString &consequence, int least, int most, int current,
                     QWidget *parent = nullptr);
    ~ChangeSizeDialog() override;

    int size() const;

    void accept() override;

private:
    std::unique_ptr<Ui::ChangeSizeDialog> m_ui;
};
