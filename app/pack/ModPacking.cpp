// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModPacking.h"

#include "DocumentFiles.h"
#include "Language.h"
#include "Log.h"
#include "ModCheck.h"
#include "PackDialog.h"
#include "Patience.h"
#include "Settings.h"
#include "UnsavedWork.h"
#include "Validation.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>

#include <algorithm>

namespace {
std::optional<PackList> listMod(const MaterialFolders &folders, const QStringList &patterns, QWidget *window)
{
    return workWithPatience(
        [=](const Background::Cancelled &cancelled) {
            return listForPacking(folders.outputDir, folders.gamePath, patterns,
                                  [&cancelled] { return !cancelled; });
        },
        PackDialog::tr("Looking through the mod"), window);
}

std::optional<std::vector<PackError>> checkMod(const MaterialFolders &folders, QWidget *window)
{
    std::atomic_int percent{0};
    const auto work = [&percent, folders,
                       ids = ReferenceIds::load()](const Background::Cancelled &cancelled) {
        ModCheck check(folders, ids, ListedFindings, [&](qint64 done, qint64 all) {
            percent = all > 0 ? int(100 * done / all) : 0;
            return !cancelled;
        });
        std::vector<PackError> errors;
        for (const ModFinding &finding : check.run().findings) {
            if (finding.isError())
                errors.push_back({finding.name, finding.text});
        }
        return errors;
    };
    return workWithPatience(work, PackDialog::tr("Checking the mod"), window, &percent);
}
} // namespace

ModPacking::ModPacking(DocumentFiles &files, UnsavedWork &materials, QMainWindow *window)
    : QObject(window)
    , m_files(files)
    , m_materials(materials)
    , m_window(window)
{}

void ModPacking::on_actionPackMod_triggered()
{
    const MaterialFolders folders{Settings::GamePath.value(), Settings::OutputDir.value()};
    if (folders.outputDir.isEmpty() || !QFileInfo(folders.outputDir).isDir()) {
        QMessageBox::information(m_window, tr("Pack Mod"),
                                 folders.outputDir.isEmpty()
                                     ? tr("There is no mod to pack: the options set no mod folder.")
                                     : tr("There is no mod to pack: '%1' is no folder.")
                                           .arg(QDir::toNativeSeparators(folders.outputDir)));
        return;
    }
    if (!settleUnsaved(folders.outputDir))
        return;
    std::optional<PackList> list =
        listMod(folders, PackDialog::patterns(Settings::PackLeaveOut.value()), m_window);
    std::optional<std::vector<PackError>> errors;
    if (list)
        errors = checkMod(folders, m_window);
    if (!errors)
        return;
    PackDialog dialog(
        {QDir::cleanPath(folders.outputDir), !folders.gamePath.isEmpty(), std::move(*list), *errors},
        [&](const QStringList &patterns) { return listMod(folders, patterns, &dialog); }, m_window);
    if (dialog.exec() == QDialog::Accepted)
        write(dialog);
}

bool ModPacking::settleUnsaved(const QString &modFolder)
{
    const QString root = QFileInfo(modFolder).canonicalFilePath() + QLatin1Char('/');
    m_files.finishAllSaving();
    const auto isElsewhere = [&root](const QString &path) {
        const QFileInfo file(path);
        return path.isEmpty() ||
               !(file.exists() ? file.canonicalFilePath()
                               : QFileInfo(file.path()).canonicalFilePath() + QLatin1Char('/'))
                    .startsWith(root);
    };
    return std::all_of(documentKinds().begin(), documentKinds().end(),
                       [&](const DocumentKind &kind) {
                           return isElsewhere(m_files.document(kind.type)->path()) ||
                                  m_files.promptUnsaved(kind.type);
                       }) &&
           (isElsewhere(m_materials.path()) || m_materials.mayBeReplaced());
}

void ModPacking::write(const PackDialog &wanted)
{
    const QString target = wanted.target();
    const QString native = QDir::toNativeSeparators(target);
    qint64 bytes = 0;
    for (const PackedFile &file : wanted.list().files)
        bytes += file.bytes;
    std::atomic_int percent{0};
    const auto work = [&percent, bytes, target,
                       &list = wanted.list()](const Background::Cancelled &cancelled) {
        return writePack(list, target, [&](qint64 done) {
            percent = int(100 * done / std::max<qint64>(bytes, 1));
            return !cancelled;
        });
    };
    const std::optional<PackEnd> end =
        workWithPatience(work, tr("Packing '%1'").arg(native), m_window, &percent);
    if (!end) {
        m_window->statusBar()->showMessage(tr("Nothing was packed."), 5000);
    } else if (end->isFailed) {
        Log::error(tr("[Pack Mod] '%1': %2").arg(QDir::toNativeSeparators(end->path), end->reason));
        warnOfFailedSaves(m_window, {{end->path, end->reason}});
    } else {
        const QString told = tr("%1: files packed: %2, together %3")
                                 .arg(native, QString::number(wanted.list().files.size()),
                                      Language::locale().formattedDataSize(QFileInfo(target).size()));
        Log::info(QStringLiteral("[Pack Mod] ") + told);
        m_window->statusBar()->showMessage(told, 5000);
    }
}
