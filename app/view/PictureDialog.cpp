// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureDialog.h"

#include "FileNames.h"
#include "FolderChooser.h"
#include "LabelDrag.h"
#include "PictureOutput.h"
#include "Settings.h"
#include "ui_PictureDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardItemModel>
#include <QStandardPaths>

namespace {
void fill(IntSpinBox *box, int length)
{
    box->setValue(qBound(box->minimum(), length, box->maximum()));
}

QString folderAtFirst()
{
    const QString folder = Settings::PicturePath.value();
    return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) : folder;
}
} // namespace

PictureDialog::PictureDialog(const PictureSubject &subject, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::PictureDialog>())
    , m_subject(subject)
{
    m_subject.viewSize = subject.viewSize.expandedTo({1, 1});
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->txtPictureFolder->setCheck([](const QString &folder) {
        return QDir::isAbsolutePath(folder) ? QString() : tr("This is no whole path of a folder.");
    });
    m_ui->txtPictureName->setCheck([](const QString &name) {
        if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')))
            return tr("This is no name of a file.");
        return FileNames::problem(name + QStringLiteral(".png"));
    });
    readSettings();
    for (const IntSpinBox *box : {m_ui->sbPictureTurns, m_ui->sbPictureStep})
        connect(box, &IntSpinBox::valueEdited, this, &PictureDialog::showFiles);
    for (const TextField *field : {m_ui->txtPictureFolder, m_ui->txtPictureName})
        connect(field, &TextField::valueEdited, this, &PictureDialog::showFiles);
    // The view may have other proportions than it had then.
    on_sbPictureWidth_valueEdited(m_ui->sbPictureWidth->value());
    showRows();
}

PictureDialog::~PictureDialog() = default;

void PictureDialog::readSettings()
{
    m_ui->cbKeepProportions->setChecked(Settings::PictureKeepProportions.value());
    m_ui->cbTransparent->setChecked(Settings::PictureTransparent.value());
    const QSize stored = Settings::PictureSize.value();
    fill(m_ui->sbPictureWidth, stored.isEmpty() ? m_subject.viewSize.width() : stored.width());
    fill(m_ui->sbPictureHeight, stored.isEmpty() ? m_subject.viewSize.height() : stored.height());

    const bool hasFrames = m_subject.frameCount > 0;
    const int last = qMax(0, m_subject.frameCount - 1);
    for (IntSpinBox *box : {m_ui->sbFirstFrame, m_ui->sbLastFrame})
        box->setMaximum(last);
    fill(m_ui->sbFirstFrame, m_subject.selected.isEmpty() ? 0 : m_subject.selected.first);
    fill(m_ui->sbLastFrame, m_subject.selected.isEmpty() ? last : m_subject.selected.last);
    fill(m_ui->sbPictureStep, Settings::PictureStep.value());
    fill(m_ui->sbPictureTurns, Settings::PictureTurns.value());
    m_ui->cbTurnFrames->setChecked(hasFrames && Settings::PictureTurnFrames.value());
    m_ui->cbTurnFrames->setEnabled(hasFrames);
    static_cast<QStandardItemModel *>(m_ui->cbPictureKind->model())->item(Frames)->setEnabled(hasFrames);
    const int kind = qBound(int(View), Settings::PictureKind.value(), int(Turntable));
    m_ui->cbPictureKind->setCurrentIndex(kind == Frames && !hasFrames ? int(View) : kind);
    m_ui->txtPictureFolder->setValue(QDir::toNativeSeparators(folderAtFirst()));
    m_ui->txtPictureName->setValue(m_subject.name);
}

QSize PictureDialog::pictureSize() const
{
    return {m_ui->sbPictureWidth->value(), m_ui->sbPictureHeight->value()};
}

bool PictureDialog::isTransparent() const
{
    return m_ui->cbTransparent->isChecked();
}

PictureDialog::Kind PictureDialog::kind() const
{
    return Kind(m_ui->cbPictureKind->currentIndex());
}

PicturePlan PictureDialog::plan() const
{
    PicturePlan plan;
    if (kind() == Turntable)
        plan.turns = m_ui->sbPictureTurns->value();
    if (kind() == Frames || m_ui->cbTurnFrames->isChecked()) {
        plan.firstFrame = m_ui->sbFirstFrame->value();
        plan.lastFrame = m_ui->sbLastFrame->value();
        plan.step = m_ui->sbPictureStep->value();
    }
    return plan;
}

QStringList PictureDialog::files() const
{
    const QString path = QDir(normalizedFolder(m_ui->txtPictureFolder->value()))
                             .filePath(m_ui->txtPictureName->value() + QStringLiteral(".png"));
    const std::vector<PicturePlan::Shot> shots = plan().shots();
    QStringList all;
    for (const PicturePlan::Shot &shot : shots)
        all += numberedPicture(path, shot.number, shots.back().number);
    return all;
}

