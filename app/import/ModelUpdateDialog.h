// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateAccount.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ModelUpdateDialog;
}

/// Shows what a file would change of the model that is open, before anything is changed, and asks what is to
/// be done with it.
class ModelUpdateDialog : public QDialog
{
    Q_OBJECT

public:
    /// What exec() gives beside Rejected.
    enum Answer { Update = Accepted, ImportAsNew };

    /// `file` and `model` are names without folders.
    ModelUpdateDialog(const QString &file, const QString &model, const UpdateAccount &account,
                      QWidget *parent);
    ~ModelUpdateDialog() override;

    /// The model is a static mesh, which has no bones to speak of.
    void setStatic();
    /// Whether animations that the file does not have are to go.
    bool dropsMissing() const;

private:
    void fillList(const UpdateAccount &account);

    std::unique_ptr<Ui::ModelUpdateDialog> m_ui;
};
