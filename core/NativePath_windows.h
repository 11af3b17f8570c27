// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

#include <string>

/// A path as the functions of Windows take it at any length: the usual form ends at 260 characters.
inline std::wstring nativePath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(QDir().absoluteFilePath(path)));
    if (native.startsWith(QLatin1String("\\\\?\\")) || native.startsWith(QLatin1String("\\\\.\\")))
        return native.toStdWString();
    const bool isShare = native.startsWith(QLatin1String("\\\\"));
    return (isShare ? QStringLiteral("\\\\?\\UNC") + native.mid(1) : QStringLiteral("\\\\?\\") + native)
        .toStdWString();
}
