// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RawNames.h"

#include <QFile>

#include <dirent.h>
#include <unistd.h>

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
        const QByteArray name(entry->d_name);
        const QString text = QFile::decodeName(name);
        if (!name.startsWith('.') && QFile::encodeName(text) != name)
            return text;
    }
    return {};
}
