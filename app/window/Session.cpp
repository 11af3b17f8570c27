// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Session.h"

#include "AnimTrackFrame.h"
#include "DocumentFiles.h"
#include "Files.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "Log.h"
#include "MaterialDocument.h"
#include "MaterialsDock.h"
#include "MaterialsPane.h"
#include "Playback.h"
#include "RecordTable.h"
#include "Settings.h"

#include <QDir>
#include <QEvent>
#include <QTabWidget>

#include <algorithm>

namespace {
// Keys of the stored map; files stand under their kind's extension, cameras under their view's name.
const QString BlockKey = QStringLiteral("block");
const QString PathKey = QStringLiteral("path");
const QString SizeKey = QStringLiteral("size");
const QString ModifiedKey = QStringLiteral("modified");
const QString RecordKey = QStringLiteral("record");
const QString MaterialsKey = QStringLiteral("kmat");
const QString MaterialKey = QStringLiteral("material");

QVariantList numbers(const RecordRef &record)
{
    return {int(record.kind), record.index[0], record.index[1], record.index[2]};
}

QVariantList numbers(const Camera &camera)
{
    const QVector3D place = camera.position();
    return {place.x(), place.y(), place.z(), camera.yaw(), camera.pitch()};
}

/// A record that stands in the tree of `root`; none for anything else.
RecordRef recordIn(RecordKind root, const QVariantList &stored)
{
    if (stored.size() != 4 || stored[0].toInt() <= int(RecordKind::None) ||
        stored[0].toInt() > int(RecordKind::StaticVertices))
        return {};
    const RecordRef record{RecordKind(stored[0].toInt()),
                           {stored[1].toInt(), stored[2].toInt(), stored[3].toInt()}};
    RecordKind top = record.kind;
    while (recordRow(top)->parent != RecordKind::None)
        top = recordRow(top)->parent;
    return top == root ? record : RecordRef();
}

void placeCamera(KVOpenGLWidget &viewport, const QVariantList &stored)
{
    if (stored.size() != 5)
        return;
    float value[5];
    for (int i = 0; i < 5; ++i)
        value[i] = stored[i].toFloat();
    viewport.placeCamera({value[0], value[1], value[2]}, value[3], value[4]);
}

bool isStaticMesh(const DocumentPane &pane)
{
    return pane.document->kind().type == DocumentType::StaticMesh;
}

/// Of an archive that is yet to be read, the load will tell.
bool isThere(const QString &path)
{
    return Files::isUnread(path) || FileStamp::of(path).exists();
}

void tellGone(const QString &path)
{
    Log::warning(Session::tr("[Session] '%1' is not there any more").arg(QDir::toNativeSeparators(path)));
}
} // namespace

Session::Session(DocumentFiles &files, const std::array<DocumentPane, 3> &panes,
                 const std::array<QTabWidget *, 2> &tabs, AnimTrackFrame &track, MaterialsPane &materials,
                 QWidget *window)
    : QObject(window)
    , m_files(files)
    , m_panes(panes)
    , m_tabs(tabs)
    , m_track(track)
    , m_materials(materials)
    , m_window(window)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(DelayMs);
    connect(&m_timer, &QTimer::timeout, this, &Session::store);
    for (const DocumentPane &pane : m_panes) {
        connect(pane.document, &Document::replaced, this, &Session::noteChange);
        connect(pane.document, &Document::saved, this, &Session::noteChange);
        connect(pane.tree, &KVTreeView::currentRecordChanged, this, &Session::noteChange);
        connect(pane.viewport, &KVOpenGLWidget::positionReadOut, this, &Session::noteChange);
    }
    for (const QTabWidget *each : m_tabs)
        connect(each, &QTabWidget::currentChanged, this, &Session::noteChange);
    const MaterialDocument &material = m_materials.dock().document();
    connect(&material, &MaterialDocument::replaced, this, &Session::noteChange);
    // At once: the window asks about it when it closes, which is later than it tells this.
    connect(&material, &MaterialDocument::saved, this, [this] { storeAs(stateWithAwaited()); });
    connect(&m_track, &AnimTrackFrame::playbackChanged, this, &Session::noteChange);
    window->installEventFilter(this);
}

void Session::noteChange()
{
    if (!m_timer.isActive())
        m_timer.start();
}

QVariantMap Session::state() const
{
    QVariantMap state;
    for (const DocumentPane &pane : m_panes) {
        state.insert(pane.viewport->objectName(), numbers(pane.viewport->camera()));
        const Document &document = *pane.document;
        if (!document.isOpen() || document.path().isEmpty())
            continue;
        state.insert(document.kind().extension,
                     QVariantMap{{PathKey, document.path()},
                                 {SizeKey, document.fileStamp().size},
                                 {ModifiedKey, document.fileStamp().modified},
                                 {RecordKey, numbers(pane.tree->currentRecord())}});
    }
    const MaterialsDock &dock = m_materials.dock();
    if (dock.document().stamp().exists())
        state.insert(MaterialsKey,
                     QVariantMap{{PathKey, dock.document().path()}, {MaterialKey, dock.currentMaterial()}});
    for (const QTabWidget *tabs : m_tabs)
        state.insert(tabs->objectName(), tabs->currentWidget()->objectName());
    state.insert(BlockKey, playback().blockIndex);
    return state;
}

