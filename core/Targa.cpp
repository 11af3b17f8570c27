// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Targa.h"

#include <cstdlib>

// Of the library, what reads this one format from memory. What a file ends too early for is black and not
// what was in memory before.
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_SIMD
#define STBI_NO_FAILURE_STRINGS
#define STBI_MALLOC(size) std::calloc(1, size)
#define STBI_REALLOC(memory, size) std::realloc(memory, size)
#define STBI_FREE(memory) std::free(memory)
#include <stb_image.h>

namespace {
constexpr int HeaderSize = 18;
constexpr int LongestRun = 128; ///< pixels that one count stands for
constexpr int Packed = 8;       ///< in the kind of the picture
constexpr int FromRight = 0x10; ///< in the descriptor
constexpr int Interleaved = 0xC0;
enum Kind { Palette = 1, TrueColor = 2, Gray = 3 };

struct TargaHeader
{
    explicit TargaHeader(const QByteArray &bytes)
        : m_bytes(bytes)
    {}
    int byte(int at) const { return uchar(m_bytes[at]); }
    int word(int at) const { return byte(at) | byte(at + 1) << 8; }
    bool isPacked() const { return (byte(2) & Packed) != 0; }
    int kind() const { return byte(2) & ~Packed; }
    qint64 pixels() const { return qint64(word(12)) * word(14); }
    int bits() const { return byte(16); }
    int descriptor() const { return byte(17); }
    int paletteBits() const { return byte(1) == 1 ? byte(7) : 0; }
    /// Where the pixels begin.
    qint64 start() const { return HeaderSize + byte(0) + qint64(word(5)) * bytesOf(paletteBits()); }
    static int bytesOf(int bits) { return (bits + 7) / 8; }

    /// The format has no mark: these numbers, of which most go together with few others, have to do.
    bool isPlausible() const
    {
        const bool hasPalette = kind() == Palette;
        const auto isColor = [](int bits) { return bits == 15 || bits == 16 || bits == 24 || bits == 32; };
        if (byte(1) != (hasPalette ? 1 : 0) || (descriptor() & Interleaved) != 0)
            return false;
        // A palette that begins within itself is beyond the library.
        return hasPalette ? bits() == 8 && word(3) == 0 && word(5) > 0 && isColor(paletteBits())
                          : (kind() == TrueColor && isColor(bits())) ||
                                (kind() == Gray && (bits() == 8 || bits() == 16));
    }

    /// At least.
    qint64 sizeOfPixels() const
    {
        return isPacked() ? (pixels() + LongestRun - 1) / LongestRun * (1 + bytesOf(bits()))
                          : pixels() * bytesOf(bits());
    }

    /// Packed worst, every pixel has a count of its own.
    qint64 mostBytes() const { return start() + pixels() * (bytesOf(bits()) + (isPacked() ? 1 : 0)); }

private:
    const QByteArray &m_bytes;
};

/// Many a writer leaves the fourth byte of a pixel empty, and nothing is what nobody wants to see.
bool isAllClear(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const uchar *line = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (line[4 * x + 3] != 0)
                return false;
        }
    }
    return true;
}
} // namespace

bool isTarga(const QByteArray &beginning, qint64 size, qint64 mostPixels)
{
    if (beginning.size() < HeaderSize)
        return false;
    const TargaHeader header(beginning);
    return header.isPlausible() && header.pixels() > 0 && header.pixels() <= mostPixels &&
           header.sizeOfPixels() <= size - header.start();
}

qint64 targaBytes(const QByteArray &beginning)
{
    return TargaHeader(beginning).mostBytes();
}

QSize targaSize(const QByteArray &beginning)
{
    const TargaHeader header(beginning);
    return {header.word(12), header.word(14)};
}

QImage readTarga(const QByteArray &bytes, qint64 mostPixels)
{
    if (!isTarga(bytes, bytes.size(), mostPixels))
        return {};
    int width = 0;
    int height = 0;
    int channels = 0;
    constexpr int Channels = 4;
    stbi_uc *texels = stbi_load_from_memory(reinterpret_cast<const stbi_uc *>(bytes.constData()),
                                            bytes.size(), &width, &height, &channels, Channels);
    if (!texels)
        return {};
    QImage image(texels, width, height, Channels * width, QImage::Format_RGBA8888, stbi_image_free, texels);
    if (channels % 2 != 0 || isAllClear(image))
        image = image.convertToFormat(QImage::Format_RGB888);
    return TargaHeader(bytes).descriptor() & FromRight ? image.mirrored(true, false) : image;
}
