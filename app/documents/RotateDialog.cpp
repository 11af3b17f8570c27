// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RotateDialog.h"

#include "Fuzzy.h"
#include "LabelDrag.h"
#include "ui_RotateDialog.h"

RotateDialog::RotateDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::RotateDialog>())
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    for (FloatSpinBox *angle : {m_ui->sbYaw, m_ui->sbPitch, m_ui->sbRoll})
        angle->setDegree(1.0);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::close);

    const struct
    {
        QPushButton *button;
        float pitch, roll, yaw;
    } quarters[] = {{m_ui->btnYawMinus90, 0, 0, -90},   {m_ui->btnYawPlus90, 0, 0, 90},
                    {m_ui->btnPitchMinus90, -90, 0, 0}, {m_ui->btnPitchPlus90, 90, 0, 0},
                    {m_ui->btnRollMinus90, 0, -90, 0},  {m_ui->btnRollPlus90, 0, 90, 0}};
    for (const auto &quarter : quarters) {
        connect(quarter.button, &QPushButton::clicked, this,
                [this, quarter] { emit rotate(quarter.pitch, quarter.roll, quarter.yaw); });
    }
}

RotateDialog::~RotateDialog() = default;

void RotateDialog::on_btnApply_clicked()
{
    if (TypingField::returnToRefused(*this))
        return;
    const float pitch = m_ui->sbPitch->value();
    const float roll = m_ui->sbRoll->value();
    const float yaw = m_ui->sbYaw->value();
    if (!fuzzyEqual(pitch, 0.0f) || !fuzzyEqual(roll, 0.0f) || !fuzzyEqual(yaw, 0.0f))
        emit rotate(pitch, roll, yaw);
}
