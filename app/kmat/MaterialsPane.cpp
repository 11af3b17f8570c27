// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialsPane.h"

#include "DocumentFiles.h"
#include "DocumentLoader.h"
#include "EndSignals.h"
#include "FileSystem.h"
#include "Files.h"
#include "Log.h"
#include "MaterialCatalog.h"
#include "MaterialFiles.h"
#include "MaterialWork.h"
#include "MaterialsDock.h"
#include "RecentFiles.h"
#include "SavePath.h"
#include "Settings.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoGroup>
#include <QUndoView>

#include <utility>

namespace {
/// Whether a widget of the window is for whatever is edited in another one.
bool servesOthers(const QWidget *widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<const QMenuBar *>(widget) || qobject_cast<const QToolBar *>(widget) ||
            qobject_cast<const QUndoView *>(widget))
            return true;
    }
    return false;
}
} // namespace

MaterialsPane::MaterialsPane(MaterialsDock &dock, QUndoGroup &group, DocumentFiles &files,
                             MaterialCatalog &catalog, const Actions &actions, QMainWindow *window)
    : QObject(window)
    , m_dock(dock)
    , m_document(dock.document())
    , m_group(group)
    , m_files(files)
    , m_actions(actions)
    , m_window(window)
    , m_guard(window)
    , m_work(new MaterialWork(
          m_document, [this] { return mayLeave(); }, this))
{
    m_dock.setCatalog(catalog);
    m_group.addStack(m_document.undoStack());
    const auto share = [this](const QAction *action, bool (MaterialsPane::*own)(),
                              void (DocumentFiles::*others)()) {
        connect(action, &QAction::triggered, this, [this, own, others] {
            if (isActive())
                (this->*own)();
            else
                (m_files.*others)();
        });
    };
    share(actions.save, &MaterialsPane::save, &DocumentFiles::on_actionSave_triggered);
    share(actions.saveAs, &MaterialsPane::saveAs, &DocumentFiles::on_actionSaveAs_triggered);
    share(actions.saveToMod, &MaterialsPane::saveToMod, &DocumentFiles::on_actionSaveToMod_triggered);
    connect(actions.saveAll, &QAction::triggered, this, [this] {
        if (m_document.isModified())
            save();
        m_files.on_actionSaveAll_triggered();
    });
    connect(&m_dock, &MaterialsDock::openWanted, this, &MaterialsPane::openChosen);
    connect(&m_dock, &MaterialsDock::newWanted, this, &MaterialsPane::addMaterial);
    connect(&m_dock, &MaterialsDock::renameWanted, this, &MaterialsPane::renameMaterial);
    connect(&m_dock, &MaterialsDock::newFileWanted, this, &MaterialsPane::startFile);
    connect(&m_dock, &MaterialsDock::saveWanted, this, &MaterialsPane::save);
    connect(&m_dock, &MaterialsDock::reloadWanted, this, &MaterialsPane::reload);
    // What comes from elsewhere is wanted later than what is still being read.
    connect(&m_document, &MaterialDocument::aboutToBeReplaced, this, &MaterialsPane::cancelLoad);
    connect(&m_document, &MaterialDocument::changed, this, [this] { m_isEdited = true; });
    connect(&m_document, &MaterialDocument::saved, &catalog, &MaterialCatalog::reload);
    connect(&m_document, &MaterialDocument::replaced, this, &MaterialsPane::activeChanged);
    connect(&m_document, &MaterialDocument::saved, this, &MaterialsPane::activeChanged);
    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this, &MaterialsPane::activeChanged);
    const auto remember = [this] {
        if (m_document.stamp().exists())
            RecentFiles::remember(Settings::MaterialRecentFiles, m_document.path());
    };
    connect(&m_document, &MaterialDocument::replaced, this, remember);
    connect(&m_document, &MaterialDocument::saved, this, remember);
    connect(m_work, &MaterialWork::restored, this, &MaterialsPane::show);
    connect(&catalog, &MaterialCatalog::openWanted, this, &MaterialsPane::open);
    connect(&files, &DocumentFiles::materialsWanted, this, [this](const QString &path) { open(path); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { follow(now); });
    connect(m_dock.toggleViewAction(), &QAction::toggled, this, [this](bool shown) {
        if (!shown)
            setActive(false);
    });
    m_window->installEventFilter(this);
}

