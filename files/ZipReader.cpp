// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ZipReader.h"

#include <algorithm>
#include <cstring>
#include <unzip.h>
#include <zlib.h>

namespace {
/// The library asks for single bytes of a directory, and for contents in pieces of this size.
constexpr qint64 WindowBytes = 16 * 1024;
constexpr uLong EncryptedFlag = 1, Utf8Flag = 1 << 11;
constexpr uLong UnixMaker = 3, FileKinds = 0170000, LinkKind = 0120000;
/// Longer ones are refused by the one who gets them.
constexpr int MostListedName = 2048;

/// What the library reads from.
struct Source
{
    std::unique_ptr<QIODevice> device;
    char window[WindowBytes] = {};
    qint64 windowAt = 0;
    qint64 windowBytes = 0;
    qint64 at = 0;
    bool isFailed = false;
};

uLong readSource(voidpf, voidpf stream, void *to, uLong bytes)
{
    auto &source = *static_cast<Source *>(stream);
    uLong got = 0;
    while (got < bytes) {
        const qint64 within = source.at - source.windowAt;
        if (within < 0 || within >= source.windowBytes) {
            source.windowAt = source.at;
            source.windowBytes =
                source.device->seek(source.at) ? source.device->read(source.window, WindowBytes) : -1;
            if (source.windowBytes <= 0) {
                source.isFailed = true; // the library takes the end of a file for zeros
                source.windowBytes = 0;
                break;
            }
            continue;
        }
        const uLong part = std::min<uLong>(bytes - got, uLong(source.windowBytes - within));
        std::memcpy(static_cast<char *>(to) + got, source.window + within, part);
        source.at += qint64(part);
        got += part;
    }
    return got;
}

voidpf openSource(voidpf opaque, const void *, int)
{
    return opaque;
}

uLong writeSource(voidpf, voidpf, const void *, uLong)
{
    return 0;
}

ZPOS64_T tellSource(voidpf, voidpf stream)
{
    return ZPOS64_T(static_cast<const Source *>(stream)->at);
}

long seekSource(voidpf, voidpf stream, ZPOS64_T offset, int origin)
{
    auto &source = *static_cast<Source *>(stream);
    const qint64 size = source.device->size();
    const qint64 from = origin == ZLIB_FILEFUNC_SEEK_CUR   ? source.at
                        : origin == ZLIB_FILEFUNC_SEEK_END ? size
                                                           : 0;
    if (offset > ZPOS64_T(size - std::min(from, size)))
        return -1;
    source.at = from + qint64(offset);
    source.isFailed = false;
    return 0;
}

int closeSource(voidpf, voidpf)
{
    return 0;
}

int testSource(voidpf, voidpf stream)
{
    return static_cast<const Source *>(stream)->isFailed ? 1 : 0;
}
} // namespace

struct ZipReader::Handle
{
    Source source;
    unzFile zip = nullptr;
    quint64 listed = 0;
    qint64 enteredAt = 0; ///< in the source
    // Contents that are stored as they are go round the library, which copies them twice.
    bool isStored = false;
    qint64 left = 0;      ///< bytes
    quint32 checksum = 0; ///< of what was read
    quint32 wantedChecksum = 0;

    int readStored(char *to, int bytes);
};

int ZipReader::Handle::readStored(char *to, int bytes)
{
    const qint64 wanted = std::min<qint64>(bytes, left);
    QIODevice &device = *source.device;
    if (!device.seek(source.at) || device.read(to, wanted) != wanted)
        return -1;
    checksum = quint32(crc32(checksum, reinterpret_cast<const Bytef *>(to), uInt(wanted)));
    source.at += wanted;
    left -= wanted;
    return int(wanted);
}

ZipReader::ZipReader()
    : m_handle(std::make_unique<Handle>())
{}

ZipReader::~ZipReader()
{
    if (m_handle->zip)
        unzClose(m_handle->zip);
}