void PictureDialog::showRows()
{
    const bool turns = kind() == Turntable;
    const bool hasFrames = kind() == Frames || (turns && m_ui->cbTurnFrames->isChecked());
    const auto show = [](bool shown, std::initializer_list<QWidget *> widgets) {
        for (QWidget *widget : widgets)
            widget->setVisible(shown);
    };
    show(turns, {m_ui->lblPictureTurns, m_ui->sbPictureTurns, m_ui->cbTurnFrames});
    show(hasFrames, {m_ui->lblFirstFrame, m_ui->sbFirstFrame, m_ui->lblLastFrame, m_ui->sbLastFrame,
                     m_ui->lblPictureStep, m_ui->sbPictureStep});
    show(kind() != View, {m_ui->lblPictureFolder, m_ui->txtPictureFolder, m_ui->btnPictureFolder,
                          m_ui->lblPictureName, m_ui->txtPictureName, m_ui->lblPictureFiles});
    // Nothing that is not seen refuses anything.
    for (TypingField *field : TypingField::in(*this)) {
        if (dynamic_cast<QWidget *>(field)->isHidden())
            field->discardText();
    }
    m_ui->buttonBox->button(QDialogButtonBox::Save)->setText(kind() == View ? tr("&Save…") : tr("&Save"));
    showFiles();
}

void PictureDialog::showFiles()
{
    const QStringList names = files();
    const QString first = QFileInfo(names.first()).fileName();
    m_ui->lblPictureFiles->setText(names.size() == 1 ? first
                                                     : tr("%1 to %2 (pictures: %3)")
                                                           .arg(first, QFileInfo(names.last()).fileName(),
                                                                QString::number(names.size())));
}

void PictureDialog::on_cbPictureKind_currentIndexChanged(int)
{
    showRows();
}

void PictureDialog::on_cbTurnFrames_toggled(bool)
{
    showRows();
}

void PictureDialog::on_sbFirstFrame_valueEdited(int frame)
{
    m_ui->sbLastFrame->setValue(qMax(frame, m_ui->sbLastFrame->value()));
    showFiles();
}

void PictureDialog::on_sbLastFrame_valueEdited(int frame)
{
    m_ui->sbFirstFrame->setValue(qMin(frame, m_ui->sbFirstFrame->value()));
    showFiles();
}

void PictureDialog::on_sbPictureWidth_valueEdited(int width)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    fill(m_ui->sbPictureHeight,
         qRound(double(width) * m_subject.viewSize.height() / m_subject.viewSize.width()));
}

void PictureDialog::on_sbPictureHeight_valueEdited(int height)
{
    if (!m_ui->cbKeepProportions->isChecked())
        return;
    fill(m_ui->sbPictureWidth,
         qRound(double(height) * m_subject.viewSize.width() / m_subject.viewSize.height()));
}

void PictureDialog::on_btnViewSize_clicked()
{
    fill(m_ui->sbPictureWidth, m_subject.viewSize.width());
    fill(m_ui->sbPictureHeight, m_subject.viewSize.height());
}

void PictureDialog::on_btnPictureFolder_clicked()
{
    const QString folder =
        chooseFolder(this, tr("Folder for the Pictures"), normalizedFolder(m_ui->txtPictureFolder->value()));
    if (!folder.isEmpty())
        m_ui->txtPictureFolder->setValue(QDir::toNativeSeparators(folder));
    showFiles();
}

void PictureDialog::accept()
{
    if (TypingField::returnToRefused(*this))
        return;
    // The view's own size is followed wherever the view goes.
    Settings::PictureSize.setValue(pictureSize() == m_subject.viewSize ? QSize() : pictureSize());
    Settings::PictureKeepProportions.setValue(m_ui->cbKeepProportions->isChecked());
    Settings::PictureTransparent.setValue(isTransparent());
    Settings::PictureKind.setValue(kind());
    if (kind() != View)
        Settings::PicturePath.setValue(normalizedFolder(m_ui->txtPictureFolder->value()));
    if (kind() == Turntable)
        Settings::PictureTurns.setValue(m_ui->sbPictureTurns->value());
    if (kind() == Turntable && m_ui->cbTurnFrames->isEnabled())
        Settings::PictureTurnFrames.setValue(m_ui->cbTurnFrames->isChecked());
    if (!m_ui->sbPictureStep->isHidden())
        Settings::PictureStep.setValue(m_ui->sbPictureStep->value());
    QDialog::accept();
}
