// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UC_Base.h"

UC_Base::UC_Base(const QString &text, QUndoCommand *parent)
    : QUndoCommand(text, parent)
{}

UC_Base::~UC_Base() = default;
