// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceTable.h"

#include "Log.h"
#include "OwnFolders.h"

#include <QCoreApplication>
#include <QFile>

bool ReferenceTable::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        Log::error(
            QCoreApplication::translate("ReferenceTable", "Unable to read database file at %1").arg(path));
        return true;
    }
    append(file);
    return false;
}

void ReferenceTable::append(QIODevice &text)
{
    while (!text.atEnd()) {
        const QStringList words = QString::fromUtf8(text.readLine())
                                      .remove(QLatin1Char('\n'))
                                      .replace(QLatin1Char('\t'), QLatin1Char(' '))
                                      .split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty())
            continue;
        ReferenceRow row{words.first(), words.first().toInt(), {}};
        for (int i = 1; i < words.size(); ++i)
            row.name += QLatin1Char(' ') + words[i];
        rows.push_back(std::move(row));
    }
}

QString referenceName(ReferenceKind kind)
{
    static const char *const names[] = {"actors", "sounds", "animations", "voices", "particles", "impacts"};
    return QString::fromLatin1(names[size_t(kind)]);
}

QString referenceOverrideFolder()
{
    return OwnFolders::data() + QStringLiteral("/databases");
}

QString builtInReferencePath(ReferenceKind kind)
{
    return QStringLiteral(":/databases/%1.txt").arg(referenceName(kind));
}

QString referencePath(ReferenceKind kind)
{
    const QString path = QStringLiteral("%1/%2.txt").arg(referenceOverrideFolder(), referenceName(kind));
    return QFile::exists(path) ? path : builtInReferencePath(kind);
}
