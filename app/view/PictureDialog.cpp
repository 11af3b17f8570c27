// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureDialog.h"

#include "Settings.h"
#include "ui_PictureDialog.h"

#include <QSignalBlocker>

PictureDialog::PictureDialog(const QSize &viewSize, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::PictureDialog>())
    , m_viewSize(viewSize.expandedTo({1, 1}))
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->buttonBox->button(QDialogButtonBox::Save)->setText(tr("&Save…"));
    m_ui->cbKeepProportions->setChecked(Settings::PictureKeepProportions.value());
    m_ui->cbTransparent->setChecked(Settings::PictureTransparent.value());
    const QSize stored = Settings::PictureSize.value();
    const QSignalBlocker silence(m_ui->sbPictureHeight), silenceToo(m_ui->sbPictureWidth);
    m_ui->sbPictureWidth->setValue(stored.isEmpty() ? m_viewSize.width() : stored.width());
    m_ui->sbPictureHeight->setValue(stored.isEmpty() ? m_viewSize.height() : stored.height());
    // The view may have other proportions than it had then.
    on_sbPictureWidth_valueChanged(m_ui->sbPictureWidth->value());
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

void PictureDialog::on_sbPictureWidth_valueChanged(int width)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    const QSignalBlocker silence(m_ui->sbPictureHeight);
    m_ui->sbPictureHeight->setValue(qRound(double(width) * m_viewSize.height() / m_viewSize.width()));
}

void PictureDialog::on_sbPictureHeight_valueChanged(int height)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    const QSignalBlocker silence(m_ui->sbPictureWidth);
    m_ui->sbPictureWidth->setValue(qRound(double(height) * m_viewSize.width() / m_viewSize.height()));
}

void PictureDialog::on_btnViewSize_clicked()
{
    const QSignalBlocker silence(m_ui->sbPictureHeight), silenceToo(m_ui->sbPictureWidth);
    m_ui->sbPictureWidth->setValue(m_viewSize.width());
    m_ui->sbPictureHeight->setValue(m_viewSize.height());
}

void PictureDialog::accept()
{
    // The view's own size is followed wherever the view goes.
    Settings::PictureSize.setValue(pictureSize() == m_viewSize ? QSize() : pictureSize());
    Settings::PictureKeepProportions.setValue(m_ui->cbKeepProportions->isChecked());
    Settings::PictureTransparent.setValue(isTransparent());
    QDialog::accept();
}
