// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <vector>

/// A picture of a glTF file.
struct GltfImage
{
    QString fileName; ///< where it stands beside a .gltf file, as "steel.png"
    QString mimeType;
    QByteArray bytes;
};

/// What a glTF file is made of: JSON, one buffer of bytes in little endian, and pictures, which become part
/// of the one or files of their own.
class GltfWriter
{
public:
    /// As much as one file may hold, in bytes: it is built in memory.
    static constexpr qint64 MostBytes = qint64(1) << 30;

    enum class Purpose { Keys = 0, Binds = 1, Vertices = 34962, Indexes = 34963 };

    /// Appends to a list of the JSON, such as "nodes". Returns the index there.
    int append(const char *list, const QJsonObject &object);
    void replace(const char *list, int index, const QJsonObject &object);
    /// The number of the next one.
    int count(const char *list) const;
    void set(const char *name, const QJsonValue &value) { m_root.insert(QLatin1String(name), value); }

    /// Accessors to numbers put into the buffer; `type` is "SCALAR", "VEC3" or another of the format's. Those
    /// of one purpose that follow each other share a view, except for vertices.
    int addFloats(const std::vector<float> &values, const char *type, Purpose purpose,
                  bool withBounds = false);
    int addBytes(const std::vector<quint8> &values, const char *type, bool normalized);
    int addShorts(const std::vector<quint16> &values, const char *type);
    /// Of vertices, as short as may be.
    int addIndexes(const std::vector<quint32> &values, size_t vertexCount);

    /// The index of a picture. `name` of its file need not be the only one.
    int addImage(const GltfImage &image);

    /// More was added than a file may hold; what it would have held is left out.
    bool isTooLarge() const { return m_isTooLarge; }
    const std::vector<GltfImage> &images() const { return m_images; }
    const QByteArray &buffer() const { return m_buffer; }

    /// The whole as one binary file.
    QByteArray glb() const;
    /// The JSON alone, without the names of the files beside it.
    QByteArray json() const;
    /// The same text with the names of the buffer's file, which has so many bytes, and of the pictures'.
    static QByteArray withNames(const QByteArray &json, const QString &bufferName, int bufferSize,
                                const std::vector<GltfImage> &images, const QStringList &imageNames);

private:
    int addView(const char *bytes, qint64 size, Purpose purpose, qint64 &offset);
    int addAccessor(const char *bytes, qint64 size, int componentType, int count, const char *type,
                    Purpose purpose, QJsonObject more = {});
    QJsonObject root() const;
    QJsonArray views() const;

    struct List
    {
        QByteArray name;
        QJsonArray objects;
    };
    struct View
    {
        qint64 offset, size;
        Purpose purpose;
    };
    QJsonArray &list(const char *name);

    QJsonObject m_root;
    std::vector<List> m_lists;
    std::vector<View> m_views;
    std::vector<GltfImage> m_images;
    QByteArray m_buffer;
    qint64 m_imageBytes = 0;
    bool m_isTooLarge = false;
};
