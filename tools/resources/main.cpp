// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Makes the textures, the marker sphere and the sound that are compiled into the program.
#include "Chime.h"
#include "MarkerSphere.h"
#include "Textures.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {
bool saveSound(const QString &path)
{
    QFile file(path);
    const QByteArray bytes = makeChime();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "usage: korvane-make-resources FOLDER\n";
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    for (const char *name : {"textures", "models", "sounds"}) {
        if (!folder.mkpath(QLatin1String(name)))
            return 1;
    }
    const bool saved = makePlainTexture(Qt::white).save(folder.filePath("textures/blank.png")) &&
                       makePlainTexture(QColor(224, 58, 62)).save(folder.filePath("textures/red.png")) &&
                       makePlainTexture(QColor(74, 190, 92)).save(folder.filePath("textures/green.png")) &&
                       makePlainTexture(QColor(61, 124, 235)).save(folder.filePath("textures/blue.png")) &&
                       makeGroundTexture().save(folder.filePath("textures/ground.png")) &&
                       !makeMarkerSphere().write(folder.filePath("models/spherewire.staticmesh")) &&
                       saveSound(folder.filePath("sounds/test.wav"));
    if (!saved)
        QTextStream(stderr) << "cannot write to " << folder.path() << '\n';
    return saved ? 0 : 1;
}
