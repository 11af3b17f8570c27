// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordFields.h"

/// The fields of a document's records, for those who do not know what kind of model it has.
class FieldSource
{
public:
    virtual ~FieldSource() = default;

    virtual Document &document() const = 0;
    virtual FieldValue value(const RecordField &field, const RecordIndex &index) const = 0;
    /// What the number of a record is called; empty where it has no name.
    virtual QString name(const RecordField &field, const RecordIndex &index) const = 0;
    /// See RecordFields::change().
    virtual bool change(const QVector<FieldChange> &changes, const QString &stepText) = 0;
};

template <typename Model>
class ModelFieldSource final : public FieldSource
{
public:
    /// The document outlives this.
    explicit ModelFieldSource(ModelDocument<Model> &document)
        : m_document(document)
    {}

    Document &document() const override { return m_document; }
    FieldValue value(const RecordField &field, const RecordIndex &index) const override
    {
        return static_cast<const ModelField<Model> &>(field).value(m_document.model(), index);
    }
    QString name(const RecordField &field, const RecordIndex &index) const override
    {
        return static_cast<const ModelField<Model> &>(field).name(m_document.model(), index,
                                                                  namingMesh(m_document));
    }
    bool change(const QVector<FieldChange> &changes, const QString &stepText) override
    {
        return RecordFields::change(changes, stepText, m_document.editTarget(), *m_document.undoStack());
    }

private:
    ModelDocument<Model> &m_document;
};