std::unique_ptr<ZipReader> ZipReader::open(std::unique_ptr<QIODevice> device)
{
    std::unique_ptr<ZipReader> reader(new ZipReader);
    Handle &handle = *reader->m_handle;
    handle.source.device = std::move(device);
    zlib_filefunc64_def functions{openSource, readSource,  writeSource, tellSource,
                                  seekSource, closeSource, testSource,  &handle.source};
    handle.zip = unzOpen2_64(nullptr, &functions);
    return handle.zip ? std::move(reader) : nullptr;
}

quint64 ZipReader::count() const
{
    unz_global_info64 info{};
    return unzGetGlobalInfo64(m_handle->zip, &info) == UNZ_OK ? info.number_entry : 0;
}

qint64 ZipReader::size() const
{
    return m_handle->source.device->size();
}

bool ZipReader::next(Listed &listed, bool &isWhole)
{
    Handle &handle = *m_handle;
    const int step = handle.listed == 0 ? unzGoToFirstFile(handle.zip) : unzGoToNextFile(handle.zip);
    unz_file_info64 info{};
    listed.name.resize(MostListedName);
    // One that has none gives the first all the same, which is not there.
    const bool isEmpty = count() == 0;
    if (isEmpty || step != UNZ_OK ||
        unzGetCurrentFileInfo64(handle.zip, &info, listed.name.data(), MostListedName, nullptr, 0, nullptr,
                                0) != UNZ_OK) {
        isWhole = isEmpty || step == UNZ_END_OF_LIST_OF_FILE;
        return false;
    }
    unz64_file_pos place{};
    if (unzGetFilePos64(handle.zip, &place) != UNZ_OK) {
        isWhole = false;
        return false;
    }
    listed.name.resize(int(std::min<uLong>(info.size_filename, MostListedName)));
    listed.isUtf8 = (info.flag & Utf8Flag) != 0;
    listed.isLink = (info.version >> 8) == UnixMaker && ((info.external_fa >> 16) & FileKinds) == LinkKind;
    ZipEntry &entry = listed.entry;
    entry.size = qint64(std::min<ZPOS64_T>(info.uncompressed_size, INT64_MAX));
    entry.packed = qint64(std::min<ZPOS64_T>(info.compressed_size, INT64_MAX));
    entry.checksum = quint32(info.crc);
    entry.place = place.pos_in_zip_directory;
    entry.number = place.num_of_file;
    entry.method = int(info.compression_method);
    entry.isEncrypted = (info.flag & EncryptedFlag) != 0;
    ++handle.listed;
    return true;
}

bool ZipReader::enter(const ZipEntry &entry)
{
    const unz64_file_pos place{entry.place, entry.number};
    unz_file_info64 info{};
    Handle &handle = *m_handle;
    const bool isEntered =
        unzGoToFilePos64(handle.zip, &place) == UNZ_OK &&
        unzGetCurrentFileInfo64(handle.zip, &info, nullptr, 0, nullptr, 0, nullptr, 0) == UNZ_OK &&
        info.crc == entry.checksum && qint64(info.uncompressed_size) == entry.size &&
        unzOpenCurrentFile(handle.zip) == UNZ_OK;
    handle.enteredAt = qint64(unzGetCurrentFileZStreamPos64(handle.zip));
    handle.isStored = isEntered && info.compression_method == 0;
    if (!handle.isStored)
        return isEntered;
    handle.source.at = handle.enteredAt;
    handle.left = entry.size;
    handle.checksum = 0;
    handle.wantedChecksum = entry.checksum;
    return info.compressed_size == info.uncompressed_size;
}

qint64 ZipReader::taken() const
{
    return m_handle->source.at - m_handle->enteredAt;
}

int ZipReader::read(char *to, int bytes)
{
    if (m_handle->isStored)
        return m_handle->readStored(to, bytes);
    int got = 0;
    while (got < bytes) {
        const int part = unzReadCurrentFile(m_handle->zip, to + got, unsigned(bytes - got));
        if (part < 0)
            return -1;
        if (part == 0)
            break;
        got += part;
    }
    return got;
}

bool ZipReader::leave()
{
    const Handle &handle = *m_handle;
    const bool isWrong = handle.isStored && handle.left == 0 && handle.checksum != handle.wantedChecksum;
    return unzCloseCurrentFile(handle.zip) != UNZ_CRCERROR && !isWrong;
}
