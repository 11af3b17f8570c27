// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonFields.h"
#include "ModelJson.h"
#include "ModelNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using Object = QJsonObject;

Object listOf(const QJsonValue &items)
{
    return {{QStringLiteral("type"), QStringLiteral("array")}, {QStringLiteral("items"), items}};
}

Object integerBetween(qint64 least, qint64 most)
{
    return {{QStringLiteral("type"), QStringLiteral("integer")},
            {QStringLiteral("minimum"), double(least)},
            {QStringLiteral("maximum"), double(most)}};
}

Object definition(const QString &name)
{
    return {{QStringLiteral("$ref"), QStringLiteral("#/$defs/") + name}};
}

/// What the values of a field's type look like.
class SchemaWriter
{
public:
    Object definitions;

    template <typename Integer>
    std::enable_if_t<std::is_integral_v<Integer>, Object> of(const JsonField &, const Integer &)
    {
        return integerBetween(std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max());
    }
    Object of(const JsonField &, const float &)
    {
        const QString name = QStringLiteral("float");
        definitions[name] =
            Object{{QStringLiteral("description"),
                    QStringLiteral(
                        "a number of 32 bits; where it is infinite or none, its bits in hexadecimal digits")},
                   {QStringLiteral("anyOf"),
                    QJsonArray{Object{{QStringLiteral("type"), QStringLiteral("number")}},
                               Object{{QStringLiteral("type"), QStringLiteral("string")},
                                      {QStringLiteral("pattern"), QStringLiteral("^0x[0-9a-fA-F]{8}$")}}}}};
        return definition(name);
    }
    Object of(const JsonField &, const QString &)
    {
        return {{QStringLiteral("type"), QStringLiteral("string")},
                {QStringLiteral("pattern"), QStringLiteral("^[\\x01-\\xff]*$")}};
    }
    Object of(const JsonField &, const QMap<int, QString> &)
    {
        return {{QStringLiteral("type"), QStringLiteral("object")},
                {QStringLiteral("propertyNames"),
                 Object{{QStringLiteral("pattern"), QStringLiteral("^(0|-?[1-9][0-9]*)$")}}},
                {QStringLiteral("additionalProperties"),
                 Object{{QStringLiteral("type"), QStringLiteral("string")},
                        {QStringLiteral("minLength"), 1},
                        {QStringLiteral("maxLength"), ModelNames::LongestName}}}};
    }
    template <typename Value>
    std::enable_if_t<(JsonFloats<Value>::count > 0), Object> of(const JsonField &field, const Value &)
    {
        Object list = listOf(of(field, 0.0f));
        list[QStringLiteral("minItems")] = list[QStringLiteral("maxItems")] = int(JsonFloats<Value>::count);
        return list;
    }
    Object of(const JsonField &field, const std::vector<quint16> &)
    {
        return listOf(integerBetween(0, field.most >= 0 ? field.most : std::numeric_limits<quint16>::max()));
    }
    Object of(const JsonField &field, const std::vector<AnimFrame> &) { return listOf(of(field, 0.0f)); }
    template <typename Key>
    Object of(const JsonField &field, const TrackTable<Key> &)
    {
        return listOf(listOf(of(field, Key())));
    }
    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0), Object> of(const JsonField &field,
                                                                  const std::vector<Record> &)
    {
        definitions[QLatin1String(field.key)] = record(Record());
        return listOf(definition(QLatin1String(field.key)));
    }

    template <typename Record>
    Object record(const Record &record)
    {
        Object properties;
        QJsonArray keys;
        const auto add = [&](const JsonField &field, const auto &value) {
            Object type = of(field, value);
            type[QStringLiteral("description")] = QLatin1String(field.about);
            properties[QLatin1String(field.key)] = type;
            keys += QLatin1String(field.key);
        };
        JsonFields<Record>::visit(add, record);
        return {{QStringLiteral("type"), QStringLiteral("object")},
                {QStringLiteral("title"), QLatin1String(JsonFields<Record>::name)},
                {QStringLiteral("properties"), properties},
                {QStringLiteral("required"), keys},
                {QStringLiteral("additionalProperties"), false}};
    }
};

template <typename Model>
QByteArray schemaOf()
{
    SchemaWriter writer;
    Object root = writer.record(Model());
    root[QStringLiteral("$schema")] = QStringLiteral("https://json-schema.org/draft/2020-12/schema");
    Object properties = root[QStringLiteral("properties")].toObject();
    properties[QStringLiteral("kind")] =
        Object{{QStringLiteral("const"), QLatin1String(JsonFields<Model>::kind)}};
    properties[QStringLiteral("schema")] = Object{{QStringLiteral("const"), ModelJson::Schema}};
    properties[QStringLiteral("$schema")] = Object{{QStringLiteral("type"), QStringLiteral("string")}};
    properties[QStringLiteral("behind")] =
        Object{{QStringLiteral("type"), QStringLiteral("string")},
               {QStringLiteral("pattern"), QStringLiteral("^([0-9a-fA-F]{2})*$")},
               {QStringLiteral("description"),
                QStringLiteral("bytes behind the last record, which no record owns")}};
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        Object names = writer.record(JsonNames());
        names[QStringLiteral("description")] =
            QStringLiteral("what stands beside the model in its file of names");
        properties[QStringLiteral("names")] = names;
    }
    root[QStringLiteral("properties")] = properties;
    QJsonArray required = root[QStringLiteral("required")].toArray();
    required += QStringLiteral("kind");
    required += QStringLiteral("schema");
    root[QStringLiteral("required")] = required;
    root[QStringLiteral("$defs")] = writer.definitions;
    return QJsonDocument(root).toJson();
}
} // namespace

QByteArray ModelJson::schema(const QString &kind)
{
    if (kind == QLatin1String(JsonFields<SkinnedMesh>::kind))
        return schemaOf<SkinnedMesh>();
    if (kind == QLatin1String(JsonFields<AnimFile>::kind))
        return schemaOf<AnimFile>();
    return schemaOf<StaticMesh>();
}
