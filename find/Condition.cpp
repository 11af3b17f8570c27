// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Condition.h"

#include "ConditionReader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
enum class Truth { No, Yes, Void };
using Test = ConditionProgram::Test;
using Way = ConditionProgram::Way;
using Part = ConditionProgram::Part;

bool isWithin(const Test &test, double number)
{
    return (number > test.first || (!test.isFirstOut && number == test.first)) &&
           (number < test.last || (!test.isLastOut && number == test.last));
}

bool passes(const Test &test, const FieldValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return test.way == Way::SameText
                   ? text->compare(test.text, Qt::CaseInsensitive) == 0
                   : test.way == Way::PartOfText && text->contains(test.text, Qt::CaseInsensitive);
    const double number = std::get<double>(value);
    switch (test.way) {
    case Way::Within:
        return isWithin(test, number);
    case Way::OneOf:
        return std::binary_search(test.numbers.begin(), test.numbers.end(), number);
    case Way::HasBits: {
        const auto bits = qint64(test.first);
        return (qint64(number) & bits) == bits;
    }
    case Way::NotANumber:
        return std::isnan(number);
    default:
        return false;
    }
}

/// The value that a test is about; nothing where the record has none.
FieldValue valueFor(const Test &test, const RecordValues &values, const RecordRef &record)
{
    if (test.meaning.number >= 0)
        return double(record.index[size_t(test.meaning.number)]);
    const RecordField *field = test.meaning.fieldOf(values, record.index);
    return field ? values.value(*field, record.index) : FieldValue();
}

Truth truthOf(const ConditionProgram::Comparison &comparison, const RecordValues &values,
              const RecordRef &record)
{
    Truth truth = Truth::Void;
    for (const Test &test : comparison.tests) {
        if (test.meaning.kind != record.kind)
            continue;
        const FieldValue value = valueFor(test, values, record);
        if (value.index() == 0)
            continue;
        truth = Truth::No;
        if (passes(test, value))
            return comparison.isNegated ? Truth::No : Truth::Yes;
    }
    return truth == Truth::No && comparison.isNegated ? Truth::Yes : truth;
}

Truth both(Truth a, Truth b)
{
    if (a == Truth::Void || b == Truth::Void)
        return Truth::Void;
    return a == Truth::Yes && b == Truth::Yes ? Truth::Yes : Truth::No;
}

Truth either(Truth a, Truth b)
{
    if (a == Truth::Void || b == Truth::Void)
        return a == Truth::Void ? b : a;
    return a == Truth::Yes || b == Truth::Yes ? Truth::Yes : Truth::No;
}
} // namespace

QString Condition::read(const QString &text, const SkinnedMesh *mesh)
{
    m_program.reset();
    ConditionReader reader(text, mesh);
    QString reason = reader.read();
    m_lacksName = reader.lacksName();
    if (reason.isEmpty())
        m_program = std::make_shared<const ConditionProgram>(reader.takeProgram());
    return reason;
}

bool Condition::matches(const RecordValues &values, const RecordRef &record) const
{
    if (!concerns(record.kind))
        return false;
    // What waits is bounded by the parentheses and by the two operands of each precedence.
    std::array<Truth, 4 * ConditionProgram::MostDepth> stack{};
    size_t size = 0;
    for (const ConditionProgram::Step &step : m_program->steps) {
        switch (step.part) {
        case Part::Kinds:
            stack[size++] = step.kinds.contains(record.kind) ? Truth::Yes : Truth::No;
            break;
        case Part::Compare:
            stack[size++] = truthOf(m_program->comparisons[size_t(step.comparison)], values, record);
            break;
        case Part::Not: {
            Truth &truth = stack[size - 1];
            truth = truth == Truth::Void ? truth : truth == Truth::Yes ? Truth::No : Truth::Yes;
            break;
        }
        case Part::And:
            --size;
            stack[size - 1] = both(stack[size - 1], stack[size]);
            break;
        case Part::Or:
            --size;
            stack[size - 1] = either(stack[size - 1], stack[size]);
            break;
        }
    }
    return stack[0] == Truth::Yes;
}

const RecordField *Condition::fieldOf(const RecordValues &values, const RecordRef &record) const
{
    if (isEmpty())
        return nullptr;
    for (const ConditionProgram::Comparison &comparison : m_program->comparisons) {
        const RecordField *first = nullptr;
        for (const Test &test : comparison.tests) {
            const RecordField *field =
                test.meaning.kind == record.kind ? test.meaning.fieldOf(values, record.index) : nullptr;
            if (!field)
                continue;
            if (!first)
                first = field;
            // Of several components the one that is it.
            const FieldValue value = values.value(*field, record.index);
            if (value.index() != 0 && passes(test, value))
                return field;
        }
        if (first)
            return first;
    }
    return nullptr;
}

QString Condition::fieldWord() const
{
    if (isEmpty())
        return {};
    for (const ConditionProgram::Comparison &comparison : m_program->comparisons) {
        if (std::any_of(comparison.tests.begin(), comparison.tests.end(),
                        [](const Test &test) { return test.meaning.number < 0; }))
            return comparison.word;
    }
    return {};
}
