// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Document.h"

#include "BinaryFileReader.h"
#include "BinaryFileWriter.h"
#include "NameTables.h"
#include "TypingField.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {
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
    // Before reading: what another program writes meanwhile must not pass as known.
    const FileStamp stamp = FileStamp::of(path);
    if (readModel(path, reason))
        return true;
    replace(path, {}, stamp);
    return false;
}

bool Document::restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                       const FileStamp &stamp)
{
    BinaryFileReader reader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
    if (readModel(reader))
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
    if (writeModel(path, reason))
        return true;
    m_path = path;
    m_fileStamp = FileStamp::of(path);
    m_changedDirectly = false;
    m_wasClean = false;
    m_undoStack.setClean();
    emit saved();
    return false;
}

QStringList Document::refusedTyping() const
{
    QStringList refusals;
    for (TypingField *field : m_editors ? TypingField::in(*m_editors) : QVector<TypingField *>()) {
        if (field->commitText())
            refusals.append(field->refusal());
    }
    return refusals;
}

bool Document::returnToTyping()
{
    TypingField *refused = m_editors ? TypingField::refusedIn(*m_editors) : nullptr;
    if (!refused)
        return false;
    emit typingRefused(refused->refusal()); // which brings its tab to the front
    refused->returnTo();
    return true;
}

void Document::discardTyping()
{
    for (TypingField *field : m_editors ? TypingField::in(*m_editors) : QVector<TypingField *>())
        field->discardText();
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

template <typename Model>
bool ModelDocument<Model>::readModel(const QString &path, QString *reason)
{
    m_fresh = Model();
    return m_fresh.read(path, reason);
}

template <typename Model>
bool ModelDocument<Model>::readModel(BinaryFileReader &reader)
{
    m_fresh = Model();
    return m_fresh.read(reader);
}

template <typename Model>
std::vector<uchar> ModelDocument<Model>::draft() const
{
    // The file is seldom far off: growing a large buffer costs more than filling it.
    BinaryFileWriter writer(size_t(std::max<qint64>(fileStamp().size, 0)) + 64 * 1024);
    m_model.writeDraft(writer);
    return writer.takeBytes();
}

template <>
bool StaticMeshDocument::readModel(const QString &path, QString *reason)
{
    m_fresh = StaticMesh();
    if (m_fresh.read(path, reason))
        return true;
    // Without a surface there is nothing to show, and nothing that could be saved.
    if (m_fresh.surfaces.empty())
        *reason = Document::tr("The model has no surfaces.");
    return m_fresh.surfaces.empty();
}

template class ModelDocument<SkinnedMesh>;
template class ModelDocument<AnimFile>;
template class ModelDocument<StaticMesh>;
