// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Expression.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {
QString because(const char *reason, const QString &what = {})
{
    const QString text = QCoreApplication::translate("Expression", reason);
    return what.isNull() ? text : text.arg(what);
}
} // namespace

/// Reads by descent, one function a level of precedence.
class Expression::Reader
{
public:
    Reader(const QString &text, std::vector<Step> &steps)
        // What ends a text for peek() stands for its end alone.
        : m_text(text.trimmed().toLatin1().toLower().replace(',', '.').replace('\0', '?'))
        , m_source(text.trimmed())
        , m_steps(steps)
    {}

    void read()
    {
        if (m_source.size() > MostCharacters)
            return fail(because(QT_TRANSLATE_NOOP("Expression", "That is too long for a calculation.")));
        const char first = peek();
        m_incomplete = m_text.size() == 1 && operation(first);
        const bool changes = m_place + 1 < m_text.size() && m_text[m_place + 1] == '=' && operation(first);
        if (changes) {
            m_place += 2;
            add(Part::X);
            sum();
            add(*partOf(first));
        } else {
            if (first == '=')
                ++m_place;
            sum();
        }
        if (m_reason.isEmpty() && peek() != '\0')
            failHere();
    }

    const QString &reason() const { return m_reason; }
    bool isIncomplete() const { return m_incomplete; }
    bool isRelative() const { return m_relative; }

private:
    static const Part *partOf(char sign)
    {
        static constexpr Part parts[] = {Part::Add, Part::Subtract, Part::Multiply, Part::Divide};
        constexpr std::array<char, 4> signs{'+', '-', '*', '/'};
        for (size_t i = 0; i < signs.size(); ++i) {
            if (signs[i] == sign)
                return &parts[i];
        }
        return nullptr;
    }
    static bool operation(char sign) { return partOf(sign); }

    void sum()
    {
        product();
        while (m_reason.isEmpty() && (peek() == '+' || peek() == '-')) {
            const Part part = *partOf(m_text[m_place++]);
            product();
            add(part);
        }
    }

    void product()
    {
        factor();
        while (m_reason.isEmpty() && (peek() == '*' || peek() == '/')) {
            const Part part = *partOf(m_text[m_place++]);
            factor();
            add(part);
        }
    }

    void factor()
    {
        if (++m_depth > MostDepth)
            return fail(because(QT_TRANSLATE_NOOP("Expression", "That has too many parentheses or signs.")));
        const char next = peek();
        if (next == '-' || next == '+') {
            ++m_place;
            factor();
            if (next == '-')
                add(Part::Negate);
        } else {
            operand();
            if (m_reason.isEmpty() && takeName("deg"))
                add(Part::Degrees);
        }
        --m_depth;
    }

    void operand()
    {
        const char next = peek();
        if (next == '(') {
            ++m_place;
            sum();
            if (!m_reason.isEmpty())
                return;
            if (peek() == '\0')
                return failAtEnd(because(QT_TRANSLATE_NOOP("Expression", "A parenthesis is not closed.")));
            if (m_text[m_place] != ')')
                return failHere();
            ++m_place;
        } else if ((next >= '0' && next <= '9') || next == '.') {
            number();
        } else if (takeName("pi")) {
            add(Part::Number, Pi);
        } else if (takeName("x") || takeName("i")) {
            m_relative = true;
            add(m_text[m_place - 1] == 'x' ? Part::X : Part::I);
        } else if (next == '\0') {
            failAtEnd(because(QT_TRANSLATE_NOOP("Expression", "Something is missing at the end.")));
        } else {
            failHere();
        }
    }

    void number()
    {
        const char *begin = m_text.constData() + m_place;
        const char *end = m_text.constData() + m_text.size();
        const bool isHexadecimal = end - begin > 1 && begin[0] == '0' && begin[1] == 'x';
        double value = 0.0;
        std::from_chars_result result{begin, std::errc()};
        if (isHexadecimal) {
            quint64 bits = 0;
            result = std::from_chars(begin + 2, end, bits, 16);
            value = double(bits);
            if (begin + 2 == end)
                return failAtEnd(
                    because(QT_TRANSLATE_NOOP("Expression", "Something is missing at the end.")));
        } else {
            result = std::from_chars(begin, end, value);
        }
        if (result.ec == std::errc::result_out_of_range)
            return fail(
                because(QT_TRANSLATE_NOOP("Expression", "A number in it is too large or too small.")));
        if (result.ec != std::errc())
            return end - begin == 1
                       ? failAtEnd(
                             because(QT_TRANSLATE_NOOP("Expression", "Something is missing at the end.")))
                       : failHere();
        m_place = int(result.ptr - m_text.constData());
        add(Part::Number, value);
    }

