// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Document.h"

#include "ModelDraft.h"
#include "NameTables.h"
#include "TypingField.h"

#include <QFileInfo>

#include <algorithm>

namespace {
QString boneName(const SkinnedMesh &mesh, int index)
{
    const SkinnedMeshNode *bone = Records::element(mesh.nodes, index);
    return bone ? bone->name : QString();
}

/// The first bone that follows a track; -1 when none does.
int boneOfTrack(const AnimBlock &block, quint16 AnimNode::*track, int number)
{
    // A skeleton of the game has some dozens; a damaged file, with as many tracks, must not be slow.
    constexpr size_t mostBones = 1024;
    if (block.nodes.size() > mostBones)
        return -1;
    const auto found = std::find_if(block.nodes.begin(), block.nodes.end(),
                                    [track, number](const auto &bone) { return int(bone.*track) == number; });
    return found == block.nodes.end() ? -1 : int(found - block.nodes.begin());
}

/// The index that an entry of a list holds.
QString entryText(const std::vector<quint16> &list, int entry)
{
    const quint16 *held = Records::element(list, entry);
    return held ? QString::number(*held) : QString();
}
} // namespace

Document::Document(DocumentType type, RecordKind rootKind, QObject *parent)
    : QObject(parent)
    , m_type(type)
    , m_rootKind(rootKind)
{
    // One signal per finished step: a push, the end of a macro, an undo or a redo of either.
    connect(&m_undoStack, &QUndoStack::indexChanged, this, &Document::flushChanges);
}

Document::~Document()
{
    // A stack that goes says that it is empty and clean, to whom nobody is left.
    m_undoStack.disconnect();
}

QString Document::fileName() const
{
    return m_path.isEmpty() ? m_unsavedName : QFileInfo(m_path).fileName();
}

bool Document::open(const QString &path, QString *reason)
{
    ReadProgress progress;
    const std::shared_ptr<LoadedFile> file = reader(path)(progress);
    *reason = file->reason;
    if (!file->isFailed)
        adopt(*file);
    return file->isFailed;
}

void Document::adopt(LoadedFile &file)
{
    Log::say(file.lines);
    takeModel(file);
    m_prepared = std::move(file.prepared);
    replace(file.path, {}, file.stamp);
    m_prepared.reset();
}

bool Document::restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                       const FileStamp &stamp)
{
    if (readDraft(bytes, path))
        return true;
    replace(path, unsavedName, stamp);
    m_undoStack.resetClean();
    emit restored();
    return false;
}

void Document::keepModel()
{
    const FileStamp now = FileStamp::of(m_path);
    if (now.exists()) {
        m_fileStamp = now;
        m_wasClean = false;
    }
    m_undoStack.resetClean();
}

void Document::fileWent()
{
    m_wasClean = m_undoStack.isClean();
    m_undoStack.resetClean();
}

void Document::fileReturned()
{
    if (std::exchange(m_wasClean, false))
        m_undoStack.setClean();
}

void Document::replace(const QString &path, const QString &unsavedName, const FileStamp &stamp)
{
    emit aboutToBeReplaced();
    // Commands name records of the model that goes: they go with it.
    m_undoStack.clear();
    m_wasClean = false;
    m_undoStack.setClean(); // an empty stack can be unclean
    adoptModel();
    m_path = path;
    m_unsavedName = unsavedName;
    m_fileStamp = stamp;
    m_changedDirectly = false;
    m_open = true;
    emit replaced();
}

bool Document::save(const QString &path, QString *reason)
{
    const std::shared_ptr<SavedFile> file = writer(path)();
    if (reason)
        *reason = file->reason;
    if (!file->isFailed)
        noteSaved(*file);
    return file->isFailed;
}

