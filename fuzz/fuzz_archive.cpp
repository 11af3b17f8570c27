// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Require.h"
#include "ZipArchive.h"

#include <cstdint>

/// Reads the directory and unpacks what is in it. Little of each entry: a bomb has its limit elsewhere.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr int MostRead = 64;
    constexpr qint64 MostUnpacked = 256 * 1024;
    QString reason;
    const auto archive =
        ZipArchive::open(QByteArray(reinterpret_cast<const char *>(data), int(size)), reason);
    Fuzz::require((archive == nullptr) != reason.isEmpty(), "a failure has a reason");
    if (!archive)
        return 0;
    for (int number = 0; number < archive->count() && number < MostRead; ++number) {
        const ZipEntry &entry = archive->fileAt(number);
        Fuzz::require(!entry.path.startsWith('/') && !entry.path.contains(':') &&
                          !("/" + entry.path + "/").contains("/../"),
                      "no name leads out of the archive");
        Fuzz::require(archive->file(entry.path) == &entry, "what is listed is found");
        const auto device = archive->read(entry, reason);
        if (!device)
            continue;
        Fuzz::require(device->size() == entry.size, "a device has the size that was told");
        Fuzz::require(device->read(MostUnpacked).size() <= entry.size, "nothing has more than it says");
        const bool isThere = device->seek(entry.size / 2);
        Fuzz::require(isThere, "any place can be gone to");
        (void)device->read(1);
    }
    return 0;
}
