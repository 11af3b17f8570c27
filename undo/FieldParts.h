// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AxisAngle.h"

#include <QVector4D>

#include <array>
#include <cmath>
#include <type_traits>

/// The parts of a field that one editor, or one column, may stand for: read out of a field's value, and put
/// into one with everything else of it kept.
namespace Parts {

struct WholeField
{
    template <typename Value>
    Value get(const Value &value) const
    {
        return value;
    }
    template <typename Value>
    void set(Value &value, const Value &part) const
    {
        value = part;
    }
};

template <typename>
struct IsArray : std::false_type
{};
template <typename Element, size_t Size>
struct IsArray<std::array<Element, Size>> : std::true_type
{};

/// One component of a vector, or one element of an array.
struct Component
{
    int index;

    template <typename Vector>
    auto get(const Vector &vector) const
    {
        return element(vector);
    }
    template <typename Vector, typename Part>
    void set(Vector &vector, Part part) const
    {
        element(vector) = part;
    }

private:
    template <typename Vector>
    decltype(auto) element(Vector &vector) const
    {
        if constexpr (IsArray<std::remove_const_t<Vector>>::value)
            return vector[size_t(index)];
        else
            return vector[index];
    }
};

/// Some bits of a signed byte.
struct Bits
{
    int shift;
    int width;

    int get(qint8 value) const { return quint8(value) >> shift & mask(); }
    void set(qint8 &value, int part) const
    {
        value = qint8((quint8(value) & ~(mask() << shift)) | (part & mask()) << shift);
    }

private:
    int mask() const { return (1 << width) - 1; }
};

/// The bits of a flags field that an edit is about.
struct MaskedBits
{
    qint32 mask;

    qint32 get(qint32 value) const { return value & mask; }
    void set(qint32 &value, qint32 part) const { value = (value & ~mask) | (part & mask); }
};

/// Whether the pair of effects of a hot point stands for damage. Effect 1 is lost to the mark; undo brings it
/// back.
struct DamageMark
{
    static constexpr quint16 Marked = 0xFFFF;

    bool get(const std::array<quint16, 2> &effects) const { return effects[0] == Marked; }
    void set(std::array<quint16, 2> &effects, bool on) const { effects[0] = on ? Marked : quint16(0); }
};

/// The angle of a rotation in degrees, its axis kept; the result is of length 1.
struct RotationAngle
{
    float get(const QVector4D &key) const
    {
        // A key's floats hold angles to some millionths of a degree: what is typed is to be read again.
        return float(std::round(double(axisAngle(key).degrees) * 1e4) / 1e4);
    }
    void set(QVector4D &key, float degrees) const { key = quaternion({axisAngle(key).axis, degrees}); }
};

inline constexpr WholeField Whole;

} // namespace Parts
