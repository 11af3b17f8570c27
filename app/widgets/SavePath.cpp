// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SavePath.h"

#include "FileNames.h"

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
    const QString suffix = QLatin1Char('.') + extension;
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString path = dialog.selectedFiles().first();
        const QString problem = FileNames::problem(QFileInfo(path).fileName());
        if (!problem.isEmpty()) {
            QMessageBox::warning(window, title, problem);
            continue;
        }
        if (path.endsWith(suffix, Qt::CaseInsensitive))
            return path;
        // The dialog completes a name without a dot, and asks before it replaces a file. A name like
        // "knight.v2" is completed here, and asked about.
        if (!QFileInfo::exists(path + suffix) || mayReplace(window, title, path + suffix))
            return path + suffix;
    }
    return {};
}

bool mayReplace(QWidget *window, const QString &title, const QString &path)
{
    const QString question = QCoreApplication::translate("SavePath", "'%1' exists already. Replace it?")
                                 .arg(QDir::toNativeSeparators(path));
    return QMessageBox::question(window, title, question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

void warnOfFailedSaves(QWidget *window, const QVector<FailedSave> &failures)
{
    if (failures.isEmpty())
        return;
    QStringList paths;
    QStringList reasons;
    for (const FailedSave &failure : failures) {
        paths += QDir::toNativeSeparators(failure.path);
        reasons += failures.size() == 1
                       ? failure.reason
                       : QFileInfo(failure.path).fileName() + QStringLiteral(": ") + failure.reason;
    }
    QMessageBox box(
        QMessageBox::Warning, QCoreApplication::translate("SavePath", "File error"),
        QCoreApplication::translate("SavePath", "Failed to save\n%1").arg(paths.join(QLatin1Char('\n'))),
        QMessageBox::Ok, window);
    box.setInformativeText(reasons.join(QLatin1Char('\n')));
    box.exec();
}
