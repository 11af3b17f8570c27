// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

/// The context of this room's texts.
struct Gltf
{
    Q_DECLARE_TR_FUNCTIONS(Gltf)
};
