// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordNotes.h"

#include "AxisAngle.h"
#include "DocumentModel.h"
#include "EventArguments.h"
#include "NameTables.h"
#include "ReferenceTables.h"

#include <QCoreApplication>

#include <algorithm>

QString calledBone(const SkinnedMesh &mesh, int number)
{
    const SkinnedMeshNode *bone = Records::element(mesh.nodes, number);
    return !bone || bone->name.isEmpty() ? boneSymbolName(mesh, number) : bone->name;
}

QString calledBone(const AnimBlock &block, const SkinnedMesh *mesh, int number)
{
    // Another mesh's bones would be called wrongly.
    return mesh && mesh->nodes.size() == block.nodes.size() ? calledBone(*mesh, number) : QString();
}

QString eventArgumentLabel(int eventType, int argument)
{
    const char *label = eventArgument(eventType, argument).label;
    return label ? QCoreApplication::translate("EventArguments", label) : QString();
}

namespace {
using K = RecordKind;

constexpr int NoNumber = 0xFFFF; ///< what 16-bit numbers hold for "none"
constexpr int DealsDamage = 0xFFFF;

struct NoteTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordNotes)
};

/// The parts of a note, in their order; names are also found by a filter.
class NoteParts
{
public:
    void addName(const QString &name) { add(name, true); }
    void addFigure(const QString &figure) { add(figure, false); }

    QString joined(bool onlyNames) const
    {
        QStringList texts;
        for (const auto &[text, isName] : m_parts) {
            if (isName || !onlyNames)
                texts += text;
        }
        return texts.join(onlyNames ? QStringLiteral(" ") : QStringLiteral(" \u00b7 "));
    }

private:
    void add(const QString &text, bool isName)
    {
        if (!text.isEmpty())
            m_parts.append({text, isName});
    }

    QVector<std::pair<QString, bool>> m_parts;
};

/// A number as the eye wants it.
QString brief(double value)
{
    return QString::number(value, 'g', 4);
}

QString brief(const QVector3D &value)
{
    return QStringLiteral("%1, %2, %3")
        .arg(brief(double(value.x())), brief(double(value.y())), brief(double(value.z())));
}

QString particleName(int number)
{
    const QString name = ReferenceTables::shared().name(ReferenceKind::Particles, number);
    return name.isEmpty() ? NoteTexts::tr("particle %1").arg(number) : name;
}

/// The event's name without the number before it.
QString eventName(int type)
{
    const QString name = eventTypeNames().value(type);
    return name.isEmpty() ? NoteTexts::tr("event %1").arg(type) : name.section(QLatin1String(": "), 1);
}

template <typename Surface>
void addSurface(NoteParts &note, const Surface *surface)
{
    if (!surface)
        return;
    const size_t triangles = surface->triangleIndexes.size() / 3;
    note.addName(surface->materialPath.section(QLatin1Char('/'), -1));
    note.addFigure(triangles == 1 ? NoteTexts::tr("1 triangle")
                                  : NoteTexts::tr("%1 triangles").arg(triangles));
}

NoteParts partsOf(const SkinnedMesh &mesh, const RecordRef &record)
{
    NoteParts note;
    const RecordIndex &index = record.index;
    switch (record.kind) {
    case K::Bone:
        // Its symbol is its label.
        if (const SkinnedMeshNode *bone = Records::Bone::find(mesh, index))
            note.addName(bone->name);
        break;
    case K::ChildBone:
        if (const quint16 *child = Records::ChildBone::find(mesh, index))
            note.addName(calledBone(mesh, *child));
        break;
    case K::HotPoint:
        if (const SkinnedMeshHotPoint *point = Records::HotPoint::find(mesh, index)) {
            note.addName(calledBone(mesh, point->nodeId));
            if (point->particleEffect1 == DealsDamage) {
                note.addFigure(NoteTexts::tr("damage %1").arg(brief(point->particleEffect2 / 256.0)));
            } else {
                note.addName(particleName(point->particleEffect1));
                if (point->particleEffect2 != NoNumber)
                    note.addName(particleName(point->particleEffect2));
            }
        }
        break;
    case K::SkinnedSurface:
        addSurface(note, Records::SkinnedSurface::find(mesh, index));
        break;
    case K::SkinnedTriangleIndex:
        note.addFigure(NoteTexts::tr("triangle %1").arg(index[1] / 3));
        break;
    case K::SkinnedVertex:
        if (const SkinnedMeshVertex *vertex = Records::SkinnedVertex::find(mesh, index)) {
            note.addFigure(calledBone(mesh, vertex->nodeIndex));
            note.addFigure(NoteTexts::tr("at %1").arg(brief(vertex->position)));
        }
        break;
    default:
        break;
    }
    return note;
}

