// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTips.h"

#include "DocumentModel.h"
#include "RecordNotes.h"
#include "RecordTexts.h"

#include <QCoreApplication>

namespace {
constexpr int LongestValue = 80; ///< characters

struct TipTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordTips)
};

/// What the number of a field stands for: a choice, a bone, or what a table has for an id; see ModelField.
QString nameOfNumber(const Document &document, const RecordField &field, const RecordIndex &index,
                     double number)
{
    if (!field.names().isEmpty())
        return field.names().value(int(number));
    return document.values().name(field, index, document.namedMesh());
}

/// A field's value with what it is called: "12: Left Upper Arm", "310 (roar)".
QString valueText(const Document &document, const RecordField &field, const RecordIndex &index)
{
    const FieldValue value = document.values().value(field, index);
    QString text = field.text(value);
    if (const auto *number = std::get_if<double>(&value)) {
        const bool isSwitch = field.type() == RecordField::Type::Switch;
        const QString name = isSwitch ? QString() : nameOfNumber(document, field, index, *number);
        if (isSwitch)
            text = *number != 0 ? TipTexts::tr("yes") : TipTexts::tr("no");
        else if (name.startsWith(text + QLatin1Char(':')))
            text = name;
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
