// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <QtEndian>

/// The three binary formats read in the dumbest way there is: one scalar after another, keeping nothing.
/// It says whether a file reads, with which message it fails, what type of scalar each byte belongs to and
/// where the counts stand; the real readers are compared with it.
class LiteralFormat
{
public:
    struct Count
    {
        const char *name;
        int offset;
    };

    struct Scalar
    {
        const char *type; ///< "int32", "uint16", "int8", "uint8" or "float"
        int offset;
        int width; ///< in bytes
    };

    /// `suffix` is that of the files: "skinnedmesh", "anim" or "staticmesh".
    LiteralFormat(const QString &suffix, const QByteArray &bytes)
        : m_bytes(bytes)
    {
        if (suffix == QLatin1String("skinnedmesh"))
            skinnedMesh();
        else if (suffix == QLatin1String("anim"))
            anim();
        else
            staticMesh();
    }

    bool failed() const { return m_silent || !m_error.isEmpty(); }
    QString errorText() const { return m_error; }
    /// How many bytes were read.
    int length() const { return m_types.size(); }
    QVector<Count> counts() const { return m_counts; }
    /// What was read, one after the other.
    QVector<Scalar> scalars() const
    {
        QVector<Scalar> all;
        for (int at = 0; at < m_types.size(); at += all.last().width) {
            const QLatin1String type(m_types.at(at));
            const int width = type == QLatin1String("uint16") ? 2 : type.endsWith(QLatin1Char('8')) ? 1 : 4;
            all.append({type.data(), at, width});
        }
        return all;
    }
    /// A negative count stood where the file holds a list, so that it is not written back as it was.
    bool hasNegativeCount() const { return m_negative; }

    /// The message for a file that ends within a scalar of that type.
    static QString endOfFile(const char *type)
    {
        return QStringLiteral("Attempting to read %1 value from file, but reached end of file.")
            .arg(QLatin1String(type));
    }
    /// The message for a file cut off after `length` bytes of this one.
    QString errorTextWhenCutAt(int length) const { return endOfFile(m_types.at(length)); }

private:
    quint32 scalar(const char *type, int width)
    {
        if (failed())
            return 0;
        if (m_bytes.size() - m_types.size() < width) {
            m_error = endOfFile(type);
            return 0;
        }
        quint32 value = 0;
        for (int i = 0; i < width; ++i)
            value |= quint32(quint8(m_bytes.at(m_types.size() + i))) << (8 * i);
        m_types.resize(m_types.size() + width);
        std::fill(m_types.end() - width, m_types.end(), type);
        return value;
    }

    void floats(qint64 count)
    {
        for (qint64 i = 0; i < count && !failed(); ++i)
            scalar("float", 4);
    }
    qint32 int32() { return qint32(scalar("int32", 4)); }
    quint32 uint16() { return scalar("uint16", 2); }
    void int8() { scalar("int8", 1); }
    quint32 uint8() { return scalar("uint8", 1); }
    void string()
    {
        while (uint8() != 0) {
        }
    }

    qint32 count(const char *name)
    {
        if (!failed() && m_bytes.size() - m_types.size() >= 4)
            m_counts.append({name, m_types.size()});
        const qint32 value = int32();
        m_negative = m_negative || value < 0;
        return value;
    }

    template <typename Record>
    void list(qint64 count, Record record)
    {
        for (qint64 i = 0; i < count && !failed(); ++i)
            record();
    }

    void skinnedMesh()
    {
        int32();
        floats(6);
        uint8();
        uint8();
        int8();
        const qint32 nodes = count("nodeCount");
        list(nodes, [this] { list(count("childCount"), [this] { uint16(); }); });
        list(nodes, [this] {
            floats(6);
            uint8();
            int8();
            uint8();
            floats(1);
            int32();
        });
        int32();
        list(count("hotPointCount"), [this] {
            floats(3);
            int32();
            list(3, [this] { uint16(); });
        });
        int32();
        const qint32 surfaces = count("surfaceCount");
        list(surfaces, [this] {
            string();
            while (!failed() && uint16() != 0xFFFF) {
            }
        });
        if (surfaces != 0) {
            list(count("vertexCount"), [this] {
                floats(8);
                uint16();
            });
        }
    }

    void anim()
    {
        int32();
        list(count("blockCount"), [this] {
            int32();
            const qint32 frames = count("frameCount");
            const qint32 nodes = count("nodeCount");
            const qint32 initialNodes = count("initialNodeCount");
            const qint32 translations = count("translationCount");
            const qint32 rotations = count("rotationCount");
            const qint32 actions = count("actionCount");
            floats(1);
            list(3, [this] { uint16(); });
            floats(1);
            uint16();
            if (!failed() && nodes != initialNodes) {
                m_error = QStringLiteral(
                    "nodeLength is different value than initialNodeLength. They should be the same.");
            }
            list(2 * qint64(nodes), [this] { uint16(); });
            list(nodes, [this] { floats(7); });
            floats(frames);
            tracks(translations, frames, 3);
            tracks(rotations, frames, 4);
            list(actions, [this] {
                list(3, [this] { uint16(); });
                floats(11);
            });
            if (!failed() && m_emptyTracks > 4 * 65536)
                m_error = QStringLiteral("Attempting to read %1 tracks without frames.").arg(m_emptyTracks);
        });
    }

    void tracks(qint32 count, qint32 frames, int components)
    {
        if (frames > 0)
            list(count, [=] { floats(qint64(frames) * components); });
        else if (!failed() && count > 65536)
            m_error = QStringLiteral("Attempting to read %1 tracks without frames.").arg(count);
        else if (!failed())
            m_emptyTracks += count > 0 ? count : 0;
    }

    void staticMesh()
    {
        int32();
        floats(6);
        const qint32 surfaces = positiveCount("surfaceCount");
        list(surfaces, [this] {
            string();
            list(3 * qint64(positiveCount("triangleCount")), [this] { uint16(); });
        });
        list(positiveCount("vertexCount"), [this] { floats(8); });
    }

    qint32 positiveCount(const char *name)
    {
        const qint32 value = count(name);
        m_silent = m_silent || value < 0;
        return value;
    }

    QByteArray m_bytes;
    QVector<const char *> m_types; ///< of the scalar that each byte belongs to
    QVector<Count> m_counts;
    QString m_error;
    qint64 m_emptyTracks = 0;
    bool m_silent = false;
    bool m_negative = false;
};
