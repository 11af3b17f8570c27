// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// The container of a glTF file: its JSON text, its buffers, and the numbers that accessors find in them.
///
/// Nothing that a file says is believed: counts, offsets and strides are checked against the bytes that are
/// there, and all accessors together may make no more than a few times as many bytes as the buffers have, and
/// so may all that is copied from them.
class GltfBytes
{
public:
    /// Reads another file that the first one names; null when it cannot be read.
    using FileReader = std::function<QByteArray(const QString &uri)>;

    /// Takes the bytes of a .glb or a .gltf file. Returns true on failure, which error() then explains.
    [[nodiscard]] bool open(const QByteArray &file, const FileReader &readFile);

    const QJsonObject &root() const { return m_root; }
    /// The objects of a list of the root; what is none is empty.
    QJsonArray list(const char *name) const { return m_root.value(QLatin1String(name)).toArray(); }

    /// The components of an accessor, element by element. Null on failure, which error() explains.
    using Floats = std::shared_ptr<const std::vector<float>>;
    Floats floats(const QJsonValue &accessor, int components);
    /// Those of unsigned integers.
    using Integers = std::shared_ptr<const std::vector<quint32>>;
    Integers integers(const QJsonValue &accessor, int components);

    /// Before `bytes` are made for what stands at `place` from accessors that others may use too. Returns
    /// true on failure.
    [[nodiscard]] bool spend(size_t bytes, const QString &place);

    /// Of the first failure; empty without one.
    const QString &error() const { return m_error; }
    /// Notes that what stands there cannot be. Returns true.
    bool fail(const QString &place);
    bool refuse(const QString &reason);

private:
    struct Span
    {
        const uchar *data = nullptr;
        qint64 size = 0;
        qint64 stride = 0;
    };
    struct Layout
    {
        Span span;          ///< none: all zero
        int component = 0;  ///< the format's number of the component's type
        int components = 0; ///< an element
        qint64 count = 0;   ///< elements
        bool normalized = false;
        QJsonObject sparse;
        QString place;
    };

    bool openBinary(const QByteArray &file, QByteArray &json, QByteArray &chunk) const;
    bool openBuffers(const QByteArray &chunk, const FileReader &readFile);
    bool view(const QJsonValue &number, qint64 offset, Span &span);
    bool locate(const QJsonValue &accessor, int components, Layout &layout);
    template <typename Number>
    bool decode(const Span &span, int component, int components, qint64 count, bool normalized, Number *into);
    template <typename Number>
    std::shared_ptr<const std::vector<Number>> elements(const QJsonValue &accessor, int components);
    template <typename Number>
    bool applySparse(const Layout &layout, std::vector<Number> &numbers);

    QByteArray m_file;
    QJsonObject m_root;
    QJsonArray m_accessors;
    QJsonArray m_views;
    std::vector<QByteArray> m_buffers;
    qint64 m_budget = 0;            ///< bytes that accessors may still make
    qint64 m_copyBudget = 0;        ///< bytes that may still be made from those
    QHash<qint64, Floats> m_floats; ///< by accessor and components
    QHash<qint64, Integers> m_integers;
    QString m_error;
};
