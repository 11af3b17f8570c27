// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "ViewDrags.h"

#include <QPair>

#include <optional>

class KVOpenGLWidget;
class RecordSelection;

/// Makes edits of what is dragged in a view: boxes of bones and models, hot points, offsets of key frame
/// actions. View and page show a drag as it goes; the document hears of it when it is dropped, as an edit of
/// the page's own.
class DragEditing : public QObject, public ViewDrags
{
    Q_OBJECT

public:
    /// Fields of the current record, by the ids of RecordField, and what they would become.
    using Numbers = QVector<QPair<QString, double>>;

    /// The view of both, with what is selected of either. The view may go first, and nothing is dragged
    /// without this: it lives as long as there is a window.
    DragEditing(SkinnedMeshDocument &skinned, const RecordSelection &skinnedRecords, AnimDocument &anim,
                const RecordSelection &animRecords, KVOpenGLWidget &view, QObject *parent);
    DragEditing(StaticMeshDocument &rigid, const RecordSelection &records, KVOpenGLWidget &view,
                QObject *parent);

    void hovered(int face) override;
    void grabbed(Handle handle) override;
    void dragged(const BoxDrag &drag) override;
    void dragged(const PointDrag &drag) override;
    void dropped() override;
    void givenUp() override;

signals:
    /// None when they are what the record has again.
    void numbersShown(DocumentType type, const DragEditing::Numbers &numbers);
    void told(const QString &text);

private:
    void follow(Document &document);
    bool isAction() const;
    RecordRef pointRecord() const;
    QString pointStatus(const PointDrag &drag) const;
    void endPreview();
    template <typename PlaceCommand, typename BoneCommand, typename Row, typename Model>
    void storePoint(ModelDocument<Model> &document, const Row &row, const PointDrag &drag);
    void store(const BoxDrag &drag);
    void store(const PointDrag &drag);

    SkinnedMeshDocument *m_skinned = nullptr;
    AnimDocument *m_anim = nullptr;
    StaticMeshDocument *m_rigid = nullptr;
    const RecordSelection &m_records;
    const RecordSelection *m_animRecords = nullptr;
    KVOpenGLWidget &m_view;
    std::optional<BoxDrag> m_box;
    std::optional<PointDrag> m_point;
    RecordRef m_record; ///< that is held
};
