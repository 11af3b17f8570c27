// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

/// Unloads nothing. The leak check looks at the end of the process, when Qt has unloaded the window system's
/// plugin and the GL driver with it: their leaks would have no library to be told by. Only builds with
/// sanitizers have this.
extern "C" int dlclose(void *)
{
    return 0;
}
