// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfWriter.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QUrl>
#include <QtEndian>

#include <algorithm>
#include <cstring>

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "numbers go into the buffer as they lie in memory");

namespace {
enum WrittenType { WrittenBytes = 5121, WrittenShorts = 5123, WrittenInts = 5125, WrittenFloats = 5126 };

constexpr int Alignment = 4;
constexpr quint32 GlbMagic = 0x46546C67; // "glTF"
constexpr quint32 GlbVersion = 2;
constexpr int HeaderSize = 12;
constexpr int ChunkHeaderSize = 8;
constexpr quint32 JsonChunkType = 0x4E4F534A;
constexpr quint32 BinaryChunkType = 0x004E4942;

int componentsOf(const char *type)
{
    if (std::strcmp(type, "SCALAR") == 0)
        return 1;
    if (std::strcmp(type, "MAT4") == 0)
        return 16;
    return type[3] - '0'; // VEC2 to VEC4
}

void appendNumber(QByteArray &bytes, quint32 number)
{
    const quint32 stored = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

int paddingOf(qint64 size)
{
    return int(-size & (Alignment - 1));
}

QJsonObject viewEntry(qint64 offset, qint64 size)
{
    return {{QStringLiteral("buffer"), 0},
            {QStringLiteral("byteOffset"), offset},
            {QStringLiteral("byteLength"), size}};
}

// An empty list is none that the format knows.
void insertLists(QJsonObject &whole, const QJsonArray &views, const QJsonArray &images)
{
    if (!views.isEmpty())
        whole.insert(QStringLiteral("bufferViews"), views);
    if (!images.isEmpty())
        whole.insert(QStringLiteral("images"), images);
}
} // namespace

QJsonArray &GltfWriter::list(const char *name)
{
    const auto found =
        std::find_if(m_lists.begin(), m_lists.end(), [name](const List &each) { return each.name == name; });
    if (found != m_lists.end())
        return found->objects;
    m_lists.push_back({name, {}});
    return m_lists.back().objects;
}

int GltfWriter::append(const char *name, const QJsonObject &object)
{
    QJsonArray &objects = list(name);
    objects.append(object);
    return objects.size() - 1;
}

void GltfWriter::replace(const char *name, int index, const QJsonObject &object)
{
    list(name).replace(index, object);
}

int GltfWriter::count(const char *name) const
{
    const auto found =
        std::find_if(m_lists.begin(), m_lists.end(), [name](const List &each) { return each.name == name; });
    return found == m_lists.end() ? 0 : found->objects.size();
}

/// Puts bytes into the buffer. Returns their view, and where they lie in it.
int GltfWriter::addView(const char *bytes, qint64 size, Purpose purpose, qint64 &offset)
{
    offset = 0;
    if (m_buffer.size() + m_imageBytes + size + Alignment > MostBytes) {
        m_isTooLarge = true;
        return 0;
    }
    m_buffer.append(-m_buffer.size() & (Alignment - 1), '\0');
    if (purpose == Purpose::Vertices || m_views.empty() || m_views.back().purpose != purpose)
        m_views.push_back({m_buffer.size(), 0, purpose});
    View &view = m_views.back();
    offset = m_buffer.size() - view.offset;
    m_buffer.append(bytes, int(size));
    view.size = offset + size;
    return int(m_views.size()) - 1;
}

int GltfWriter::addAccessor(const char *bytes, qint64 size, int componentType, int count, const char *type,
                            Purpose purpose, QJsonObject more)
{
    qint64 offset = 0;
    more.insert(QStringLiteral("bufferView"), addView(bytes, size, purpose, offset));
    if (offset > 0)
        more.insert(QStringLiteral("byteOffset"), offset);
    more.insert(QStringLiteral("componentType"), componentType);
    more.insert(QStringLiteral("count"), count);
    more.insert(QStringLiteral("type"), QLatin1String(type));
    return append("accessors", more);
}

int GltfWriter::addFloats(const std::vector<float> &values, const char *type, Purpose purpose,
                          bool withBounds)
{
    const auto components = size_t(componentsOf(type));
    QJsonObject bounds;
    if (withBounds) {
        QJsonArray least;
        QJsonArray most;
        for (size_t component = 0; component < components; ++component) {
            float min = values[component];
            float max = min;
            for (size_t i = component; i < values.size(); i += components) {
                min = std::min(min, values[i]);
                max = std::max(max, values[i]);
            }
            // All digits: programs compare them with the numbers themselves.
            least.append(double(min));
            most.append(double(max));
        }
        bounds = {{QStringLiteral("min"), least}, {QStringLiteral("max"), most}};
    }
    return addAccessor(reinterpret_cast<const char *>(values.data()), qint64(values.size() * sizeof(float)),
                       WrittenFloats, int(values.size() / components), type, purpose, bounds);
}

int GltfWriter::addBytes(const std::vector<quint8> &values, const char *type, bool normalized)
{
    return addAccessor(reinterpret_cast<const char *>(values.data()), qint64(values.size()), WrittenBytes,
                       int(values.size()) / componentsOf(type), type, Purpose::Vertices,
                       normalized ? QJsonObject{{QStringLiteral("normalized"), true}} : QJsonObject());
}

int GltfWriter::addShorts(const std::vector<quint16> &values, const char *type)
{
    return addAccessor(reinterpret_cast<const char *>(values.data()), qint64(values.size() * 2),
                       WrittenShorts, int(values.size()) / componentsOf(type), type, Purpose::Vertices);
}

int GltfWriter::addIndexes(const std::vector<quint32> &values, size_t vertexCount)
{
    // The greatest number of a type is none of a vertex.
    if (vertexCount <= 0xFFFF) {
        const std::vector<quint16> shorts(values.begin(), values.end());
        return addAccessor(reinterpret_cast<const char *>(shorts.data()), qint64(shorts.size() * 2),
                           WrittenShorts, int(shorts.size()), "SCALAR", Purpose::Indexes);
    }
    return addAccessor(reinterpret_cast<const char *>(values.data()), qint64(values.size() * 4), WrittenInts,
                       int(values.size()), "SCALAR", Purpose::Indexes);
}

int GltfWriter::addImage(const GltfImage &image)
{
    m_imageBytes += image.bytes.size();
    m_isTooLarge = m_isTooLarge || m_buffer.size() + m_imageBytes > MostBytes;
    m_images.push_back(image);
    return int(m_images.size()) - 1;
}

/// All but buffer and pictures.
QJsonObject GltfWriter::root() const
{
    QJsonObject whole = m_root;
    whole.insert(QStringLiteral("asset"),
                 QJsonObject{{QStringLiteral("version"), QStringLiteral("2.0")},
                             {QStringLiteral("generator"), QStringLiteral("Korvane")}});
    for (const List &each : m_lists)
        whole.insert(QLatin1String(each.name), each.objects);
    return whole;
}

QJsonArray GltfWriter::views() const
{
    QJsonArray views;
    for (const View &view : m_views) {
        QJsonObject entry = viewEntry(view.offset, view.size);
        if (view.purpose >= Purpose::Vertices)
            entry.insert(QStringLiteral("target"), int(view.purpose));
        views.append(entry);
    }
    return views;
}

QByteArray GltfWriter::glb() const
{
    QJsonObject whole = root();
    QJsonArray allViews = views();
    QJsonArray images;
    qint64 size = m_buffer.size();
    for (const GltfImage &image : m_images) {
        size += paddingOf(size);
        images.append(QJsonObject{{QStringLiteral("name"), QFileInfo(image.fileName).completeBaseName()},
                                  {QStringLiteral("mimeType"), image.mimeType},
                                  {QStringLiteral("bufferView"), allViews.size()}});
        allViews.append(viewEntry(size, image.bytes.size()));
        size += image.bytes.size();
    }
    insertLists(whole, allViews, images);
    if (size > 0)
        whole.insert(QStringLiteral("buffers"),
                     QJsonArray{QJsonObject{{QStringLiteral("byteLength"), size}}});
    QByteArray json = QJsonDocument(whole).toJson(QJsonDocument::Compact);
    json.append(paddingOf(json.size()), ' ');
    const qint64 chunk = size + paddingOf(size);

    // All at once: these may be many.
    QByteArray file;
    const qint64 fileSize =
        HeaderSize + ChunkHeaderSize + json.size() + (size > 0 ? ChunkHeaderSize + chunk : 0);
    file.reserve(int(fileSize));
    appendNumber(file, GlbMagic);
    appendNumber(file, GlbVersion);
    appendNumber(file, quint32(fileSize));
    appendNumber(file, quint32(json.size()));
    appendNumber(file, JsonChunkType);
    file += json;
    if (size == 0)
        return file;
    appendNumber(file, quint32(chunk));
    appendNumber(file, BinaryChunkType);
    file += m_buffer;
    for (const GltfImage &image : m_images) {
        file.append(paddingOf(file.size()), '\0');
        file += image.bytes;
    }
    file.append(paddingOf(file.size()), '\0');
    return file;
}

QByteArray GltfWriter::json() const
{
    QJsonObject whole = root();
    insertLists(whole, views(), {});
    return QJsonDocument(whole).toJson(QJsonDocument::Indented);
}

QByteArray GltfWriter::withNames(const QByteArray &json, const QString &bufferName, int bufferSize,
                                 const std::vector<GltfImage> &images, const QStringList &imageNames)
{
    const auto uri = [](const QString &name) { return QString::fromLatin1(QUrl::toPercentEncoding(name)); };
    QJsonArray entries;
    for (int i = 0; i < imageNames.size(); ++i) {
        const GltfImage &image = images[size_t(i)];
        entries.append(QJsonObject{{QStringLiteral("name"), QFileInfo(image.fileName).completeBaseName()},
                                   {QStringLiteral("mimeType"), image.mimeType},
                                   {QStringLiteral("uri"), uri(imageNames[i])}});
    }
    QJsonObject files;
    insertLists(files, {}, entries);
    if (bufferSize > 0) {
        files.insert(QStringLiteral("buffers"),
                     QJsonArray{QJsonObject{{QStringLiteral("byteLength"), bufferSize},
                                            {QStringLiteral("uri"), uri(bufferName)}}});
    }
    if (files.isEmpty())
        return json;
    // The fields of both objects, the first of which is never empty.
    const QByteArray more = QJsonDocument(files).toJson(QJsonDocument::Indented);
    return json.left(json.lastIndexOf('}')).trimmed() + ",\n" + more.mid(more.indexOf('\n') + 1);
}
