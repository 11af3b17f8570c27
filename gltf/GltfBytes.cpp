// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfBytes.h"

#include "GltfText.h"

#include <QJsonDocument>
#include <QUrl>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {
constexpr quint32 BinaryMagic = 0x46546C67; // "glTF"
constexpr quint32 JsonChunk = 0x4E4F534A;
constexpr quint32 BinChunk = 0x004E4942;
constexpr qint64 LargestSum = qint64(1) << 30; // bytes of all buffers

enum ComponentType { Byte = 5120, UnsignedByte, Short, UnsignedShort, UnsignedInt = 5125, Float };

int sizeOfComponent(int type)
{
    switch (type) {
    case Byte:
    case UnsignedByte:
        return 1;
    case Short:
    case UnsignedShort:
        return 2;
    case UnsignedInt:
    case Float:
        return 4;
    default:
        return 0;
    }
}

int componentsOfType(const QString &type)
{
    static const QHash<QString, int> counts{
        {"SCALAR", 1}, {"VEC2", 2}, {"VEC3", 3}, {"VEC4", 4}, {"MAT4", 16}};
    return counts.value(type);
}

/// A count, offset or index: `otherwise` without one, -1 when it is no whole number from 0 on.
qint64 wholeNumber(const QJsonValue &value, qint64 otherwise)
{
    if (value.isUndefined())
        return otherwise;
    const double number = value.toDouble(-1.0);
    return number >= 0.0 && number < 9.0e15 && number == std::floor(number) ? qint64(number) : -1;
}

template <typename Stored>
Stored load(const uchar *from)
{
    return qFromLittleEndian<Stored>(from);
}

/// Integers that stand for -1 to 1 or 0 to 1 are divided by the greatest of their type.
template <typename Stored>
float fraction(Stored value)
{
    return std::max(-1.0f, float(value) / float(std::numeric_limits<Stored>::max()));
}

float asFloat(const uchar *from, int component, bool normalized)
{
    switch (component) {
    case Byte:
        return normalized ? fraction(load<qint8>(from)) : float(load<qint8>(from));
    case UnsignedByte:
        return normalized ? fraction(load<quint8>(from)) : float(load<quint8>(from));
    case Short:
        return normalized ? fraction(load<qint16>(from)) : float(load<qint16>(from));
    case UnsignedShort:
        return normalized ? fraction(load<quint16>(from)) : float(load<quint16>(from));
    case Float: {
        const quint32 bits = load<quint32>(from);
        float value = 0.0f;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    default: // the format allows these as indices only
        return std::numeric_limits<float>::quiet_NaN();
    }
}

/// Returns true on success.
bool convert(const uchar *from, int component, bool normalized, float &value)
{
    value = asFloat(from, component, normalized);
    return std::isfinite(value);
}

bool convert(const uchar *from, int component, bool, quint32 &value)
{
    if (component == UnsignedByte)
        value = load<quint8>(from);
    else if (component == UnsignedShort)
        value = load<quint16>(from);
    else if (component == UnsignedInt)
        value = load<quint32>(from);
    else
        return false;
    return true;
}

QByteArray dataOfUri(const QString &uri)
{
    const int comma = uri.indexOf(QLatin1Char(','));
    if (comma < 0 || !uri.leftRef(comma).endsWith(QLatin1String(";base64")))
        return {};
    return QByteArray::fromBase64(uri.midRef(comma + 1).toLatin1());
}
} // namespace

bool GltfBytes::refuse(const QString &reason)
{
    if (m_error.isEmpty())
        m_error = reason;
    return true;
}

bool GltfBytes::fail(const QString &place)
{
    return refuse(Gltf::tr("The file is damaged, or no glTF 2.0: %1").arg(place));
}

bool GltfBytes::spend(size_t bytes, const QString &place)
{
    if (bytes > size_t(m_copyBudget))
        return fail(place);
    m_copyBudget -= qint64(bytes);
    return false;
}

bool GltfBytes::open(const QByteArray &file, const FileReader &readFile)
{
    m_file = file; // buffers are parts of it
    QByteArray json = file;
    QByteArray chunk;
    if (file.startsWith("glTF") && openBinary(file, json, chunk))
        return fail(QStringLiteral("GLB"));
    QJsonParseError parsed{};
    m_root = QJsonDocument::fromJson(json, &parsed).object();
    if (parsed.error != QJsonParseError::NoError)
        return fail(QStringLiteral("JSON: %1").arg(parsed.errorString()));
    if (!m_root.value(QLatin1String("asset"))
             .toObject()
             .value(QLatin1String("version"))
             .toString()
             .startsWith(QLatin1String("2.")))
        return fail(QStringLiteral("asset"));
    for (const QJsonValue each : list("extensionsRequired")) {
        const QString name = each.toString();
        if (name != QLatin1String("KHR_mesh_quantization") &&
            !name.startsWith(QLatin1String("KHR_materials_")))
            return refuse(Gltf::tr("The file needs the extension %1, which cannot be read.").arg(name));
    }
    m_accessors = list("accessors");
    m_views = list("bufferViews");
    return openBuffers(chunk, readFile);
}

