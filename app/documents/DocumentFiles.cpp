// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentFiles.h"

#include "Log.h"
#include "SavePath.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {
/// Where a file dialog starts: the folder it was left in, else the explorer's.
QString startFolder(const DocumentKind &kind, const SettingKey<QString> &lastFolder)
{
    const QString folder = lastFolder.value();
    return folder.isEmpty() ? kind.explorePath.value() : folder;
}
} // namespace

DocumentFiles::DocumentFiles(const std::array<Document *, 3> &documents, QWidget *window)
    : QObject(window)
    , m_documents(documents)
    , m_window(window)
{}

void DocumentFiles::on_actionOpen_triggered()
{
    if (m_current)
        openChosen(m_current->kind().type);
}

void DocumentFiles::on_actionSave_triggered()
{
    if (m_current)
        save(m_current->kind().type);
}

void DocumentFiles::on_actionSaveAs_triggered()
{
    if (m_current)
        saveAs(m_current->kind().type);
}

bool DocumentFiles::open(DocumentType type, const QString &path)
{
    QString reason;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool failed = document(type)->open(path, &reason);
    QGuiApplication::restoreOverrideCursor();
    if (!failed)
        return false;
    const QString nativePath = QDir::toNativeSeparators(path);
    Log::error(reason.isEmpty() ? tr("[Open] Unable to read '%1'").arg(nativePath)
                                : tr("[Open] '%1': %2").arg(nativePath, reason));
    // A static mesh that cannot be read is dropped without a box: many files of that kind are only tried.
    if (type != DocumentType::StaticMesh)
        QMessageBox::warning(m_window, tr("File error"), tr("Failed to open\n%1").arg(nativePath));
    return true;
}

void DocumentFiles::openChosen(DocumentType type)
{
    const DocumentKind &kind = documentKind(type);
    const QString path =
        QFileDialog::getOpenFileName(m_window, kind.openTitle, startFolder(kind, kind.loadPath), kind.filter);
    if (path.isEmpty())
        return;
    kind.loadPath.setValue(QFileInfo(path).absolutePath());
    open(type, path);
}

bool DocumentFiles::save(DocumentType type)
{
    if (!document(type)->isOpen())
        return true;
    finishTyping();
    return document(type)->path().isEmpty() ? saveAs(type) : saveTo(type, document(type)->path());
}

bool DocumentFiles::saveAs(DocumentType type)
{
    if (!document(type)->isOpen())
        return true;
    finishTyping();
    const DocumentKind &kind = documentKind(type);
    const QString path = chooseSavePath(m_window, kind.saveTitle, startFolder(kind, kind.savePath),
                                        kind.filter, kind.extension, document(type)->fileName());
    if (path.isEmpty())
        return true;
    kind.savePath.setValue(QFileInfo(path).absolutePath());
    return saveTo(type, path);
}

void DocumentFiles::saveAll()
{
    finishTyping();
    for (const DocumentKind &kind : documentKinds()) {
        const Document *candidate = document(kind.type);
        // An import without animations leaves an animation file that cannot be saved, and need not be.
        const bool isEmptyImport = candidate->path().isEmpty() && !candidate->refusal().isEmpty();
        if (candidate->differsFromFile() && !isEmptyImport && save(kind.type))
            return;
    }
}

bool DocumentFiles::promptUnsaved(DocumentType type, QEvent *event)
{
    finishTyping();
    if (!document(type)->isModified())
        return true;
    const QString path = document(type)->path();
    const QString text =
        tr("Would you like to save the %2?\n\n%1")
            .arg(path.isEmpty() ? document(type)->fileName() : QDir::toNativeSeparators(path),
                 documentKind(type).label);
    const auto answer =
        QMessageBox::question(m_window, tr("Unsaved changes"), text,
                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    // A save that fails, or is given up, must not lose the changes: it counts as Cancel.
    const bool goOn = answer == QMessageBox::No || (answer == QMessageBox::Yes && !save(type));
    if (!goOn && event)
        event->ignore();
    return goOn;
}

bool DocumentFiles::saveTo(DocumentType type, const QString &path)
{
    QString reason;
    if (document(type)->save(path, &reason)) {
        Log::error(tr("[Save] '%1': %2").arg(QDir::toNativeSeparators(path), reason));
        warnOfFailedSave(m_window, path, reason);
        return true;
    }
    emit saved(type);
    return false;
}

void DocumentFiles::finishTyping() const
{
    // A shortcut or a tool button leaves the focus, and so the typing, in the editor.
    QWidget *editor = QApplication::focusWidget();
    if (!editor || !m_window->isAncestorOf(editor))
        return;
    editor->clearFocus();
    editor->setFocus();
}