void Document::noteSaved(const SavedFile &file)
{
    takeNames(file.names);
    m_path = file.path;
    m_fileStamp = file.stamp;
    m_wasClean = false;
    if (file.change == m_change) {
        m_changedDirectly = false;
        m_undoStack.setClean();
    } else {
        m_undoStack.resetClean(); // no step leads to what is in the file
    }
    emit saved();
}

bool Document::returnToTyping()
{
    TypingField *refused = m_fields.firstRefused();
    if (!refused)
        return false;
    emit typingRefused(refused->refusal()); // which brings its tab to the front
    refused->returnTo();
    return true;
}

void Document::recordChanged(const RecordRef &record)
{
    m_changes.append(record);
}

void Document::structureChanged(const StructureChange &change)
{
    m_structureChanges.append(change);
}

void Document::changedDirectly(const StructureChange &change)
{
    m_changedDirectly = true;
    structureChanged(change);
    flushChanges();
}

void Document::flushChanges()
{
    m_wasClean = false;
    ++m_change;
    const auto structures = std::exchange(m_structureChanges, {});
    const auto records = std::exchange(m_changes, {});
    if (!structures.isEmpty())
        emit structuresChanged(structures);
    if (!records.isEmpty())
        emit recordsChanged(records);
}

template <>
QString SkinnedMeshDocument::recordText(const RecordRef &record) const
{
    const RecordIndex &index = record.index;
    switch (record.kind) {
    case RecordKind::Bone:
        return boneSymbolName(m_model, index[0]);
    case RecordKind::ChildBone: {
        const SkinnedMeshNode *bone = Records::element(m_model.nodes, index[0]);
        return bone ? entryText(bone->childNodes, index[1]) : QString();
    }
    case RecordKind::SkinnedTriangleIndex: {
        const SkinnedMeshSurface *surface = Records::element(m_model.surfaces, index[0]);
        return surface ? entryText(surface->triangleIndexes, index[1]) : QString();
    }
    case RecordKind::SkinnedSurface: {
        const SkinnedMeshSurface *surface = Records::element(m_model.surfaces, index[0]);
        return surface ? surface->materialPath : QString();
    }
    default:
        return {};
    }
}

template <>
QString AnimDocument::recordText(const RecordRef &record) const
{
    if (record.kind != RecordKind::AnimAction)
        return {};
    const AnimBlock *block = Records::element(m_model.blocks, record.index[0]);
    const AnimAction *action = block ? Records::element(block->actions, record.index[1]) : nullptr;
    if (!action)
        return {};
    return eventTypeNames().value(action->eventType, QString::number(action->eventType));
}

template <>
QString StaticMeshDocument::recordText(const RecordRef &record) const
{
    const bool isSurface = record.kind == RecordKind::StaticSurface;
    if (!isSurface && record.kind != RecordKind::StaticTriangleIndex)
        return {};
    const StaticMeshSurface *surface = Records::element(m_model.surfaces, record.index[0]);
    if (!surface)
        return {};
    return isSurface ? surface->materialPath : entryText(surface->triangleIndexes, record.index[1]);
}

template <>
QString SkinnedMeshDocument::recordName(const RecordRef &record) const
{
    const RecordIndex &index = record.index;
    switch (record.kind) {
    case RecordKind::Bone:
        return boneName(m_model, index[0]);
    case RecordKind::ChildBone: {
        const SkinnedMeshNode *bone = Records::element(m_model.nodes, index[0]);
        const quint16 *child = bone ? Records::element(bone->childNodes, index[1]) : nullptr;
        return child ? boneName(m_model, *child) : QString();
    }
    case RecordKind::HotPoint: {
        const SkinnedMeshHotPoint *point = Records::element(m_model.hotPoints, index[0]);
        return point ? boneName(m_model, point->nodeId) : QString();
    }
    default:
        return {};
    }
}

