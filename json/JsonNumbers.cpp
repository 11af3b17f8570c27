// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonNumbers.h"

#include <charconv>
#include <cmath>
#include <cstring>

char *JsonNumbers::write(char *to, float value)
{
    if (std::isfinite(value)) {
        char *end = std::to_chars(to, to + MostCharacters, value).ptr;
        // Other programs take -0 for a whole number, which has no sign.
        if (value == 0.0f && std::signbit(value)) {
            *end++ = '.';
            *end++ = '0';
        }
        return end;
    }
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    std::memcpy(to, "\"0x", 3);
    for (int digit = 0; digit < 8; ++digit)
        to[3 + digit] = "0123456789abcdef"[(bits >> (28 - 4 * digit)) & 15U];
    to[11] = '"';
    return to + 12;
}

char *JsonNumbers::write(char *to, qint64 value)
{
    return std::to_chars(to, to + MostCharacters, value).ptr;
}

bool JsonNumbers::read(std::string_view number, float &value)
{
    const char *end = number.data() + number.size();
    const auto [rest, error] = std::from_chars(number.data(), end, value);
    if (error == std::errc())
        return rest == end && std::isfinite(value);
    if (error != std::errc::result_out_of_range)
        return false;
    // Too large or too small, which the library does not tell apart.
    double wide = 0.0;
    const bool isDouble = std::from_chars(number.data(), end, wide).ec == std::errc();
    if (isDouble ? std::abs(wide) >= 1.0
                 : number.find("e-") == number.npos && number.find("E-") == number.npos)
        return false;
    value = isDouble ? float(wide) : number.front() == '-' ? -0.0f : 0.0f;
    return true;
}

bool JsonNumbers::read(std::string_view number, qint64 &value)
{
    const char *end = number.data() + number.size();
    const auto [rest, error] = std::from_chars(number.data(), end, value);
    if (error == std::errc() && rest == end)
        return true;
    double wide = 0.0;
    constexpr double Exact = 9007199254740992.0;
    if (std::from_chars(number.data(), end, wide).ec != std::errc() || std::abs(wide) > Exact ||
        wide != std::floor(wide))
        return false;
    value = qint64(wide);
    return true;
}

bool JsonNumbers::readBits(std::string_view text, float &value)
{
    quint32 bits = 0;
    if (text.size() != 10 || text.substr(0, 2) != "0x")
        return false;
    const auto [rest, error] = std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
    if (error != std::errc() || rest != text.data() + text.size())
        return false;
    std::memcpy(&value, &bits, sizeof value);
    return true;
}
