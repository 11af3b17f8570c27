// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ZipNames.h"

#include <QStringList>
#include <QTextCodec>

#include <algorithm>

namespace {
constexpr int MostNameBytes = 1024;

QString decodedName(const QByteArray &bytes, bool isUtf8)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; }))
        return QString::fromLatin1(bytes);
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state;
    const QString text = utf8->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isText = state.invalidChars == 0 && state.remainingChars == 0;
    return isText || isUtf8 ? text : QString::fromLatin1(bytes);
}

/// The folder itself or the one around it, also as Windows reads ".. ".
bool isOnlyDots(const QString &part)
{
    return std::all_of(part.begin(), part.end(),
                       [](QChar c) { return c == QLatin1Char('.') || c == QLatin1Char(' '); });
}
} // namespace

ZipName zipName(const QByteArray &bytes, bool isUtf8)
{
    ZipName made;
    made.isRefused = true;
    if (bytes.isEmpty() || bytes.size() > MostNameBytes || bytes.contains('\0'))
        return made;
    QString name = decodedName(bytes, isUtf8);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // A colon is of a drive or of a second stream of a file.
    if (name.startsWith(QLatin1Char('/')) || name.contains(QLatin1Char(':')))
        return made;
    made.isFolder = name.endsWith(QLatin1Char('/'));
    const bool isPlain = !name.contains(QLatin1String("//")) && !name.contains(QLatin1Char('.'));
    QStringList parts = name.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (!isPlain) {
        parts.removeAll(QStringLiteral("."));
        if (std::any_of(parts.cbegin(), parts.cend(), isOnlyDots))
            return made;
    }
    if (parts.isEmpty() || parts.size() > MostZipFolders + 1)
        return made;
    made.path = parts.join(QLatin1Char('/'));
    made.isRefused = false;
    return made;
}