/// Returns true on failure.
bool GltfBytes::openBinary(const QByteArray &file, QByteArray &json, QByteArray &chunk) const
{
    const auto *bytes = reinterpret_cast<const uchar *>(file.constData());
    constexpr qint64 HeaderSize = 12;
    if (file.size() < HeaderSize || load<quint32>(bytes) != BinaryMagic || load<quint32>(bytes + 4) != 2)
        return true;
    const qint64 end = std::min<qint64>(load<quint32>(bytes + 8), file.size());
    json.clear();
    for (qint64 at = HeaderSize; at + 8 <= end;) {
        const qint64 length = load<quint32>(bytes + at);
        const quint32 type = load<quint32>(bytes + at + 4);
        at += 8;
        if (length > end - at)
            return true;
        const QByteArray content = QByteArray::fromRawData(file.constData() + at, int(length));
        if (type == JsonChunk && json.isEmpty())
            json = content;
        else if (type == BinChunk && chunk.isNull())
            chunk = content;
        at += length;
    }
    return json.isEmpty();
}

bool GltfBytes::openBuffers(const QByteArray &chunk, const FileReader &readFile)
{
    // An integer of one byte becomes a float of four, and a part of a view may be shared.
    constexpr qint64 Growth = 16;
    m_budget = 1 << 20;
    // Primitives may well share their vertices: twice what the largest model has.
    m_copyBudget = 64 << 20;
    QHash<QString, QByteArray> files; // by uri
    qint64 sum = 0;
    const QJsonArray buffers = list("buffers");
    for (int i = 0; i < buffers.size(); ++i) {
        const QJsonObject buffer = buffers.at(i).toObject();
        const QString uri = buffer.value(QLatin1String("uri")).toString();
        QByteArray bytes;
        if (uri.isEmpty())
            bytes = i == 0 ? chunk : QByteArray();
        else if (files.contains(uri))
            bytes = files.value(uri);
        else if (uri.startsWith(QLatin1String("data:")))
            bytes = dataOfUri(uri);
        else if (!QUrl(uri).isRelative() ||
                 (bytes = readFile(QUrl::fromPercentEncoding(uri.toUtf8()))).isNull())
            return refuse(Gltf::tr("The file '%1', which belongs to it, cannot be read.").arg(uri));
        const qint64 length = wholeNumber(buffer.value(QLatin1String("byteLength")), -1);
        if (length < 0 || length > bytes.size())
            return fail(QStringLiteral("buffers/%1").arg(i));
        m_buffers.push_back(bytes);
        if (files.contains(uri))
            continue;
        if (!uri.isEmpty())
            files.insert(uri, bytes);
        sum += bytes.size();
        m_budget += Growth * bytes.size();
        m_copyBudget += Growth * bytes.size();
        if (sum > LargestSum)
            return refuse(Gltf::tr("The files that belong to it are too large."));
    }
    return false;
}

/// The bytes of a view from `offset` on. Returns true on failure.
bool GltfBytes::view(const QJsonValue &number, qint64 offset, Span &span)
{
    const qint64 index = wholeNumber(number, -1);
    const QString place = QStringLiteral("bufferViews/%1").arg(index);
    if (index < 0 || index >= m_views.size())
        return fail(place);
    const QJsonObject object = m_views.at(int(index)).toObject();
    const qint64 buffer = wholeNumber(object.value(QLatin1String("buffer")), -1);
    const qint64 start = wholeNumber(object.value(QLatin1String("byteOffset")), 0);
    const qint64 length = wholeNumber(object.value(QLatin1String("byteLength")), -1);
    span.stride = wholeNumber(object.value(QLatin1String("byteStride")), 0);
    if (buffer < 0 || size_t(buffer) >= m_buffers.size() || start < 0 || length < 0 || span.stride < 0)
        return fail(place);
    const QByteArray &bytes = m_buffers[size_t(buffer)];
    if (start > bytes.size() || length > bytes.size() - start || offset < 0 || offset > length)
        return fail(place);
    span.data = reinterpret_cast<const uchar *>(bytes.constData()) + start + offset;
    span.size = length - offset;
    return false;
}