bool MaterialsPane::isActive() const
{
    return m_isActive && m_document.isOpen();
}

void MaterialsPane::follow(const QWidget *focused)
{
    if (!focused)
        return;
    if (m_dock.isAncestorOf(focused))
        setActive(true);
    else if (focused->window() == m_window && !servesOthers(focused))
        setActive(false);
}

void MaterialsPane::setActive(bool active)
{
    if (std::exchange(m_isActive, active) != active)
        emit activeChanged();
}

void MaterialsPane::update()
{
    if (!isActive())
        return;
    m_group.setActiveStack(m_document.undoStack());
    for (QAction *action : {m_actions.save, m_actions.saveAs, m_actions.saveToMod, m_actions.saveAll})
        action->setEnabled(true);
}

UnsavedWork &MaterialsPane::work()
{
    return *m_work;
}

bool MaterialsPane::mayLeave()
{
    if (m_dock.returnToTyping())
        return false;
    if (!m_document.isModified())
        return true;
    show();
    const auto answer = QMessageBox::question(
        m_window, tr("Unsaved changes"),
        tr("Would you like to save the materials?\n\n%1").arg(QDir::toNativeSeparators(m_document.path())),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    // A save that fails, or is given up, must not lose the changes.
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && !save());
}

void MaterialsPane::show()
{
    m_dock.show();
    m_dock.raise();
}

/// In another thread, where large files take their time; nothing is edited in the dock meanwhile. What was
/// read waits until no dialog is open that is about the file before.
void MaterialsPane::load(const QString &path, Asked asked, const std::function<void()> &then)
{
    const auto read = [path](const Background::Cancelled &) { return MaterialDocument::read(path); };
    cancelLoad();
    m_isEdited = false;
    m_awaited = path;
    m_reading.start(read, [this, path, asked, then](MaterialDocument::Read result) {
        const auto arrived = std::make_shared<MaterialDocument::Read>(std::move(result));
        const auto takeIt = [this, path, arrived, asked, then] {
            take(path, std::move(*arrived), asked, then);
        };
        if (std::exchange(m_isWaitedFor, false))
            takeIt();
        else
            m_free.wait(takeIt);
    });
    m_isWaitedFor = true;
    m_reading.wait(DocumentLoader::usualPatience());
    m_isWaitedFor = false;
    m_dock.setBusy(isLoading());
}

void MaterialsPane::cancelLoad()
{
    m_reading.cancel();
    m_free.forget();
    m_dock.setBusy(false);
}

void MaterialsPane::take(const QString &path, MaterialDocument::Read read, Asked asked,
                         const std::function<void()> &then)
{
    m_dock.setBusy(false);
    if (!read.reason.isEmpty())
        return tellUnread(path, read.reason, asked);
    // Another may be wanted while that is asked.
    if (m_isEdited && (!mayLeave() || isLoading()))
        return;
    m_document.take(path, std::move(read));
    then();
}

void MaterialsPane::tellUnread(const QString &path, const QString &reason, Asked asked)
{
    Log::error(tr("[Materials] '%1': %2").arg(QDir::toNativeSeparators(path), reason));
    if (asked == Asked::BySession)
        return;
    QMessageBox box(QMessageBox::Warning, tr("File error"),
                    tr("Failed to open\n%1").arg(QDir::toNativeSeparators(path)), QMessageBox::Ok, m_window);
    box.setInformativeText(reason);
    box.exec();
}

void MaterialsPane::open(const QString &path, const QString &material)
{
    const bool isOpen = m_document.isOpen() &&
                        FileSystem::isSamePath(QDir::cleanPath(m_document.path()), QDir::cleanPath(path));
    const auto show = [this, material] { m_dock.showMaterial(material); };
    if (isOpen) {
        cancelLoad();
        show();
    } else if (mayLeave()) {
        load(path, Asked::ByUser, show);
    }
}

void MaterialsPane::restore(const QString &path, const QString &material)
{
    if (!m_document.isOpen() && !isLoading())
        load(path, Asked::BySession, [this, material] { m_dock.selectMaterial(material); });
}

void MaterialsPane::openChosen()
{
    const QString folder = m_document.isOpen() ? QFileInfo(Files::heldBy(m_document.path())).path()
                                               : Settings::OutputDir.value();
    const QString path = QFileDialog::getOpenFileName(m_window, tr("Open Material File"), folder,
                                                      tr("Material files (*.kmat)"));
    if (!path.isEmpty())
        open(path);
}

