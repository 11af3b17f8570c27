// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RawNames.h"

#include <QFile>

#include <dirent.h>

#include <memory>

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
