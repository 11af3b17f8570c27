// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FieldWords.h"

#include "Fields.h"
#include "JsonReader.h"
#include "NameTables.h"
#include "NumberText.h"
#include "RecordFields.h"

namespace {
const RecordField *fieldOf(RecordKind kind, const QString &key)
{
    const QVector<const RecordField *> &fields = RecordFields::of(kind);
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&key](const RecordField *field) { return field->id() == key; });
    return found == fields.end() ? nullptr : *found;
}

/// Those that no field of a page has, or several share.
QString wordOf(const QString &key)
{
    static const struct
    {
        const char *key;
        const char *word;
    } words[] = {
        {"version", QT_TRANSLATE_NOOP("FieldWords", "Version")},
        {"unknownA", QT_TRANSLATE_NOOP("FieldWords", "Header Value 1")},
        {"unknownB", QT_TRANSLATE_NOOP("FieldWords", "Header Value 2")},
        {"childBones", QT_TRANSLATE_NOOP("FieldWords", "Child Bones")},
        {"symbol", QT_TRANSLATE_NOOP("FieldWords", "Symbol")},
        {"triangles", QT_TRANSLATE_NOOP("FieldWords", "Triangles")},
        {"yaw", QT_TRANSLATE_NOOP("FieldWords", "Yaw Offsets")},
        {"args", QT_TRANSLATE_NOOP("FieldWords", "Arguments")},
        {"blocks", QT_TRANSLATE_NOOP("FieldWords", "Animations")},
    };
    for (const auto &each : words) {
        if (key == QLatin1String(each.key))
            return QCoreApplication::translate("FieldWords", each.word);
    }
    return key;
}

QString symbolText(qint8 flags)
{
    const BoneSymbol symbol = boneSymbol(flags);
    const QStringList words{boneTypeNames().value(symbol.type), Fields::sides().value(symbol.side),
                            bonePartNames(symbol.type).value(symbol.part)};
    return words.join(QStringLiteral(", "));
}

/// A number or a text as JSON has it, as an editor shows it.
QString plainText(const QString &json)
{
    const QByteArray bytes = json.toUtf8();
    JsonReader reader({bytes.constData(), size_t(bytes.size())});
    if (json.startsWith(QLatin1Char('"')) && !json.startsWith(QLatin1String("\"0x"))) {
        QString text;
        reader.read(JsonField{}, text);
        return reader.failed() ? json : text;
    }
    bool isWhole = false;
    json.toLongLong(&isWhole);
    float number = 0.0f;
    if (!isWhole)
        reader.read(JsonField{}, number);
    reader.expectEnd();
    return isWhole || reader.failed() ? json : NumberText::text(number);
}

QString valueText(const RecordField *field, const QString &key, const QString &json)
{
    if (json.startsWith(QLatin1Char('[')) && json.endsWith(QLatin1Char(']'))) {
        QStringList parts = json.mid(1, json.size() - 2).split(QStringLiteral(", "));
        for (QString &part : parts)
            part = plainText(part);
        return parts.join(QStringLiteral(", "));
    }
    bool isWhole = false;
    const int number = json.toInt(&isWhole);
    if (isWhole && key == QLatin1String("symbol"))
        return symbolText(qint8(number));
    if (isWhole && field && field->isFlags())
        return QStringLiteral("0x%1").arg(quint32(number), 8, 16, QLatin1Char('0'));
    const QString name = isWhole && field ? field->names().value(number) : QString();
    return name.isEmpty() ? plainText(json) : name;
}
} // namespace

QString FieldWords::title(RecordKind kind, const QString &key)
{
    if (const RecordField *field = fieldOf(kind, key))
        return field->title();
    if (const RecordField *first = fieldOf(kind, key + QLatin1String(".x")))
        return first->title().chopped(2); // of a vector, without its letter
    return wordOf(key);
}

QPair<QString, QString> FieldWords::values(RecordKind kind, const FieldDifference &difference)
{
    const RecordField *field = fieldOf(kind, difference.field);
    const QString mine = valueText(field, difference.field, difference.mine);
    const QString theirs = valueText(field, difference.field, difference.theirs);
    return mine == theirs ? qMakePair(difference.mine, difference.theirs) : qMakePair(mine, theirs);
}