void MaterialsPane::reload()
{
    if (m_document.isModified()) {
        const QString question =
            tr("Load '%1' anew, without your unsaved changes?").arg(QFileInfo(m_document.path()).fileName());
        if (QMessageBox::question(m_window, tr("Unsaved changes"), question,
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    load(m_document.path(), Asked::ByUser, [] {});
}

void MaterialsPane::addMaterial()
{
    if (!m_document.isOpen())
        return startFile();
    if (m_dock.returnToTyping())
        return;
    const QString name = askName(
        tr("New Material"), tr("Name of the material in %1").arg(QFileInfo(m_document.path()).fileName()),
        QStringLiteral("material"),
        [this](const QString &each) { return m_document.addMaterial(each, MaterialFiles::Blank); });
    if (!name.isEmpty())
        m_dock.showMaterial(name);
}

void MaterialsPane::renameMaterial(int material)
{
    if (m_dock.returnToTyping())
        return;
    const QString old = m_document.text().materials()[size_t(material)].name;
    const QString name = askName(
        tr("Rename Material"),
        tr("New name of %1. Surfaces that use the old one have to be changed, too.").arg(old), old,
        [&](const QString &each) { return each == old ? QString() : m_document.rename(material, each); });
    if (!name.isEmpty())
        m_dock.showMaterial(name);
}

/// Asks until `attempt` has no problem with the name. Returns that; an empty one when the user gives up.
QString MaterialsPane::askName(const QString &title, const QString &text, const QString &proposed,
                               const std::function<QString(const QString &name)> &attempt)
{
    QString name = proposed;
    for (QString problem;;) {
        bool isChosen = false;
        name = QInputDialog::getText(m_window, title, problem.isEmpty() ? text : problem, QLineEdit::Normal,
                                     name, &isChosen);
        if (!isChosen)
            return {};
        problem = attempt(name);
        if (problem.isEmpty())
            return name;
    }
}

void MaterialsPane::startFile()
{
    if (!mayLeave())
        return;
    const QString path = chooseFile(tr("New Material File"));
    if (path.isEmpty())
        return;
    m_document.start(path);
    addMaterial();
}

QString MaterialsPane::chooseFile(const QString &title) const
{
    const QString inMod = SaveGuard::modPath(m_document.path());
    QString folder = QFileInfo(inMod.isEmpty() ? m_document.path() : inMod).path();
    if (m_document.path().isEmpty() || !QFileInfo(folder).isDir())
        folder = Settings::OutputDir.value();
    return chooseSavePath(m_window, title, folder, tr("Material files (*.kmat)"), QStringLiteral("kmat"),
                          QFileInfo(m_document.path()).fileName());
}

bool MaterialsPane::save()
{
    if (!m_document.isOpen() || m_dock.returnToTyping())
        return true;
    return write(m_guard.allowed({m_document.path(), m_document.stamp()}, m_document.path()));
}

bool MaterialsPane::saveAs()
{
    if (!m_document.isOpen() || m_dock.returnToTyping())
        return true;
    const QString path = chooseFile(tr("Save Material File"));
    return path.isEmpty() || write(m_guard.allowed({m_document.path(), m_document.stamp()}, path));
}

bool MaterialsPane::saveToMod()
{
    if (!m_document.isOpen() || m_dock.returnToTyping())
        return true;
    const QString path = SaveGuard::modPath(m_document.path());
    return path.isEmpty() ? saveAs() : write(m_guard.intoMod(path));
}

bool MaterialsPane::write(const QString &path)
{
    if (path.isEmpty())
        return true;
    const QString reason = m_document.save(path);
    const QString native = QDir::toNativeSeparators(path);
    if (reason.isEmpty()) {
        m_window->statusBar()->showMessage(tr("Saved '%1'").arg(native), 5000);
        return false;
    }
    Log::error(tr("[Save] '%1': %2").arg(native, reason));
    warnOfFailedSaves(m_window, {{path, reason}});
    return true;
}

bool MaterialsPane::eventFilter(QObject *watched, QEvent *event)
{
    // A program that the system ends has no time for answers; what is unsaved is kept.
    if (watched != m_window || event->type() != QEvent::Close || EndSignals::areAsking() || mayLeave())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}
