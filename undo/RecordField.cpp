// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordField.h"

#include "EventArguments.h"
#include "Expression.h"
#include "ModelNames.h"
#include "NumberText.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
/// Whether the mesh's bones are those that numbers of a model stand for.
bool hasBonesOf(const SkinnedMesh &, const RecordIndex &, const SkinnedMesh &)
{
    return true;
}

bool hasBonesOf(const AnimFile &file, const RecordIndex &index, const SkinnedMesh &mesh)
{
    const AnimBlock *block = Records::Block::find(file, index);
    return block && block->nodes.size() == mesh.nodes.size();
}

bool hasBonesOf(const StaticMesh &, const RecordIndex &, const SkinnedMesh &)
{
    return false;
}
} // namespace

QString RecordField::text(const FieldValue &value) const
{
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    const auto *number = std::get_if<double>(&value);
    if (!number)
        return {};
    return m_type == Type::Real ? NumberText::text(float(*number)) : QString::number(qint64(*number));
}

QString RecordField::parse(const QString &text, const FieldValue &old, int place, FieldValue &value) const
{
    if (m_type == Type::Text) {
        const auto *other = std::find_if(text.begin(), text.end(),
                                         [](QChar c) { return c.unicode() < 1 || c.unicode() > 0xff; });
        if (m_isLatin1 && other != text.end())
            return QCoreApplication::translate(
                       "RecordFields", "The file format cannot hold '%1': only characters of Latin-1.")
                .arg(*other);
        value = text;
        return textRefusal(text);
    }
    float plain = 0.0f;
    if (m_type == Type::Real && NumberText::parse(text, plain)) {
        value = double(plain);
        return {};
    }
    const int named = names().indexOf(text.trimmed());
    if (named >= 0) {
        value = double(named);
        return {};
    }
    Expression expression;
    const QString reason = expression.read(text);
    return reason.isEmpty() ? calculate(expression, old, place, value) : reason;
}

QString RecordField::calculate(const Expression &expression, const FieldValue &old, int place,
                               FieldValue &value) const
{
    const auto *number = std::get_if<double>(&old);
    const double x = !number ? 0.0 : m_type == Type::Real ? NumberText::written(float(*number)) : *number;
    double result = 0.0;
    const QString reason = m_range.fit(expression.value({x, double(place), m_degree}), result);
    if (reason.isEmpty())
        value = result;
    return reason;
}

template <typename Model>
QString ModelField<Model>::name(const Model &model, const RecordIndex &index, const SkinnedMesh *names) const
{
    const FieldValue held = value(model, index);
    const auto *number = std::get_if<double>(&held);
    if (!number)
        return {};
    switch (m_naming) {
    case Naming::Bone:
    case Naming::ParentBone:
    case Naming::ActionBone:
        return names && hasBonesOf(model, index, *names) ? boneTitle(*names, int(*number)) : QString();
    case Naming::Animation:
        if (names)
            return animationName(*names, qint32(*number));
        break;
    default:
        break;
    }
    return numberName(question(model, index), *number);
}

template class ModelField<SkinnedMesh>;
template class ModelField<AnimFile>;
template class ModelField<StaticMesh>;
