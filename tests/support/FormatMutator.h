// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "LiteralFormat.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

/// Makes files of the three binary formats as no program writes them: fields, counts, indexes and numbers at
/// the borders of their types and of what the file holds, scalars too many or too few, files cut or too long.
/// The same seed makes the same file.
class FormatMutator
{
public:
    explicit FormatMutator(quint64 seed)
        : m_engine(seed)
    {}

    /// `suffix` is that of the file: "skinnedmesh", "anim" or "staticmesh".
    QByteArray mutated(const QString &suffix, QByteArray bytes)
    {
        // With its counts as they are a file can mostly be read, so it gets more to say.
        const bool keepsCounts = below(2) == 0;
        for (int changes = 1 + below(keepsCounts ? 12 : 3); changes > 0; --changes)
            change(suffix, bytes, keepsCounts);
        return bytes;
    }

private:
    using Scalar = LiteralFormat::Scalar;
    static constexpr int AnyField = 4;

    void change(const QString &suffix, QByteArray &bytes, bool keepsCounts)
    {
        const LiteralFormat literal(suffix, bytes);
        const QVector<Scalar> scalars = literal.scalars();
        const int kind = keepsCounts ? AnyField : below(20);
        if (scalars.isEmpty() || kind == 0) {
            bytes.append(QByteArray(1 + below(64), char(below(256))));
        } else if (kind == 1) {
            bytes.truncate(scalars.at(below(scalars.size())).offset);
        } else if (kind == 2) {
            const Scalar &twice = scalars.at(below(scalars.size()));
            bytes.insert(twice.offset, bytes.mid(twice.offset, twice.width));
        } else if (kind == 3) {
            const Scalar &gone = scalars.at(below(scalars.size()));
            bytes.remove(gone.offset, gone.width);
        } else {
            const Scalar chosen = choose(literal.counts(), scalars, keepsCounts);
            const quint32 value = chosen.type[0] == 'f' ? number() : integer(bytes, chosen);
            for (int i = 0; i < chosen.width; ++i)
                bytes[chosen.offset + i] = char(value >> (8 * i));
        }
    }

    /// Floats are by far the most, so the type is chosen first; and counts lead the furthest.
    Scalar choose(const QVector<LiteralFormat::Count> &counts, const QVector<Scalar> &scalars,
                  bool keepsCounts)
    {
        if (!keepsCounts && !counts.isEmpty() && below(100) < 35)
            return {"int32", counts.at(below(counts.size())).offset, 4};
        const char *const types[] = {"int32", "uint16", "uint16", "int8", "uint8", "float"};
        const char *type = types[below(6)];
        const auto isCount = [&counts](const Scalar &scalar) {
            return std::any_of(counts.begin(), counts.end(),
                               [&scalar](const auto &count) { return count.offset == scalar.offset; });
        };
        QVector<Scalar> found;
        for (const Scalar &each : scalars) {
            if (std::strcmp(each.type, type) == 0 && !(keepsCounts && isCount(each)))
                found.append(each);
        }
        return found.isEmpty() ? scalars.at(below(scalars.size())) : found.at(below(found.size()));
    }

    quint32 integer(const QByteArray &bytes, const Scalar &scalar)
    {
        quint32 old = 0;
        for (int i = 0; i < scalar.width; ++i)
            old |= quint32(quint8(bytes.at(scalar.offset + i))) << (8 * i);
        const quint32 top = 1U << (8 * scalar.width - 1);
        const quint32 borders[] = {0,
                                   1,
                                   2,
                                   old + 1,
                                   old - 1,
                                   2 * old,
                                   top - 1,
                                   top,
                                   top + 1,
                                   ~0U,
                                   ~0U - 1,
                                   127,
                                   128,
                                   255,
                                   256,
                                   65535,
                                   65536,
                                   65537,
                                   quint32(bytes.size())};
        return borders[below(int(std::size(borders)))];
    }

    quint32 number()
    {
        using Limits = std::numeric_limits<float>;
        const float borders[] = {0.0f,
                                 -0.0f,
                                 1.0f,
                                 -1.0f,
                                 1.0e-30f,
                                 65536.0f,
                                 1.0e18f,
                                 Limits::denorm_min(),
                                 Limits::min(),
                                 Limits::epsilon(),
                                 Limits::max(),
                                 Limits::lowest(),
                                 Limits::infinity(),
                                 -Limits::infinity(),
                                 Limits::quiet_NaN()};
        quint32 bits = 0;
        const float border = borders[below(int(std::size(borders)))];
        std::memcpy(&bits, &border, sizeof bits);
        // A NaN may carry anything.
        return std::isnan(border) ? bits | quint32(below(1 << 20)) : bits;
    }

    int below(int count) { return int(m_engine() % quint64(count)); }

    std::mt19937_64 m_engine;
};
