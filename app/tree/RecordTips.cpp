// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTips.h"

#include "DocumentModel.h"
#include "EventArguments.h"
#include "NameTables.h"
#include "RecordNotes.h"
#include "RecordTexts.h"
#include "ReferenceTables.h"

#include <QCoreApplication>

namespace {
constexpr int NoId = 0xFFFF;     ///< what 16-bit numbers hold for "none"
constexpr int LongestValue = 80; ///< characters

struct TipTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordTips)
};

/// What a field's number is called: a choice, a bone, or what a table has for an id. Empty without a name.
QString valueName(const Document &document, const RecordField &field, const RecordIndex &index, double value)
{
    const QString &id = field.id();
    const int number = value >= -1 && value <= NoId ? int(value) : -1;
    if (field.type() != RecordField::Type::Switch && !field.names().isEmpty())
        return field.names().value(number);
    if (document.kind().type == DocumentType::SkinnedMesh) {
        const auto &mesh = modelOf<SkinnedMesh>(document);
        if (id == QLatin1String("bone") || id == QLatin1String("parent") ||
            id == QLatin1String("headTrackStart") || id == QLatin1String("headTrackEnd"))
            return calledBone(mesh, number);
        const SkinnedMeshHotPoint *point =
            field.kind() == RecordKind::HotPoint ? Records::HotPoint::find(mesh, index) : nullptr;
        const bool isParticle = point && point->particleEffect1 != NoId &&
                                id.startsWith(QLatin1String("effect")) && number != NoId;
        return isParticle ? ReferenceTables::shared().name(ReferenceKind::Particles, number) : QString();
    }
    if (document.kind().type != DocumentType::Anim)
        return {};
    const auto &file = modelOf<AnimFile>(document);
    const SkinnedMesh *mesh = document.namingMesh();
    if (id == QLatin1String("animId"))
        return animationName(mesh ? *mesh : SkinnedMesh(), int(value));
    const AnimAction *action =
        field.kind() == RecordKind::AnimAction ? Records::BlockAction::find(file, index) : nullptr;
    if (action && id == QLatin1String("bone") && number != NoId)
        return calledBone(file.blocks[size_t(index[0])], mesh, number);
    const int argument = action && id.startsWith(QLatin1String("arg")) ? id.midRef(3).toInt() - 1 : -1;
    return argument >= 0 ? argumentName(action->eventType, argument, float(value)) : QString();
}

/// A field's value with what it is called: "12 (Left Upper Arm)".
QString valueText(const Document &document, const RecordField &field, const RecordIndex &index)
{
    const FieldValue value = fieldValue(document, field, index);
    QString text = field.text(value);
    if (const auto *number = std::get_if<double>(&value)) {
        const QString name = valueName(document, field, index, *number);
        if (field.type() == RecordField::Type::Switch)
            text = *number != 0 ? TipTexts::tr("yes") : TipTexts::tr("no");
        else if (!name.isEmpty())
            text += QStringLiteral(" (%1)").arg(name);
    }
    return text.size() > LongestValue ? text.left(LongestValue - 1) + QChar(0x2026) : text;
}

/// What a page calls the field; a vector's without its component, arguments as their event means them.
QString titleOf(const Document &document, const RecordField &field, const RecordIndex &index)
{
    const QString title = field.title();
    if (field.id().contains(QLatin1Char('.')))
        return title.section(QLatin1Char(' '), 0, -2);
    if (field.kind() != RecordKind::AnimAction || !field.id().startsWith(QLatin1String("arg")))
        return title;
    const AnimAction *action = Records::BlockAction::find(modelOf<AnimFile>(document), index);
    const QString label =
        action ? eventArgumentLabel(action->eventType, field.id().midRef(3).toInt() - 1) : QString();
    return label.isEmpty() ? title : label;
}
} // namespace

QString recordToolTip(const Document &document, const RecordRef &record)
{
    QVector<std::pair<QString, QString>> lines;
    QString vector;
    for (const RecordField *field : RecordFields::of(record.kind)) {
        const QString value = valueText(document, *field, record.index);
        if (value.isEmpty())
            continue;
        const QString owner =
            field->id().contains(QLatin1Char('.')) ? field->id().section(QLatin1Char('.'), 0, 0) : QString();
        if (!owner.isEmpty() && owner == vector)
            lines.last().second += QLatin1String(", ") + value;
        else
            lines.append({titleOf(document, *field, record.index), value});
        vector = owner;
    }
    if (lines.isEmpty())
        return {};
    QString text = QStringLiteral("<p style='white-space:pre'><b>%1</b></p><table>")
                       .arg(recordLabel(document, record).toHtmlEscaped());
    for (const auto &[title, value] : qAsConst(lines))
        text += QStringLiteral("<tr><td style='white-space:pre'>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                    .arg(title.toHtmlEscaped(), value.toHtmlEscaped());
    return text + QLatin1String("</table>");
}
