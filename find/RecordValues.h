// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFields.h"

/// The records of a model, whatever its kind, to be looked at in any thread.
class RecordValues
{
public:
    virtual ~RecordValues() = default;

    /// Nothing for a record that does not exist.
    virtual FieldValue value(const RecordField &field, const RecordIndex &index) const = 0;
    /// See ModelField::name().
    virtual QString name(const RecordField &field, const RecordIndex &index,
                         const SkinnedMesh *names) const = 0;
    /// As recordCount().
    virtual int count(RecordKind kind, const RecordIndex &owner) const = 0;
};

template <typename Model>
class ModelValues final : public RecordValues
{
public:
    /// The model outlives this.
    explicit ModelValues(const Model &model)
        : m_model(model)
    {}

    FieldValue value(const RecordField &field, const RecordIndex &index) const override
    {
        return static_cast<const ModelField<Model> &>(field).value(m_model, index);
    }
    QString name(const RecordField &field, const RecordIndex &index, const SkinnedMesh *names) const override
    {
        return static_cast<const ModelField<Model> &>(field).name(m_model, index, names);
    }
    int count(RecordKind kind, const RecordIndex &owner) const override
    {
        return recordCount(m_model, kind, owner);
    }

private:
    const Model &m_model;
};
