// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PackDialog.h"

#include "FileSystem.h"
#include "Files.h"
#include "Icons.h"
#include "Language.h"
#include "SaveGuard.h"
#include "SavePath.h"
#include "Settings.h"
#include "ui_PackDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTimer>

#include <algorithm>

namespace {
/// The one of the last time, if that was this mod; else beside its folder.
QString targetAtFirst(const QString &modFolder)
{
    if (FileSystem::isSamePath(Settings::PackedMod.value(), modFolder) &&
        !Settings::PackPath.value().isEmpty())
        return Settings::PackPath.value();
    return QDir(modFolder).absolutePath() + QStringLiteral(".kpf");
}

/// Why nothing can be written there; empty when it can.
QString targetProblem(const QString &text)
{
    const QString path = QDir::fromNativeSeparators(text);
    if (!QDir::isAbsolutePath(path))
        return PackDialog::tr("This is no whole path of a file.");
    if (!Files::isArchiveName(path))
        return PackDialog::tr("The name of an archive ends in .kpf or .zip.");
    if (SaveGuard::isInGame(path) || FileSystem::isSamePath(path, Settings::GamePath.value()))
        return PackDialog::tr("This is in the game folder, which is left as it is.");
    if (!QFileInfo(QFileInfo(path).path()).isDir())
        return PackDialog::tr("There is no such folder.");
    return {};
}
} // namespace

PackDialog::PackDialog(const PackAccount &account, Relist relist, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::PackDialog>())
    , m_account(account)
    , m_relist(std::move(relist))
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->listPack->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_ui->listPack->header()->setSectionResizeMode(1, QHeaderView::Interactive);
    m_ui->listPack->header()->setStretchLastSection(false);
    m_ui->listPack->header()->resizeSection(1, width() * 2 / 5);
    m_ui->lblPackMod->setText(QDir::toNativeSeparators(account.modFolder));
    m_ui->txtPackTarget->setCheck(targetProblem);
    m_ui->txtPackTarget->setValue(QDir::toNativeSeparators(targetAtFirst(account.modFolder)));
    m_ui->txtPackLeaveOut->setValue(Settings::PackLeaveOut.value());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("&Pack"));
    connect(m_ui->txtPackTarget, &TextField::valueEdited, this, &PackDialog::skipReturn);
    connect(m_ui->cbPackErrors, &QCheckBox::toggled, this, &PackDialog::updatePack);
    showList();
}

PackDialog::~PackDialog() = default;

QString PackDialog::target() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_ui->txtPackTarget->value()));
}