/// What is being read still stands as it was stored.
QVariantMap Session::stateWithAwaited() const
{
    QVariantMap all = state();
    for (const DocumentPane &pane : m_panes) {
        const QVariantMap &was = m_awaited[size_t(pane.document->kind().type)];
        const DocumentLoader &loader = m_files.loader(pane.document->kind().type);
        const QVariant file = was.value(pane.document->kind().extension);
        if (!loader.isLoading() || loader.path() != file.toMap().value(PathKey).toString())
            continue;
        all.insert(pane.document->kind().extension, file);
        all.insert(pane.viewport->objectName(), was.value(pane.viewport->objectName()));
        if (pane.document->kind().type == DocumentType::Anim)
            all.insert(BlockKey, was.value(BlockKey));
    }
    const QString awaited = m_materials.awaitedPath();
    if (!awaited.isEmpty() && awaited == m_awaitedMaterials.value(PathKey).toString())
        all.insert(MaterialsKey, m_awaitedMaterials);
    return all;
}

void Session::store()
{
    storeAs(state());
}

void Session::storeAs(const QVariantMap &now)
{
    if (now == m_stored || !Settings::RestoreSession.value())
        return;
    Settings::Session.setValue(now);
    m_stored = now;
}

void Session::restore(const QStringList &paths)
{
    if (!Settings::RestoreSession.value())
        return;
    const QVariantMap state = Settings::Session.value();
    // Should one of these files bring the program down, the next start is without it.
    Settings::Session.setValue({});
    noteChange();

    const auto leftAlone = [&paths](const DocumentPane &pane) {
        return std::any_of(paths.begin(), paths.end(), [&pane](const QString &path) {
            if (isMaterialFile(path))
                return false;
            const DocumentKind *kind = documentKindOfFile(path);
            // What is going to be imported asks for its tab.
            return !kind || (kind->type == DocumentType::StaticMesh) == isStaticMesh(pane);
        });
    };
    for (const DocumentPane &pane : m_panes) {
        if (leftAlone(pane) || pane.document->isOpen())
            continue;
        open(pane, state);
    }
    if (std::none_of(paths.begin(), paths.end(), isMaterialFile))
        openMaterials(state);
    for (QTabWidget *tabs : m_tabs) {
        const QString name = state.value(tabs->objectName()).toString();
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->widget(i)->objectName() == name)
                tabs->setCurrentIndex(i);
        }
    }
}

void Session::open(const DocumentPane &pane, const QVariantMap &state)
{
    const QVariantMap file = state.value(pane.document->kind().extension).toMap();
    const QString path = file.value(PathKey).toString();
    if (path.isEmpty())
        return placeView(pane, state);
    const QString nativePath = QDir::toNativeSeparators(path);
    if (!isThere(path)) {
        tellGone(path);
        return placeView(pane, state);
    }
    const auto then = [=](DocumentLoader::Outcome outcome, const QString &reason) {
        if (outcome == DocumentLoader::Outcome::Failed && reason.isEmpty())
            Log::error(tr("[Session] Unable to read '%1'").arg(nativePath));
        else if (outcome == DocumentLoader::Outcome::Failed)
            Log::error(tr("[Session] '%1': %2").arg(nativePath, reason));
        const bool asItWas = outcome == DocumentLoader::Outcome::Opened && showRecord(pane, file);
        placeView(pane, state);
        if (!asItWas || pane.document->kind().type != DocumentType::Anim)
            return;
        const int block = state.value(BlockKey).toInt();
        if (block != playback().blockIndex && block >= 0 &&
            block < pane.document->recordCount(RecordKind::AnimBlock, {}))
            m_track.selectBlock(block);
    };
    // Not before the window closes does it count again: it may bring the program down yet.
    m_awaited[size_t(pane.document->kind().type)] = state;
    m_files.loader(pane.document->kind().type).load(path, then);
}

void Session::openMaterials(const QVariantMap &state)
{
    const QVariantMap file = state.value(MaterialsKey).toMap();
    const QString path = file.value(PathKey).toString();
    if (path.isEmpty())
        return;
    if (!isThere(path))
        return tellGone(path);
    m_awaitedMaterials = file;
    m_materials.restore(path, file.value(MaterialKey).toString());
}

void Session::placeView(const DocumentPane &pane, const QVariantMap &state) const
{
    placeCamera(*pane.viewport, state.value(pane.viewport->objectName()).toList());
}

bool Session::showRecord(const DocumentPane &pane, const QVariantMap &file) const
{
    if (pane.document->fileStamp() !=
        FileStamp{file.value(SizeKey).toLongLong(), file.value(ModifiedKey).toLongLong()}) {
        Log::info(tr("[Session] '%1' has changed since the last session")
                      .arg(QDir::toNativeSeparators(pane.document->path())));
        return false;
    }
    const RecordRef record = recordIn(pane.document->rootKind(), file.value(RecordKey).toList());
    if (record.kind != RecordKind::None)
        pane.tree->selectRecords({record}, record);
    return true;
}

bool Session::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Close) {
        // Another window may have written meanwhile; the one closed last is the session.
        m_stored.clear();
        storeAs(stateWithAwaited());
    }
    return QObject::eventFilter(watched, event);
}