NoteParts partsOf(const StaticMesh &mesh, const RecordRef &record)
{
    NoteParts note;
    if (record.kind == K::StaticSurface)
        addSurface(note, Records::StaticSurface::find(mesh, record.index));
    else if (record.kind == K::StaticTriangleIndex)
        note.addFigure(NoteTexts::tr("triangle %1").arg(record.index[1] / 3));
    else if (const StaticMeshVertex *vertex =
                 record.kind == K::StaticVertex ? Records::StaticVertex::find(mesh, record.index) : nullptr)
        note.addFigure(NoteTexts::tr("at %1").arg(brief(vertex->position)));
    return note;
}

QString calledAnimation(const SkinnedMesh *mesh, int id)
{
    static const SkinnedMesh nameless;
    return animationName(mesh ? *mesh : nameless, id);
}

void addBone(NoteParts &note, const AnimBlock &block, const SkinnedMesh *mesh, int number)
{
    const QString name = calledBone(block, mesh, number);
    if (name.isEmpty())
        note.addFigure(NoteTexts::tr("bone %1").arg(number));
    else
        note.addName(name);
}

/// The bones that follow a track: the first, and how many more.
void addFollowers(NoteParts &note, const AnimBlock &block, const SkinnedMesh *mesh, quint16 AnimNode::*track,
                  int number)
{
    // A skeleton of the game has some dozens; a damaged file, with as many tracks, must not be slow.
    constexpr size_t MostBones = 1024;
    if (block.nodes.size() > MostBones)
        return;
    int first = -1;
    int more = 0;
    for (size_t bone = 0; bone < block.nodes.size(); ++bone) {
        if (block.nodes[bone].*track != number)
            continue;
        more += first >= 0;
        first = first < 0 ? int(bone) : first;
    }
    if (first < 0)
        return note.addFigure(NoteTexts::tr("no bone follows it"));
    addBone(note, block, mesh, first);
    if (more > 0)
        note.addFigure(NoteTexts::tr("and %1 more").arg(more));
}

void addAction(NoteParts &note, const AnimAction &action, const AnimBlock &block, const SkinnedMesh *mesh)
{
    note.addFigure(NoteTexts::tr("frame %1").arg(action.frame));
    note.addName(eventName(action.eventType));
    const QString label = eventArgumentLabel(action.eventType, 0);
    const QString name = argumentName(action.eventType, 0, action.args[0]);
    note.addName(name);
    if (name.isEmpty() && !label.isEmpty())
        note.addFigure(QStringLiteral("%1 %2").arg(label, brief(double(action.args[0]))));
    if (action.node != NoNumber)
        addBone(note, block, mesh, action.node);
}