bool GltfBytes::locate(const QJsonValue &accessor, int components, Layout &layout)
{
    const qint64 index = wholeNumber(accessor, -1);
    layout.place = QStringLiteral("accessors/%1").arg(index);
    if (index < 0 || index >= m_accessors.size())
        return fail(layout.place);
    const QJsonObject object = m_accessors.at(int(index)).toObject();
    layout.component = object.value(QLatin1String("componentType")).toInt();
    layout.components = componentsOfType(object.value(QLatin1String("type")).toString());
    layout.count = wholeNumber(object.value(QLatin1String("count")), -1);
    layout.normalized = object.value(QLatin1String("normalized")).toBool();
    layout.sparse = object.value(QLatin1String("sparse")).toObject();
    const qint64 made = layout.count * qint64(sizeof(float)) * components;
    if (layout.components != components || layout.count < 0 || layout.count > m_budget || made > m_budget)
        return fail(layout.place);
    m_budget -= made;
    const QJsonValue number = object.value(QLatin1String("bufferView"));
    if (number.isUndefined())
        return false;
    return view(number, wholeNumber(object.value(QLatin1String("byteOffset")), 0), layout.span);
}

/// Returns true on failure.
template <typename Number>
bool GltfBytes::decode(const Span &span, int component, int components, qint64 count, bool normalized,
                       Number *into)
{
    const qint64 part = sizeOfComponent(component);
    const qint64 element = part * components;
    const qint64 stride = span.stride > 0 ? span.stride : element;
    // By division: a product of what the file says may be anything.
    if (part == 0 || stride < element ||
        (count > 0 && (span.size < element || (span.size - element) / stride < count - 1)))
        return true;
    for (qint64 i = 0; i < count; ++i) {
        for (int c = 0; c < components; ++c) {
            if (!convert(span.data + i * stride + c * part, component, normalized, *into++))
                return true;
        }
    }
    return false;
}

template <typename Number>
bool GltfBytes::applySparse(const Layout &layout, std::vector<Number> &numbers)
{
    const QJsonObject indices = layout.sparse.value(QLatin1String("indices")).toObject();
    const QJsonObject values = layout.sparse.value(QLatin1String("values")).toObject();
    const qint64 count = wholeNumber(layout.sparse.value(QLatin1String("count")), -1);
    Span indexSpan;
    Span valueSpan;
    if (count < 0 || count > layout.count ||
        view(indices.value(QLatin1String("bufferView")),
             wholeNumber(indices.value(QLatin1String("byteOffset")), 0), indexSpan) ||
        view(values.value(QLatin1String("bufferView")),
             wholeNumber(values.value(QLatin1String("byteOffset")), 0), valueSpan))
        return true;
    std::vector<quint32> places(static_cast<size_t>(count));
    std::vector<Number> replaced(size_t(count) * size_t(layout.components));
    if (decode(indexSpan, indices.value(QLatin1String("componentType")).toInt(), 1, count, false,
               places.data()) ||
        decode(valueSpan, layout.component, layout.components, count, layout.normalized, replaced.data()))
        return true;
    for (size_t i = 0; i < places.size(); ++i) {
        if (qint64(places[i]) >= layout.count)
            return true;
        std::copy_n(replaced.begin() + std::ptrdiff_t(i) * layout.components, layout.components,
                    numbers.begin() + std::ptrdiff_t(places[i]) * layout.components);
    }
    return false;
}

template <typename Number>
std::shared_ptr<const std::vector<Number>> GltfBytes::elements(const QJsonValue &accessor, int components)
{
    Layout layout;
    if (locate(accessor, components, layout))
        return {};
    auto numbers = std::make_shared<std::vector<Number>>(size_t(layout.count) * size_t(components));
    const bool failed = (layout.span.data && decode(layout.span, layout.component, components, layout.count,
                                                    layout.normalized, numbers->data())) ||
                        (!layout.sparse.isEmpty() && applySparse(layout, *numbers));
    if (failed) {
        fail(layout.place);
        return {};
    }
    return numbers;
}

// The times of an animation's channels, and the vertices of a mesh's primitives, are often the same accessor.
GltfBytes::Floats GltfBytes::floats(const QJsonValue &accessor, int components)
{
    const qint64 key = wholeNumber(accessor, -1) * 32 + components;
    const auto found = m_floats.constFind(key);
    return found != m_floats.constEnd() ? *found
                                        : *m_floats.insert(key, elements<float>(accessor, components));
}

GltfBytes::Integers GltfBytes::integers(const QJsonValue &accessor, int components)
{
    const qint64 key = wholeNumber(accessor, -1) * 32 + components;
    const auto found = m_integers.constFind(key);
    return found != m_integers.constEnd() ? *found
                                          : *m_integers.insert(key, elements<quint32>(accessor, components));
}
