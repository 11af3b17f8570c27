// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <string_view>

/// Floats as JSON has them, to the bit.
namespace JsonNumbers {
/// More than a float, or a whole number of 64 bits, takes.
constexpr size_t MostCharacters = 32;

/// Writes the shortest text that reads back to the same bits: a number, or for what is infinite or none the
/// string "0x" with the eight hexadecimal digits of its bits. Returns the end of what was written.
char *write(char *to, float value);
char *write(char *to, qint64 value);

/// Reads a number that JSON admits; one too small for a float becomes zero. Returns false for one too large.
[[nodiscard]] bool read(std::string_view number, float &value);
/// The same for a whole number, which may be written as 3.0 or 3e2; false where it is none or beyond 2^53.
[[nodiscard]] bool read(std::string_view number, qint64 &value);
/// Reads what stands between the quotes for bits; false when it is no such text.
[[nodiscard]] bool readBits(std::string_view text, float &value);
} // namespace JsonNumbers
