// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExportNames.h"

#include <QRegularExpression>

namespace {
const QRegularExpression &copyNumber()
{
    static const QRegularExpression pattern(QStringLiteral("\\.\\d{3,}$"));
    return pattern;
}
} // namespace

std::optional<qint32> bracketedId(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("\\[(-?\\d+)\\]"));
    bool fits = false;
    const qint32 id = pattern.match(name).captured(1).toInt(&fits);
    return fits ? std::optional(id) : std::nullopt;
}

QString bareClipName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("\\s*(\\[-?\\d+\\]|\\(block \\d+\\))"));
    return QString(name).remove(pattern).simplified();
}

QString bareBoneName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^(bone_\\d{3,5}\\s+)+(?=\\S)"));
    return QString(name).remove(pattern).simplified();
}

bool isCopyName(const QString &name)
{
    return copyNumber().match(name).hasMatch();
}

QString withoutCopyNumber(const QString &name)
{
    return QString(name).remove(copyNumber());
}
