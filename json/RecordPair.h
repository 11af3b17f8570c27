// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "JsonFields.h"

#include <array>

/// Calls `both(field, a's value, b's value)` for each field of two records of one kind.
template <typename Mine, typename Theirs, typename Both>
void visitBoth(Mine &mine, Theirs &theirs, const Both &both)
{
    std::array<const void *, 16> places{};
    size_t number = 0;
    const auto note = [&](const JsonField &, const auto &value) { places[number++] = &value; };
    JsonFields<std::decay_t<Theirs>>::visit(note, theirs);
    number = 0;
    const auto call = [&](const JsonField &field, auto &value) {
        using Value = std::decay_t<decltype(value)>;
        both(field, value, *static_cast<const Value *>(places[number++]));
    };
    JsonFields<std::decay_t<Mine>>::visit(call, mine);
}
