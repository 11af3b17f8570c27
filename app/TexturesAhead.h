// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <future>

/// Decodes the textures of the models among these files on a thread of its own, so that they are ready when
/// the window that shall show them is. Tells nothing: whoever opens the files does.
[[nodiscard]] std::future<void> loadTexturesAhead(const QStringList &paths);
