// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentFiles.h"

#include "Files.h"
#include "Log.h"
#include "SavePath.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace {
/// Where a file dialog starts: the folder it was left in, else the explorer's.
QString startFolder(const DocumentKind &kind, const SettingKey<QString> &lastFolder)
{
    const QString folder = lastFolder.value();
    return folder.isEmpty() ? Files::folderOnDisk(kind.explorePath.value()) : folder;
}

/// Makes a folder, with those around it that are missing. Gives what was made, the innermost first.
QStringList makeFolder(const QString &path)
{
    QStringList made;
    for (QString missing = path; !QFileInfo::exists(missing); missing = QFileInfo(missing).path())
        made.append(missing);
    QDir().mkpath(path);
    return made;
}
} // namespace

DocumentFiles::DocumentFiles(const std::array<Document *, 3> &documents, QWidget *window)
    : QObject(window)
    , m_documents(documents)
    , m_window(window)
    , m_guard(window)
{
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        m_loaders[size_t(type)] = new DocumentLoader(
            *document(type), [this, type] { return mayReplace(type); }, this);
        m_savers[size_t(type)] = new DocumentSaver(*document(type), this);
        connect(document(type)->undoStack(), &QUndoStack::indexChanged, this,
                [this, type] { m_isChanged[size_t(type)] = true; });
    }
}

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

void DocumentFiles::on_actionSaveToMod_triggered()
{
    if (m_current)
        saveToMod(m_current->kind().type);
}

void DocumentFiles::open(DocumentType type, const QString &path, const Then &then)
{
    load(type, path, [this, type, then](Outcome outcome) {
        if (outcome == Outcome::Opened)
            emit opened(type);
        if (then)
            then(outcome);
    });
}

void DocumentFiles::setPatience(int milliseconds)
{
    for (DocumentLoader *each : m_loaders)
        each->setPatience(milliseconds);
    for (DocumentSaver *each : m_savers)
        each->setPatience(milliseconds);
}

void DocumentFiles::load(DocumentType type, const QString &path, const Then &then)
{
    finishSaving(type);
    m_isChanged[size_t(type)] = false;
    loader(type).load(path, [this, type, path, then](Outcome outcome, const QString &reason) {
        if (outcome == Outcome::Failed)
            tellUnread(type, path, reason);
        then(outcome);
    });
}

void DocumentFiles::tellUnread(DocumentType type, const QString &path, const QString &reason)
{
    const QString nativePath = QDir::toNativeSeparators(path);
    const QString text = reason.isEmpty() ? tr("[Open] Unable to read '%1'").arg(nativePath)
                                          : tr("[Open] '%1': %2").arg(nativePath, reason);
    // A static mesh that cannot be read is dropped without a box, and without an error, which would open the
    // console: many files of that kind are only tried.
    if (type == DocumentType::StaticMesh)
        return Log::warning(text);
    Log::error(text);
    QMessageBox::warning(m_window, tr("File error"), tr("Failed to open\n%1").arg(nativePath));
}

/// Whoever has gone on with the document while another was read is asked about that.
bool DocumentFiles::mayReplace(DocumentType type)
{
    finishSaving(type);
    return settleTyping(type) && (!m_isChanged[size_t(type)] || promptUnsaved(type));
}

void DocumentFiles::openChosen(DocumentType type)
{
    if (!settleTyping(type))
        return;
    const DocumentKind &kind = documentKind(type);
    const QString path =
        QFileDialog::getOpenFileName(m_window, kind.openTitle, startFolder(kind, kind.loadPath),
                                     kind.filter + QStringLiteral(";;") + tr("Material files (*.kmat)"));
    if (path.isEmpty())
        return;
    if (isMaterialFile(path))
        return emit materialsWanted(path);
    kind.loadPath.setValue(QFileInfo(path).absolutePath());
    open(type, path);
}

bool DocumentFiles::save(DocumentType type)
{
    if (!isReadyToSave(type))
        return true;
    return saveTo(type, targetOfSave(type));
}

bool DocumentFiles::saveAs(DocumentType type)
{
    if (!isReadyToSave(type))
        return true;
    return saveTo(type, chooseTarget(type));
}

bool DocumentFiles::saveToMod(DocumentType type)
{
    if (!isReadyToSave(type))
        return true;
    const QString path = SaveGuard::modPath(document(type)->path());
    return path.isEmpty() ? saveAs(type) : saveTo(type, m_guard.intoMod(*document(type), path));
}

void DocumentFiles::saveAll()
{
    if (std::any_of(m_documents.begin(), m_documents.end(),
                    [](Document *each) { return each->returnToTyping(); }))
        return;
    finishAllSaving();
    const auto saves = std::make_shared<Saves>();
    ++saves->pending; // until all have begun
    for (const DocumentKind &kind : documentKinds()) {
        const QString path = hasUnsavedWork(kind.type) ? targetOfSave(kind.type) : QString();
        if (!path.isEmpty())
            write(kind.type, path, saves);
    }
    endSave(saves);
}

