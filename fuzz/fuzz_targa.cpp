// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Require.h"
#include "Targa.h"

#include <cstdint>

/// Few pixels, since a packed file of some bytes may have thousands.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr qint64 MostPixels = 1 << 16;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const QImage image = readTarga(bytes, MostPixels);
    Fuzz::require(image.isNull() != isTarga(bytes, bytes.size(), MostPixels), "what looks like one is read");
    Fuzz::require(qint64(image.width()) * image.height() <= MostPixels, "the limit holds");
    return 0;
}
