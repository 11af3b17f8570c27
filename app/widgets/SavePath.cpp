// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SavePath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

QString chooseSavePath(QWidget *window, const QString &title, const QString &folder, const QString &filter,
                       const QString &extension, const QString &name)
{
    QFileDialog dialog(window, title, folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(extension);
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    QString path = dialog.selectedFiles().first();
    const QString suffix = QLatin1Char('.') + extension;
    // The dialog completes a name without a dot, and asks before it replaces a file. A name like "knight.v2"
    // is completed here; it must not replace anything unasked.
    if (!path.endsWith(suffix, Qt::CaseInsensitive) && !QFileInfo::exists(path + suffix))
        path += suffix;
    return path;
}

void warnOfFailedSave(QWidget *window, const QString &path, const QString &reason)
{
    QMessageBox box(
        QMessageBox::Warning, QCoreApplication::translate("SavePath", "File error"),
        QCoreApplication::translate("SavePath", "Failed to save\n%1").arg(QDir::toNativeSeparators(path)),
        QMessageBox::Ok, window);
    box.setInformativeText(reason);
    box.exec();
}
