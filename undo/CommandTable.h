// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"
#include "UC_Base.h"

#include <tuple>

/// Stands for a command class where a value is needed, as in a list of commands.
template <typename Command>
struct CommandTag
{
    using Type = Command;
};

// One command class from a row (class, kind, undo text, what the kind is to know) of a stack's table. A kind
// is a class template whose first parameter is the command itself; it gives the Place of the records, one of
// Records. The table is also the list of the stack's commands, so that a command cannot exist without being
// in it.
#define KORVANE_COMMAND(Class, Kind, Text, ...)                                                              \
    class Class final : public Kind<Class, __VA_ARGS__>                                                      \
    {                                                                                                        \
    public:                                                                                                  \
        static constexpr const char *name = #Class;                                                          \
        static constexpr const char *undoText = Text;                                                        \
        using Kind::Kind;                                                                                    \
    };

#define KORVANE_COMMAND_TAG(Class, ...) std::tuple<CommandTag<Class>>(),
