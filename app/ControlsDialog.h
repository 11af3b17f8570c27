// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QAction;

namespace Ui {
class ControlsDialog;
}

/// The keys and mouse gestures of the viewport, and the shortcuts of the window.
class ControlsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists those of `actions` that have a shortcut, in their order.
    explicit ControlsDialog(const QList<QAction *> &actions, QWidget *parent = nullptr);
    ~ControlsDialog() override;

private:
    std::unique_ptr<Ui::ControlsDialog> m_ui;
};