/// A save that is under way comes first: the questions of the next one are about what it leaves.
bool DocumentFiles::isReadyToSave(DocumentType type)
{
    if (!document(type)->isOpen())
        return false;
    finishSaving(type);
    return !document(type)->returnToTyping();
}

bool DocumentFiles::finishSaving(DocumentType type)
{
    m_savers[size_t(type)]->finish();
    return m_hasFailed[size_t(type)];
}

void DocumentFiles::finishAllSaving()
{
    for (DocumentSaver *each : m_savers)
        each->finish();
}

bool DocumentFiles::hasUnsavedWork(DocumentType type) const
{
    const Document *candidate = document(type);
    // An import without animations leaves an animation file that cannot be saved, and need not be.
    const bool isEmptyImport = candidate->path().isEmpty() && !candidate->refusal().isEmpty();
    return candidate->differsFromFile() && (candidate->isModified() || !isEmptyImport);
}

/// Where Save writes; empty when the user thought better of it.
QString DocumentFiles::targetOfSave(DocumentType type)
{
    const QString path = document(type)->path();
    return path.isEmpty() ? chooseTarget(type) : m_guard.allowed(*document(type), path);
}

QString DocumentFiles::chooseTarget(DocumentType type)
{
    const DocumentKind &kind = documentKind(type);
    const QString inMod = SaveGuard::modPath(document(type)->path());
    const QString modFolder = inMod.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(inMod).absolutePath());
    // None through a link that leads back to the game.
    const bool isMade = !inMod.isEmpty() && !SaveGuard::isInGame(modFolder);
    const QStringList made = isMade ? makeFolder(modFolder) : QStringList();
    const QString chosen = chooseSavePath(m_window, kind.saveTitle,
                                          isMade            ? modFolder
                                          : inMod.isEmpty() ? startFolder(kind, kind.savePath)
                                                            : Settings::OutputDir.value(),
                                          kind.filter, kind.extension, document(type)->fileName());
    for (const QString &folder : made)
        QDir().rmdir(folder); // not one with something in it
    if (chosen.isEmpty())
        return {};
    kind.savePath.setValue(QFileInfo(chosen).absolutePath());
    const QString path = m_guard.allowed(*document(type), chosen);
    if (!path.isEmpty() && made.contains(QDir::cleanPath(QFileInfo(path).absolutePath())))
        makeFolder(QFileInfo(path).path()); // which was there to be chosen
    return path;
}

bool DocumentFiles::promptUnsaved(DocumentType type, QEvent *event)
{
    if (!settleTyping(type)) {
        if (event)
            event->ignore();
        return false;
    }
    if (!hasUnsavedWork(type))
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
    const bool goOn =
        answer == QMessageBox::No || (answer == QMessageBox::Yes && !save(type) && !finishSaving(type));
    if (!goOn && event)
        event->ignore();
    return goOn;
}

bool DocumentFiles::saveTo(DocumentType type, const QString &path)
{
    if (path.isEmpty())
        return true;
    const auto saves = std::make_shared<Saves>();
    write(type, path, saves);
    return m_hasFailed[size_t(type)];
}

void DocumentFiles::write(DocumentType type, const QString &path, const std::shared_ptr<Saves> &saves)
{
    ++saves->pending;
    m_hasFailed[size_t(type)] = false;
    m_savers[size_t(type)]->save(path, [this, type, path, saves](bool isFailed, const QString &reason) {
        m_hasFailed[size_t(type)] = isFailed;
        if (isFailed) {
            Log::error(tr("[Save] '%1': %2").arg(QDir::toNativeSeparators(path), reason));
            saves->failures.append({path, reason});
        } else {
            emit saved(type);
        }
        endSave(saves);
    });
}

void DocumentFiles::endSave(const std::shared_ptr<Saves> &saves)
{
    if (--saves->pending == 0)
        warnOfFailedSaves(m_window, saves->failures);
}

bool DocumentFiles::settleTyping(DocumentType type)
{
    const QStringList refused = document(type)->refusedTyping();
    if (refused.isEmpty())
        return true;
    const QString question = tr("%1\n\nGo on without it?").arg(refused.join(QLatin1Char('\n')));
    const auto answer = QMessageBox::question(m_window, tr("Not stored"), question,
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return !document(type)->returnToTyping();
    document(type)->discardTyping();
    return true;
}

void DocumentFiles::finishAllTyping()
{
    for (const Document *each : m_documents) {
        const QStringList refused = each->refusedTyping();
        for (const QString &refusal : refused)
            Log::warning(tr("[Close] '%1': Not stored. %2").arg(each->fileName(), refusal));
    }
}