template <>
QString AnimDocument::recordName(const RecordRef &record) const
{
    const AnimBlock *block = Records::element(m_model.blocks, record.index[0]);
    if (!block || !namingMesh())
        return {};
    const SkinnedMesh &mesh = *namingMesh();
    if (record.kind == RecordKind::AnimBlock)
        return mesh.animationNames.value(block->animId);
    // Another mesh's bones would be called wrongly.
    if (mesh.nodes.size() != block->nodes.size())
        return {};
    const int entry = record.index[1];
    switch (record.kind) {
    case RecordKind::AnimBone:
        return boneName(mesh, entry);
    case RecordKind::TranslationTrack:
        return boneName(mesh, boneOfTrack(*block, &AnimNode::translationIndex, entry));
    case RecordKind::RotationTrack:
        return boneName(mesh, boneOfTrack(*block, &AnimNode::rotationIndex, entry));
    case RecordKind::AnimAction: {
        const AnimAction *action = Records::element(block->actions, entry);
        return action ? boneName(mesh, action->node) : QString();
    }
    default:
        return {};
    }
}

template <>
QString StaticMeshDocument::recordName(const RecordRef &) const
{
    return {};
}

template <typename Model>
Document::Reader ModelDocument<Model>::reader(const QString &path) const
{
    return [path, prepare = preparation()](ReadProgress &progress) {
        auto file = std::make_shared<LoadedModel<Model>>();
        const QString lack = withinMemory([&] { file->read(path, prepare, progress); });
        if (!lack.isEmpty()) {
            file = std::make_shared<LoadedModel<Model>>();
            file->path = path;
            file->isFailed = true;
            file->reason = lack;
        }
        return file;
    };
}

template <typename Model>
void ModelDocument<Model>::takeModel(LoadedFile &file)
{
    auto &loaded = static_cast<LoadedModel<Model> &>(file);
    m_fresh = std::move(loaded.model);
    m_names = std::move(loaded.names);
}

template <typename Model>
bool ModelDocument<Model>::readDraft(const QByteArray &bytes, const QString &path)
{
    BinaryFileReader reader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
    m_fresh = Model();
    if (m_fresh.read(reader))
        return true;
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        m_names.note(path);
        ModelNames names;
        if (!names.fromJson(bytes.right(int(m_fresh.bytesBehind)))) {
            names.giveTo(m_fresh);
            m_fresh.bytesBehind = 0;
        }
    }
    return false;
}

template <typename Model>
Document::Writer ModelDocument<Model>::writer(const QString &path)
{
    auto file = std::make_shared<SavedFile>();
    file->path = path;
    file->names = m_names;
    file->change = change();
    return [file, model = copy()] {
        const QString lack = withinMemory([&] { writeSaved(*file, model->get()); });
        if (!lack.isEmpty()) {
            file->isFailed = true;
            file->reason = lack;
        }
        return file;
    };
}

template <typename Model>
void ModelDocument<Model>::takeNames(const NamesFile &names)
{
    aboutToChange();
    m_names = names;
    m_model.bytesBehind = 0;
}

template <typename Model>
QString ModelDocument<Model>::replacedBeside(const QString &path) const
{
    if constexpr (std::is_same_v<Model, SkinnedMesh>)
        return m_names.replaced(path, m_model);
    else
        return {};
}

template <typename Model>
Document::Drafter ModelDocument<Model>::drafter()
{
    return [copied = copy()] { return draftOf(copied->get()); };
}

template <typename Model>
Document::Searcher ModelDocument<Model>::searcher(const Condition &condition)
{
    return [condition, root = rootKind(), copied = copy()](const std::atomic_bool &cancelled) {
        return findRecords(condition, ModelValues(copied->get()), root, &cancelled);
    };
}

template <typename Model>
bool ModelDocument<Model>::changeFields(const QVector<FieldChange> &changes, const QString &stepText)
{
    return RecordFields::change(changes, stepText, editTarget(), *undoStack());
}

template class ModelDocument<SkinnedMesh>;
template class ModelDocument<AnimFile>;
template class ModelDocument<StaticMesh>;
