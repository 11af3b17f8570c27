// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GraphicsProbe.h"

#include <QOpenGLContext>

#include <future>

namespace {
// Without a thread to be had the one that asks tries.
const std::shared_future<bool> &answer()
{
    static const std::shared_future<bool> future =
        std::async(std::launch::async | std::launch::deferred, [] { return QOpenGLContext().create(); });
    return future;
}
} // namespace

void GraphicsProbe::start()
{
    answer();
}

bool GraphicsProbe::hasOpenGL()
{
    return answer().get();
}