    /// A name that no other letter follows. One that has begun at the end may go on.
    bool takeName(const char *name)
    {
        peek();
        const QByteArray rest = m_text.mid(m_place);
        const QByteArray wanted(name);
        if (rest.startsWith(wanted)) {
            const char behind = rest.size() > wanted.size() ? rest[wanted.size()] : '\0';
            if ((behind >= 'a' && behind <= 'z') || (behind >= '0' && behind <= '9'))
                return false;
            m_place += wanted.size();
            return true;
        }
        m_incomplete |= !rest.isEmpty() && wanted.startsWith(rest);
        return false;
    }

    void add(Part part, double number = 0.0)
    {
        m_relative |= part == Part::X || part == Part::I;
        if (m_reason.isEmpty())
            m_steps.push_back({part, number});
    }

    /// The next character that is no blank; 0 at the end.
    char peek()
    {
        while (m_place < m_text.size() && (m_text[m_place] == ' ' || m_text[m_place] == '\t'))
            ++m_place;
        return m_place < m_text.size() ? m_text[m_place] : '\0';
    }

    void fail(const QString &reason)
    {
        if (m_reason.isEmpty())
            m_reason = reason;
    }
    void failAtEnd(const QString &reason)
    {
        m_incomplete = true;
        fail(reason);
    }
    void failHere()
    {
        // An exponent that is being typed.
        const QByteArray rest = m_text.mid(m_place);
        m_incomplete |= rest == "e" || rest == "e-" || rest == "e+";
        fail(because(QT_TRANSLATE_NOOP("Expression", "'%1' is not understood."), m_source.mid(m_place)));
    }

    const QByteArray m_text;
    const QString m_source;
    std::vector<Step> &m_steps;
    QString m_reason;
    int m_place = 0;
    int m_depth = 0;
    bool m_incomplete = false;
    bool m_relative = false;
};

bool Expression::isPlain(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral("^\\s*[+-]?[0-9.,]*([eE][+-]?[0-9]*)?\\s*$"));
    return plain.match(text).hasMatch();
}

QString Expression::read(const QString &text)
{
    m_steps.clear();
    Reader reader(text, m_steps);
    reader.read();
    const bool isRead = reader.reason().isEmpty();
    if (!isRead)
        m_steps.clear();
    m_incomplete = !isRead && reader.isIncomplete();
    m_relative = isRead && reader.isRelative();
    return reader.reason();
}

double Expression::value(const Names &names) const
{
    // No step before which fewer operands stand than it takes is ever read; what waits is bounded by the
    // parentheses and by the two operands of each precedence.
    std::array<double, 4 * MostDepth> stack{};
    size_t size = 0;
    const auto two = [&](auto operation) {
        --size;
        stack[size - 1] = operation(stack[size - 1], stack[size]);
    };
    for (const Step &step : m_steps) {
        switch (step.part) {
        case Part::Number:
            stack[size++] = step.number;
            break;
        case Part::X:
            stack[size++] = names.x;
            break;
        case Part::I:
            stack[size++] = names.i;
            break;
        case Part::Degrees:
            stack[size - 1] *= names.degree;
            break;
        case Part::Negate:
            stack[size - 1] = -stack[size - 1];
            break;
        case Part::Add:
            two([](double a, double b) { return a + b; });
            break;
        case Part::Subtract:
            two([](double a, double b) { return a - b; });
            break;
        case Part::Multiply:
            two([](double a, double b) { return a * b; });
            break;
        case Part::Divide:
            two([](double a, double b) { return a / b; });
            break;
        }
    }
    return stack[0];
}

bool Expression::whole(double result, qint64 &number)
{
    // Up to where all whole numbers have a double; the noise of some dozen operations.
    constexpr double largest = 9007199254740992.0;
    if (!(std::fabs(result) <= largest))
        return false;
    const double nearest = std::round(result);
    if (std::fabs(result - nearest) > std::min(1e-9 * std::max(1.0, std::fabs(result)), 1e-6))
        return false;
    number = qint64(nearest);
    return true;
}