QStringList PackDialog::patterns(const QString &text)
{
    QStringList all;
    for (const QString &each : text.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        all += each.trimmed();
    all.removeAll(QString());
    return all;
}

std::vector<PackError> PackDialog::errors() const
{
    QSet<QString> names;
    for (const PackedFile &file : m_account.list.files)
        names.insert(file.name);
    std::vector<PackError> found;
    std::copy_if(m_account.errors.begin(), m_account.errors.end(), std::back_inserter(found),
                 [&names](const PackError &error) { return names.contains(error.name); });
    return found;
}

void PackDialog::addGroup(const QString &title, const std::vector<QStringList> &rows, bool isOpen,
                          const char *icon)
{
    if (rows.empty())
        return;
    auto *group = new QTreeWidgetItem({title});
    if (icon)
        group->setIcon(0, namedIcon(QLatin1String(icon)));
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    QList<QTreeWidgetItem *> items;
    items.reserve(int(rows.size()));
    for (const QStringList &row : rows) {
        auto *item = new QTreeWidgetItem(row);
        for (int column = 0; column < row.size(); ++column)
            item->setToolTip(column, row[column]);
        items.append(item);
    }
    group->addChildren(items);
    m_ui->listPack->addTopLevelItem(group);
    group->setFirstColumnSpanned(true);
    group->setExpanded(isOpen);
}

void PackDialog::showList()
{
    const PackList &list = m_account.list;
    const QLocale locale = Language::locale();
    std::vector<QStringList> names, errorRows, replaced, added, out;
    for (const QString &problem : list.problems)
        names.push_back({problem, {}});
    const std::vector<PackError> found = errors();
    for (const PackError &error : found)
        errorRows.push_back({error.name, error.text});
    qint64 bytes = 0;
    for (const PackedFile &file : list.files) {
        (file.replacesGame ? replaced : added).push_back({file.name, locale.formattedDataSize(file.bytes)});
        bytes += file.bytes;
    }
    for (const LeftOutFile &file : list.leftOut)
        out.push_back({file.name, file.reason});

    m_ui->listPack->clear();
    const auto titled = [](const QString &title, const std::vector<QStringList> &rows) {
        return QStringLiteral("%1 (%2)").arg(title, QString::number(rows.size()));
    };
    addGroup(titled(tr("Names that no archive can hold"), names), names, true, "error");
    addGroup(titled(tr("Errors"), errorRows), errorRows, true, "error");
    addGroup(titled(tr("Replace files of the game"), replaced), replaced, true);
    addGroup(titled(m_account.isGameKnown ? tr("New files") : tr("Files"), added), added, true);
    addGroup(titled(tr("Left out"), out), out, true);
    m_ui->cbPackErrors->setVisible(!found.empty());
    m_ui->lblPackTotal->setText(
        list.files.empty() ? tr("There is nothing to pack in this folder.")
                           : tr("Files: %1, together %2 before they are packed")
                                 .arg(QString::number(list.files.size()), locale.formattedDataSize(bytes)));
    m_ui->lblPackGame->setVisible(!m_account.isGameKnown);
    updatePack();
}

void PackDialog::updatePack()
{
    const PackList &list = m_account.list;
    const bool isPossible = !list.files.empty() && list.problems.isEmpty() &&
                            (m_ui->cbPackErrors->isHidden() || m_ui->cbPackErrors->isChecked());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(isPossible);
}

void PackDialog::on_txtPackLeaveOut_valueEdited(const QString &text)
{
    if (std::optional<PackList> list = m_relist(patterns(text))) {
        m_account.list = std::move(*list);
        Settings::PackLeaveOut.setValue(text);
        showList();
    } else {
        m_ui->txtPackLeaveOut->setValue(Settings::PackLeaveOut.value());
    }
    skipReturn();
}

void PackDialog::skipReturn()
{
    m_skipsReturn = true;
    QTimer::singleShot(0, this, [this] { m_skipsReturn = false; });
}

void PackDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !m_skipsReturn)
        QDialog::keyPressEvent(event);
}

void PackDialog::on_btnPackTarget_clicked()
{
    const QFileInfo now(target());
    const QString chosen = chooseSavePath(this, windowTitle(), now.path(), tr("Archives (*.kpf)"),
                                          QStringLiteral("kpf"), now.fileName());
    if (chosen.isEmpty())
        return;
    m_ui->txtPackTarget->setText(QDir::toNativeSeparators(chosen));
    (void)m_ui->txtPackTarget->commitText(); // the mark says what is wrong
    m_agreed = target();
}

void PackDialog::accept()
{
    if (TypingField::returnToRefused(*this) || !m_ui->buttonBox->button(QDialogButtonBox::Ok)->isEnabled())
        return;
    // What was not typed was not looked at yet.
    const QString problem = targetProblem(m_ui->txtPackTarget->value());
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, windowTitle(),
                             QDir::toNativeSeparators(target()) + QLatin1Char('\n') + problem);
        return m_ui->txtPackTarget->setFocus();
    }
    if (target() != m_agreed && QFileInfo::exists(target()) && !mayReplace(this, windowTitle(), target()))
        return;
    Settings::PackedMod.setValue(m_account.modFolder);
    Settings::PackPath.setValue(target());
    QDialog::accept();
}
