// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

/// The text of a crash report, around what the system says of the crash. It touches nothing but plain memory
/// of a fixed place that was filled beforehand: in a program that has crashed nothing may be allocated,
/// locked or formatted by a library.
class CrashText
{
public:
    virtual ~CrashText() = default;
    // Beforehand.
    static void prepare(const char *lineEnd);
    static void setGraphics(const QString &text);
    static void addLine(const QString &text);

    void put(const char *text);
    void putHexadecimal(std::uintptr_t number);
    void putLineEnd();

    /// Versions and graphics, up to the words that are followed by what ended the program.
    void putBegin();
    void putStackTitle();
    void putLastLines();

private:
    virtual void write(const char *bytes, std::size_t size) = 0;
};
