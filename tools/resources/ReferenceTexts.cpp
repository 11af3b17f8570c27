// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceTexts.h"

#include "NameTables.h"

namespace {
constexpr int ActorRows = 354;
constexpr int SoundRows = 1266;
constexpr int AnimationRows = 973;
constexpr int VoiceRows = 115;
constexpr int ParticleRows = 383;

constexpr int FirstVoice = 310;
constexpr int ExplosionSound = 10;

QByteArray row(int id, const QString &name)
{
    return QByteArray::number(id) + ' ' + name.toLatin1();
}

QByteArray row(int id, const char *placeholder)
{
    return row(id, QString::fromLatin1(placeholder).replace(QLatin1String("%1"), QString::number(id)));
}

QByteArrayList actors()
{
    QByteArrayList rows;
    for (int id = -1; rows.size() < ActorRows; ++id)
        rows << row(id, id <= 0 ? "Dummy (Could be used for anything)" : "Unnamed actor %1");
    return rows;
}

/// A sound has variants: rows of the same id.
QByteArrayList sounds()
{
    QByteArrayList rows;
    for (int id = 0; rows.size() < SoundRows; ++id) {
        const int variants = id % 5 == 0 ? 3 : 1;
        for (int variant = 1; variant <= variants && rows.size() < SoundRows; ++variant) {
            if (id == ExplosionSound && variant == 1)
                rows << row(id, "Ambient Explosion 1");
            else if (variants == 1)
                rows << row(id, "Unnamed sound %1");
            else
                rows << row(id, QStringLiteral("Unnamed sound %1 variant %2").arg(id).arg(variant));
        }
    }
    return rows;
}

/// The ids are not in order: steps of a number without a divisor in common with the row count visit each
/// once.
QByteArrayList animations()
{
    constexpr int step = 100;
    QByteArrayList rows;
    for (int i = 0; i < AnimationRows; ++i)
        rows << row(i * step % AnimationRows, "Unnamed animation %1");
    return rows;
}

QByteArrayList voices()
{
    QByteArrayList rows;
    for (int id = FirstVoice; rows.size() < VoiceRows; ++id)
        rows << row(id, "Unnamed voice %1");
    return rows;
}

QByteArrayList particles()
{
    QByteArrayList rows{row(-1, "Generic_Teleport.particle")};
    for (int id = 0; rows.size() < ParticleRows; ++id)
        rows << row(id, "Unnamed_Particle_%1.particle");
    return rows;
}

QByteArrayList impacts()
{
    QByteArrayList rows;
    for (const QString &name : impactTypeNames())
        rows << row(rows.size(), name);
    return rows;
}
} // namespace

QByteArray makeReferenceText(ReferenceKind kind)
{
    static constexpr QByteArrayList (*makers[])() = {actors, sounds, animations, voices, particles, impacts};
    return makers[size_t(kind)]().join("\r\n");
}
