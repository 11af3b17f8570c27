// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// Preloaded into a program that is measured: it ends when it has put its first frame on the screen, whatever
// the program is.
#include <dlfcn.h>
#include <unistd.h>

namespace {
/// The function that this library stands before.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}
} // namespace

extern "C" {
void glXSwapBuffers(void *display, unsigned long drawable)
{
    next<void (*)(void *, unsigned long)>("glXSwapBuffers")(display, drawable);
    _exit(0);
}

unsigned int eglSwapBuffers(void *display, void *surface)
{
    next<unsigned int (*)(void *, void *)>("eglSwapBuffers")(display, surface);
    _exit(0);
}
}
