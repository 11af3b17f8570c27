// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ZipWriter.h"

#include "ZipArchive.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>
#include <zip.h>
#include <zlib.h>

namespace {
constexpr int PieceBytes = 256 * 1024;
constexpr uLong FirstDay = 0x00210000; ///< January 1, 1980, as the format has it: its first
constexpr uLong NameIsUtf8 = 1 << 11;
constexpr uLong MadeByNobody = 20; ///< version 2.0 of the format, and no system's attributes
constexpr int MemoryLevel = 8;

struct WriterTexts
{
    Q_DECLARE_TR_FUNCTIONS(Packing)
};

/// What the library writes to.
struct Target
{
    WholeFile file;
    qint64 at = 0;
    qint64 size = 0;
};

voidpf openTarget(voidpf opaque, const void *, int)
{
    return opaque;
}

uLong readTarget(voidpf, voidpf, void *, uLong)
{
    return 0;
}

uLong writeTarget(voidpf, voidpf stream, const void *from, uLong bytes)
{
    auto &target = *static_cast<Target *>(stream);
    if (target.file.write(static_cast<const char *>(from), qint64(bytes)))
        return 0;
    target.at += qint64(bytes);
    target.size = std::max(target.size, target.at);
    return bytes;
}

ZPOS64_T tellTarget(voidpf, voidpf stream)
{
    return ZPOS64_T(static_cast<const Target *>(stream)->at);
}

/// Back to an entry's head, whose sizes and checksum are known when its contents are written.
long seekTarget(voidpf, voidpf stream, ZPOS64_T offset, int origin)
{
    auto &target = *static_cast<Target *>(stream);
    const qint64 from = origin == ZLIB_FILEFUNC_SEEK_CUR   ? target.at
                        : origin == ZLIB_FILEFUNC_SEEK_END ? target.size
                                                           : 0;
    const qint64 to = from + qint64(offset);
    if (to > target.size || target.file.seek(to))
        return -1;
    target.at = to;
    return 0;
}

int closeTarget(voidpf, voidpf)
{
    return 0;
}

int testTarget(voidpf, voidpf stream)
{
    return static_cast<const Target *>(stream)->file.reason().isEmpty() ? 0 : 1;
}
} // namespace

struct ZipWriter::Handle
{
    explicit Handle(const QString &path)
        : target{WholeFile(path)}
    {}

    Target target;
    zipFile zip = nullptr;
    bool isFailed = false;
    QString reason;
};

ZipWriter::ZipWriter(const QString &path)
    : m_handle(std::make_unique<Handle>(path))
{}

ZipWriter::~ZipWriter()
{
    if (m_handle->zip)
        zipClose(m_handle->zip, nullptr);
}

const QString &ZipWriter::reason() const
{
    return m_handle->reason;
}

qint64 ZipWriter::size() const
{
    return m_handle->target.size;
}

bool ZipWriter::fail(const QString &reason)
{
    Handle &handle = *m_handle;
    if (!handle.isFailed)
        handle.reason = handle.target.file.reason().isEmpty() ? reason : handle.target.file.reason();
    handle.isFailed = true;
    return true;
}

bool ZipWriter::start()
{
    Handle &handle = *m_handle;
    if (handle.isFailed)
        return true;
    if (handle.zip)
        return false;
    if (handle.target.file.open())
        return fail({});
    zlib_filefunc64_def functions{openTarget, readTarget,  writeTarget, tellTarget,
                                  seekTarget, closeTarget, testTarget,  &handle.target};
    handle.zip = zipOpen2_64(nullptr, APPEND_STATUS_CREATE, nullptr, &functions);
    return !handle.zip && fail(WriterTexts::tr("There is no memory for the archive."));
}

bool ZipWriter::add(const QString &name, QIODevice &contents, bool isDeflated,
                    const std::function<bool()> &goesOn)
{
    if (start())
        return true;
    const qint64 size = contents.size();
    // More than that is read back only where it was packed to a good part of it.
    const bool deflates = isDeflated && size > 0 && size <= ZipArchive::FreeBytes;
    const QByteArray nameBytes = name.toUtf8();
    const bool isPlain =
        std::all_of(nameBytes.begin(), nameBytes.end(), [](char c) { return uchar(c) < 0x80; });
    zip_fileinfo info{};
    info.dosDate = FirstDay;
    if (zipOpenNewFileInZip4_64(m_handle->zip, nameBytes.constData(), &info, nullptr, 0, nullptr, 0, nullptr,
                                deflates ? Z_DEFLATED : 0, Z_BEST_COMPRESSION, 0, -MAX_WBITS, MemoryLevel,
                                Z_DEFAULT_STRATEGY, nullptr, 0, MadeByNobody, isPlain ? 0 : NameIsUtf8,
                                0) != ZIP_OK)
        return fail(WriterTexts::tr("The archive cannot be written."));
    std::vector<char> piece(PieceBytes);
    qint64 taken = 0;
    for (qint64 got = 1; got > 0; taken += std::max<qint64>(got, 0)) {
        if (goesOn && !goesOn())
            return fail({});
        got = contents.read(piece.data(), PieceBytes);
        if (got > 0 && zipWriteInFileInZip(m_handle->zip, piece.data(), unsigned(got)) != ZIP_OK)
            return fail(WriterTexts::tr("The archive cannot be written."));
    }
    if (taken != size)
        return fail(WriterTexts::tr("'%1' could not be read whole, or was changed meanwhile.").arg(name));
    return zipCloseFileInZip(m_handle->zip) != ZIP_OK &&
           fail(WriterTexts::tr("The archive cannot be written."));
}

bool ZipWriter::commit()
{
    if (start())
        return true;
    if (zipClose(std::exchange(m_handle->zip, nullptr), nullptr) != ZIP_OK)
        return fail(WriterTexts::tr("The archive cannot be written."));
    return m_handle->target.file.commit() && fail({});
}
