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

bool hasDrive(const QString &name)
{
    return name.size() >= 2 && name[1] == QLatin1Char(':') && name[0].isLetter();
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
    if (name.startsWith(QLatin1Char('/')) || hasDrive(name))
        return made;
    made.isFolder = name.endsWith(QLatin1Char('/'));
    const bool isPlain = !name.contains(QLatin1String("//")) && !name.contains(QLatin1Char('.'));
    QStringList parts = name.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (!isPlain) {
        parts.removeAll(QStringLiteral("."));
        if (parts.contains(QStringLiteral("..")))
            return made;
    }
    if (parts.isEmpty() || parts.size() > MostZipFolders + 1)
        return made;
    made.path = parts.join(QLatin1Char('/'));
    made.isRefused = false;
    return made;
}
