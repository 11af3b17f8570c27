// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Replacement.h"

#include "Expression.h"
#include "ValueNames.h"

#include <QHash>

namespace {
QString replacing(const char *text)
{
    return QCoreApplication::translate("Replacement", text);
}

class Replacing
{
public:
    Replacing(const RecordValues &values, const RecordWord &word, const QString &typed, const QString &text,
              const SkinnedMesh *mesh)
        : m_values(values)
        , m_word(word)
        , m_typed(typed)
        , m_text(text)
        , m_mesh(mesh)
        , m_reason(m_expression.read(text))
    {}

    /// Adds the change of one record; gives the reason why there is none.
    QString change(const RecordRef &record, int place, Replacement &to)
    {
        const WordMeaning *meaning = nullptr;
        const RecordField *field = nullptr;
        for (const WordMeaning &each : m_word.meanings) {
            const RecordField *its =
                each.kind == record.kind ? each.fieldOf(m_values, record.index) : nullptr;
            if (!its || its == field)
                continue;
            if (field)
                return replacing(
                           QT_TRANSLATE_NOOP("Replacement", "'%1' is several fields: name one of them."))
                    .arg(m_typed);
            field = its;
            meaning = &each;
        }
        if (!field)
            return replacing(QT_TRANSLATE_NOOP("Replacement", "It has no '%1'.")).arg(m_typed);
        const FieldValue old = m_values.value(*field, record.index);
        if (old.index() == 0)
            return replacing(QT_TRANSLATE_NOOP("Replacement", "It does not exist any more."));
        FieldValue value;
        QString reason = valueFor(*meaning, *field, old, place, value);
        if (reason.isEmpty()) {
            to.changes.append({field, record.index, value});
            to.differing += value == old ? 0 : 1;
        }
        return reason;
    }

private:
    QString valueFor(const WordMeaning &meaning, const RecordField &field, const FieldValue &old, int place,
                     FieldValue &value)
    {
        // An expression is read once for all, and what depends on no record is calculated once.
        const bool isNumber = field.type() != RecordField::Type::Text && m_reason.isEmpty();
        if (isNumber && m_expression.isRelative())
            return field.calculate(m_expression, old, place, value);
        const auto known = m_known.constFind(&field);
        if (known != m_known.constEnd()) {
            value = *known;
            return {};
        }
        QString reason = field.parse(m_text, old, place, value);
        if (!reason.isEmpty() && !isNumber) {
            const std::vector<double> called = ValueNames::numbersCalled(meaning, m_text, false, m_mesh);
            if (called.size() == 1) {
                value = called.front();
                reason.clear();
            } else if (called.size() > 1) {
                reason = replacing(QT_TRANSLATE_NOOP("Replacement", "Several things are called '%1'."))
                             .arg(m_text);
            }
        }
        if (reason.isEmpty())
            m_known.insert(&field, value);
        return reason;
    }

    const RecordValues &m_values;
    const RecordWord &m_word;
    const QString m_typed;
    const QString m_text;
    const SkinnedMesh *m_mesh;
    Expression m_expression;
    const QString m_reason; ///< why the text is no expression
    QHash<const RecordField *, FieldValue> m_known;
};
} // namespace

Replacement replacementOf(const RecordValues &values, const std::vector<RecordRef> &records,
                          const QString &word, const QString &text, int place, const SkinnedMesh *mesh)
{
    Replacement made;
    const RecordWord *found = RecordWords::find(word);
    if (!found || found->meanings.empty()) {
        made.reason = word.trimmed().isEmpty()
                          ? replacing(QT_TRANSLATE_NOOP("Replacement", "The field to replace is missing."))
                          : replacing(QT_TRANSLATE_NOOP("Replacement", "'%1' is no field.")).arg(word);
        return made;
    }
    Replacing replacing(values, *found, word, text, mesh);
    made.changes.reserve(int(records.size()));
    for (const RecordRef &record : records) {
        made.reason = replacing.change(record, place++, made);
        if (!made.reason.isEmpty()) {
            made.refusing = record;
            made.changes.clear();
            made.differing = 0;
            break;
        }
    }
    return made;
}
