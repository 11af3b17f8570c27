// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AboutDialog.h"

#include "ui_AboutDialog.h"

#include <QApplication>
#include <QAudioDeviceInfo>
#include <QIcon>
#include <QShowEvent>
#include <QSoundEffect>

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->lblIcon->setPixmap(QIcon(QStringLiteral(":/Images/Icons/korvane-64.png")).pixmap(64, 64));
    m_ui->lblVersion->setText(tr("Korvane v%1").arg(QCoreApplication::applicationVersion()));
    QFont font = m_ui->lblVersion->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    m_ui->lblVersion->setFont(font);
    m_ui->lblQtVersion->setText(tr("Built with Qt %1.").arg(QLatin1String(qVersion())));
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || QAudioDeviceInfo::defaultOutputDevice().isNull())
        return;
    auto *sound = new QSoundEffect(this);
    sound->setSource(QUrl(QStringLiteral("qrc:/sounds/test.wav")));
    sound->play();
}

void AboutDialog::on_btnAboutQt_clicked()
{
    QApplication::aboutQt();
}
