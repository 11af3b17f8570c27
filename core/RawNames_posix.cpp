// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RawNames.h"

#include <QFile>

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <memory>

bool mayBeWalked(const QString &folder)
{
    return access(QFile::encodeName(folder).constData(), R_OK | X_OK) == 0;
}

QString nameWithoutText(const QString &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> open(opendir(QFile::encodeName(folder).constData()), closedir);
    if (!open)
        return {};
    while (const dirent *entry = readdir(open.get())) {
        const QByteArray name = QByteArray::fromRawData(entry->d_name, int(std::strlen(entry->d_name)));
        // Nearly all names are text in every encoding, and are not converted.
        const bool isAscii =
            std::all_of(name.begin(), name.end(), [](char each) { return uchar(each) < 0x80; });
        if (isAscii || name.startsWith('.'))
            continue;
        const QString text = QFile::decodeName(name);
        if (QFile::encodeName(text) != name)
            return text;
    }
    return {};
}
