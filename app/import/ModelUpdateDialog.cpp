// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelUpdateDialog.h"

#include "Look.h"
#include "ui_ModelUpdateDialog.h"

#include <QFileInfo>

ModelUpdateDialog::ModelUpdateDialog(const QString &file, const QString &model, const UpdateAccount &account,
                                     QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ModelUpdateDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Update %1").arg(model));
    const bool changes = account.changesMesh || account.changesAnim;
    m_ui->lblOffer->setText(
        changes ? tr("%1 comes from this program. It can update %2, which is open.").arg(file, model)
                : tr("%1 comes from this program, and holds %2 just as it is open.").arg(file, model));
    // Bones have numbers in every model: what fits may still be the wrong one.
    const QString open = QFileInfo(model).completeBaseName();
    const bool isOther = !account.model.isEmpty() && account.model != open;
    m_ui->lblWarning->setText(tr("It was exported from '%1', not from '%2'.").arg(account.model, open));
    m_ui->lblWarning->setVisible(isOther);
    QPalette warning = m_ui->lblWarning->palette();
    warning.setColor(QPalette::WindowText, warningColor(palette()));
    m_ui->lblWarning->setPalette(warning);
    fillList(account);
    m_ui->cbDropMissing->setVisible(!account.missingBlocks.isEmpty());
    m_ui->btnUpdate->setEnabled(changes);
    // Whoever has taken the missing ones out has changed something.
    connect(m_ui->cbDropMissing, &QCheckBox::toggled, this,
            [this, changes](bool on) { m_ui->btnUpdate->setEnabled(changes || on); });
    connect(m_ui->btnUpdate, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnImportAsNew, &QPushButton::clicked, this, [this] { done(ImportAsNew); });
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton *usual = isOther || !changes ? m_ui->btnCancel : m_ui->btnUpdate;
    usual->setDefault(true);
    usual->setFocus();
}

ModelUpdateDialog::~ModelUpdateDialog() = default;

void ModelUpdateDialog::fillList(const UpdateAccount &account)
{
    const std::pair<UpdateLine::Kind, QString> groups[] = {
        {UpdateLine::Changed, tr("Changed")},
        {UpdateLine::New, tr("New")},
        {UpdateLine::Missing, tr("Missing in the file, stays")},
        {UpdateLine::Note, tr("To be known")}};
    for (const auto &[kind, title] : groups) {
        auto *group = new QTreeWidgetItem(QStringList(title));
        for (const UpdateLine &line : account.lines) {
            if (line.kind != kind)
                continue;
            auto *item = new QTreeWidgetItem(group, QStringList(line.text));
            item->setToolTip(0, line.text);
        }
        if (group->childCount() == 0) {
            delete group;
            continue;
        }
        QFont bold = font();
        bold.setBold(true);
        group->setFont(0, bold);
        m_ui->listChanges->addTopLevelItem(group);
    }
    m_ui->listChanges->expandAll();
    const bool isEmpty = m_ui->listChanges->topLevelItemCount() == 0;
    m_ui->listChanges->setVisible(!isEmpty);
    m_ui->lblChanges->setVisible(!isEmpty);
}

void ModelUpdateDialog::setStatic()
{
    m_ui->lblUndo->setText(tr("Materials stay. Undo takes the update back."));
}

bool ModelUpdateDialog::dropsMissing() const
{
    return m_ui->cbDropMissing->isChecked();
}
