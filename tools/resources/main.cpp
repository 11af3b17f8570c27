// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Makes the textures, the marker sphere, the sound and the reference tables that are compiled into the
// program.
#include "Chime.h"
#include "MarkerSphere.h"
#include "ReferenceTexts.h"
#include "Textures.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <algorithm>

namespace {
bool saveBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool saveReferenceTexts(const QDir &folder)
{
    return std::all_of(referenceKinds.begin(), referenceKinds.end(), [&folder](ReferenceKind kind) {
        return saveBytes(folder.filePath(QStringLiteral("databases/%1.txt").arg(referenceName(kind))),
                         makeReferenceText(kind));
    });
}
} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "usage: korvane-make-resources FOLDER\n";
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    for (const char *name : {"textures", "models", "sounds", "databases"}) {
        if (!folder.mkpath(QLatin1String(name)))
            return 1;
    }
    const bool saved = makePlainTexture(Qt::white).save(folder.filePath("textures/blank.png")) &&
                       makePlainTexture(QColor(224, 58, 62)).save(folder.filePath("textures/red.png")) &&
                       makePlainTexture(QColor(74, 190, 92)).save(folder.filePath("textures/green.png")) &&
                       makePlainTexture(QColor(61, 124, 235)).save(folder.filePath("textures/blue.png")) &&
                       makeGroundTexture().save(folder.filePath("textures/ground.png")) &&
                       !makeMarkerSphere().write(folder.filePath("models/spherewire.staticmesh")) &&
                       saveBytes(folder.filePath("sounds/test.wav"), makeChime()) &&
                       saveReferenceTexts(folder);
    if (!saved)
        QTextStream(stderr) << "cannot write to " << folder.path() << '\n';
    return saved ? 0 : 1;
}
