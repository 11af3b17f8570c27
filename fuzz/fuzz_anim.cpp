// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FuzzModel.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString suffix = QStringLiteral("anim");
    Fuzz::checkModelFile<AnimFile>(suffix, data, size);
    return 0;
}
