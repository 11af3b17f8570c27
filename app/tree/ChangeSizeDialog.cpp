// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChangeSizeDialog.h"

#include "LabelDrag.h"
#include "ui_ChangeSizeDialog.h"

#include <algorithm>

ChangeSizeDialog::ChangeSizeDialog(const QString &title, const QString &consequence, int least, int most,
                                   int current, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ChangeSizeDialog>())
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(title);
    m_ui->lblSize->setText(title);
    m_ui->lblConsequence->setText(tr("%1 This cannot be undone.").arg(consequence));
    m_ui->sbSize->setMinimum(least);
    m_ui->sbSize->setMaximum(std::max(most, current));
    m_ui->sbSize->setValue(current);
    m_ui->sbSize->setToolTip(tr("%1 to %2").arg(least).arg(m_ui->sbSize->maximum()));
    m_ui->sbSize->selectAll();
    m_ui->sbSize->setFocus();
}

ChangeSizeDialog::~ChangeSizeDialog() = default;

void ChangeSizeDialog::accept()
{
    if (!TypingField::returnToRefused(*this))
        QDialog::accept();
}

int ChangeSizeDialog::size() const
{
    return m_ui->sbSize->value();
}
