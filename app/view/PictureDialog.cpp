// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureDialog.h"

#include "LabelDrag.h"
#include "Settings.h"
#include "ui_PictureDialog.h"

namespace {
void fill(IntSpinBox *box, int length)
{
    box->setValue(qBound(box->minimum(), length, box->maximum()));
}
} // namespace

PictureDialog::PictureDialog(const QSize &viewSize, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::PictureDialog>())
    , m_viewSize(viewSize.expandedTo({1, 1}))
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->buttonBox->button(QDialogButtonBox::Save)->setText(tr("&Save…"));
    m_ui->cbKeepProportions->setChecked(Settings::PictureKeepProportions.value());
    m_ui->cbTransparent->setChecked(Settings::PictureTransparent.value());
    const QSize stored = Settings::PictureSize.value();
    fill(m_ui->sbPictureWidth, stored.isEmpty() ? m_viewSize.width() : stored.width());
    fill(m_ui->sbPictureHeight, stored.isEmpty() ? m_viewSize.height() : stored.height());
    // The view may have other proportions than it had then.
    on_sbPictureWidth_valueEdited(m_ui->sbPictureWidth->value());
}

PictureDialog::~PictureDialog() = default;

QSize PictureDialog::pictureSize() const
{
    return {m_ui->sbPictureWidth->value(), m_ui->sbPictureHeight->value()};
}

bool PictureDialog::isTransparent() const
{
    return m_ui->cbTransparent->isChecked();
}

void PictureDialog::on_sbPictureWidth_valueEdited(int width)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    fill(m_ui->sbPictureHeight, qRound(double(width) * m_viewSize.height() / m_viewSize.width()));
}

void PictureDialog::on_sbPictureHeight_valueEdited(int height)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    fill(m_ui->sbPictureWidth, qRound(double(height) * m_viewSize.width() / m_viewSize.height()));
}

void PictureDialog::on_btnViewSize_clicked()
{
    fill(m_ui->sbPictureWidth, m_viewSize.width());
    fill(m_ui->sbPictureHeight, m_viewSize.height());
}

void PictureDialog::accept()
{
    if (TypingField::returnToRefused(*this))
        return;
    // The view's own size is followed wherever the view goes.
    Settings::PictureSize.setValue(pictureSize() == m_viewSize ? QSize() : pictureSize());
    Settings::PictureKeepProportions.setValue(m_ui->cbKeepProportions->isChecked());
    Settings::PictureTransparent.setValue(isTransparent());
    QDialog::accept();
}
