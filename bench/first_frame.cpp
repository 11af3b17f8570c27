// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// Preloaded into a program that is measured: it ends when it has put its first frame on the screen, whatever
// the program is, and says so before, on the pipe that KORVANE_FIRST_FRAME_PIPE names.
#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>

namespace {
/// The function that this library stands before.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

[[noreturn]] void end()
{
    const char *number = std::getenv("KORVANE_FIRST_FRAME_PIPE");
    _exit(number && write(std::atoi(number), "1", 1) == 1 ? 0 : 1);
}
} // namespace

extern "C" {
void glXSwapBuffers(void *display, unsigned long drawable)
{
    next<void (*)(void *, unsigned long)>("glXSwapBuffers")(display, drawable);
    end();
}

unsigned int eglSwapBuffers(void *display, void *surface)
{
    next<unsigned int (*)(void *, void *)>("eglSwapBuffers")(display, surface);
    end();
}
}
