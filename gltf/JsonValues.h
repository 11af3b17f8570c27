// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfNumbers.h"

#include <QVector3D>

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

/// Values of records as JSON and back, floats to the bit; see GltfExtras. fromJson() returns false when the
/// value is of another type or out of range.
namespace JsonValues {
inline quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

inline QJsonValue toJson(float value)
{
    if (std::isfinite(value) && (value != 0.0f || !std::signbit(value)))
        return shortestNumber(value);
    return QStringLiteral("0x%1").arg(bitsOf(value), 8, 16, QLatin1Char('0'));
}

template <typename Integer>
std::enable_if_t<std::is_integral_v<Integer>, QJsonValue> toJson(Integer value)
{
    return int(value);
}

inline QJsonValue toJson(bool value)
{
    return value;
}

inline QJsonValue toJson(const QString &value)
{
    return value;
}

inline QJsonValue toJson(const QVector3D &value)
{
    return QJsonArray{toJson(value.x()), toJson(value.y()), toJson(value.z())};
}

inline bool fromJson(const QJsonValue &json, float &value)
{
    if (json.isDouble()) {
        value = float(json.toDouble());
        return std::isfinite(value);
    }
    const QString text = json.toString();
    bool isHexadecimal = false;
    const quint32 bits = text.mid(2).toUInt(&isHexadecimal, 16);
    if (text.size() != 10 || !text.startsWith(QLatin1String("0x")) || !isHexadecimal)
        return false;
    std::memcpy(&value, &bits, sizeof value);
    return true;
}

template <typename Integer>
std::enable_if_t<std::is_integral_v<Integer>, bool> fromJson(const QJsonValue &json, Integer &value)
{
    const double number = json.toDouble(0.5);
    if (!(number >= double(std::numeric_limits<Integer>::min()) &&
          number <= double(std::numeric_limits<Integer>::max())) ||
        number != std::floor(number))
        return false;
    value = Integer(number);
    return true;
}

inline bool fromJson(const QJsonValue &json, bool &value)
{
    value = json.toBool();
    return json.isBool();
}

inline bool fromJson(const QJsonValue &json, QString &value)
{
    value = json.toString();
    return json.isString();
}

template <typename Value, size_t Count>
QJsonValue toJson(const std::array<Value, Count> &values)
{
    QJsonArray array;
    for (const Value &value : values)
        array.append(toJson(value));
    return array;
}

template <typename Value, size_t Count>
bool fromJson(const QJsonValue &json, std::array<Value, Count> &values)
{
    const QJsonArray array = json.toArray();
    bool fits = size_t(array.size()) == Count;
    for (size_t i = 0; fits && i < Count; ++i)
        fits = fromJson(array.at(int(i)), values[i]);
    return fits;
}

inline bool fromJson(const QJsonValue &json, QVector3D &value)
{
    std::array<float, 3> parts{};
    const bool fits = fromJson(json, parts);
    value = {parts[0], parts[1], parts[2]};
    return fits;
}
} // namespace JsonValues
