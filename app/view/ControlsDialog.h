// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class Shortcuts;

namespace Ui {
class ControlsDialog;
}

/// The keys and mouse gestures of the viewport, and the keys of everything else that has some.
class ControlsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ControlsDialog(const Shortcuts &shortcuts, QWidget *parent = nullptr);
    ~ControlsDialog() override;

private:
    std::unique_ptr<Ui::ControlsDialog> m_ui;
};
