// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FuzzModel.h"

namespace {
const QString Suffix = QStringLiteral("skinnedmesh");
} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed)
{
    return Fuzz::mutateModelFile(Suffix, data, size, most, seed);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::checkModelFile<SkinnedMesh>(Suffix, data, size);
    return 0;
}