NoteParts partsOf(const AnimFile &file, const SkinnedMesh *mesh, const RecordRef &record)
{
    NoteParts note;
    const RecordIndex &index = record.index;
    const AnimBlock *block = Records::Block::find(file, index);
    if (!block)
        return note;
    switch (record.kind) {
    case K::AnimBlock:
        note.addFigure(NoteTexts::tr("id %1").arg(block->animId));
        note.addName(calledAnimation(mesh, block->animId));
        note.addFigure(block->frameCount() == 1 ? NoteTexts::tr("1 frame")
                                                : NoteTexts::tr("%1 frames").arg(block->frameCount()));
        break;
    case K::AnimBone:
        note.addName(calledBone(*block, mesh, index[1]));
        break;
    case K::AnimFrame:
        if (const AnimFrame *frame = Records::BlockFrame::find(file, index); frame && frame->yawOffset != 0)
            note.addFigure(NoteTexts::tr("yaw %1").arg(brief(double(frame->yawOffset))));
        break;
    case K::TranslationTrack:
        addFollowers(note, *block, mesh, &AnimNode::translationIndex, index[1]);
        break;
    case K::TranslationKey:
        if (const QVector3D *key = Records::TranslationKey::find(file, index))
            note.addFigure(brief(*key));
        break;
    case K::RotationTrack:
        addFollowers(note, *block, mesh, &AnimNode::rotationIndex, index[1]);
        break;
    case K::RotationKey:
        if (const QVector4D *key = Records::RotationKey::find(file, index)) {
            const AxisAngle turn = axisAngle(*key);
            note.addFigure(NoteTexts::tr("%1° about %2").arg(brief(double(turn.degrees)), axisText(turn)));
        }
        break;
    case K::AnimAction:
        if (const AnimAction *action = Records::BlockAction::find(file, index))
            addAction(note, *action, *block, mesh);
        break;
    default:
        break;
    }
    return note;
}

NoteParts partsOf(const Document &document, const RecordRef &record)
{
    switch (document.kind().type) {
    case DocumentType::SkinnedMesh:
        return partsOf(modelOf<SkinnedMesh>(document), record);
    case DocumentType::Anim:
        return partsOf(modelOf<AnimFile>(document), document.namingMesh(), record);
    case DocumentType::StaticMesh:
        break;
    }
    return partsOf(modelOf<StaticMesh>(document), record);
}
} // namespace

RecordNotes::RecordNotes(const Document &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    const auto forget = [this] { m_vertexCounts.clear(); };
    connect(&document, &Document::replaced, this, forget);
    connect(&document, &Document::recordsChanged, this, forget);
    connect(&document, &Document::structuresChanged, this, forget);
}

QString RecordNotes::text(const RecordRef &record) const
{
    NoteParts note = partsOf(m_document, record);
    if (record.kind == K::Bone) {
        const int vertices = vertexCount(record.index[0]);
        const int children = m_document.recordCount(K::ChildBone, record.index);
        if (vertices > 0)
            note.addFigure(vertices == 1 ? NoteTexts::tr("1 vertex")
                                         : NoteTexts::tr("%1 vertices").arg(vertices));
        if (children > 0)
            note.addFigure(children == 1 ? NoteTexts::tr("1 child")
                                         : NoteTexts::tr("%1 children").arg(children));
    }
    return note.joined(false);
}

int RecordNotes::vertexCount(int bone) const
{
    const auto &mesh = modelOf<SkinnedMesh>(m_document);
    if (m_vertexCounts.empty()) {
        m_vertexCounts.resize(mesh.nodes.size());
        for (const SkinnedMeshVertex &vertex : mesh.vertices) {
            if (int *count = Records::element(m_vertexCounts, vertex.nodeIndex))
                ++*count;
        }
    }
    const int *count = Records::element(m_vertexCounts, bone);
    return count ? *count : 0;
}

QString noteNames(const Document &document, const RecordRef &record)
{
    // Those of the longest lists have figures only.
    switch (record.kind) {
    case K::SkinnedVertex:
    case K::SkinnedTriangleIndex:
    case K::StaticVertex:
    case K::StaticTriangleIndex:
    case K::AnimFrame:
    case K::TranslationKey:
    case K::RotationKey:
        return {};
    default:
        return partsOf(document, record).joined(true);
    }
}
