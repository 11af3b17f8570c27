// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReportDialog.h"

#include "ui_CrashReportDialog.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

CrashReportDialog::CrashReportDialog(const QString &path, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CrashReportDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->txtCrashReport->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_ui->btnCrashReportClose, &QPushButton::clicked, this, &QDialog::reject);

    const QString nativePath = QDir::toNativeSeparators(path);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        m_ui->lblCrashReport->setText(
            tr("Nothing was sent. The report stays on this computer, in\n%1").arg(nativePath));
        m_ui->txtCrashReport->setPlainText(QString::fromUtf8(file.readAll()));
    } else {
        m_ui->lblCrashReport->setText(tr("Unable to read '%1'").arg(nativePath));
        m_ui->btnCrashReportCopy->setEnabled(false);
    }
}

CrashReportDialog::~CrashReportDialog() = default;

void CrashReportDialog::on_btnCrashReportCopy_clicked()
{
    QApplication::clipboard()->setText(m_ui->txtCrashReport->toPlainText());
}
