// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScaleDialog.h"

#include "Fuzzy.h"
#include "LabelDrag.h"
#include "ui_ScaleDialog.h"

ScaleDialog::ScaleDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ScaleDialog>())
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::close);
}

ScaleDialog::~ScaleDialog() = default;

void ScaleDialog::on_btnApply_clicked()
{
    if (TypingField::returnToRefused(*this))
        return;
    const float factor = m_ui->sbScale->value();
    if (!fuzzyEqual(factor, 1.0f))
        emit scale(factor);
}
