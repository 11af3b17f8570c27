// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GameMaterials.h"

#include "FileContent.h"
#include "FileStamp.h"
#include "ModFiles.h"

#include <QDir>
#include <QHash>
#include <QMutex>

namespace {
struct NamedMaterials
{
    FileStamp stamp;
    QStringList keys;
};

struct KnownMeshes
{
    QMutex mutex;
    QString game;
    QHash<QString, NamedMaterials> byPath;
};

/// Never destroyed: a thread may still look when the program ends.
KnownMeshes &knownMeshes()
{
    static auto *all = new KnownMeshes;
    return *all;
}

template <typename Mesh>
void addKeys(const FileContent &content, QStringList &keys)
{
    if (const auto *mesh = std::get_if<Mesh>(&content)) {
        for (const auto &surface : mesh->surfaces)
            keys.append(materialKey(surface.materialPath));
    }
}
} // namespace

QString materialKey(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    const int name = clean.lastIndexOf(QLatin1Char('/')) + 1;
    return clean.left(name).toCaseFolded() + clean.mid(name);
}

QSet<QString> materialsOfGame(const ModFiles &game, const std::function<bool()> &goesOn)
{
    KnownMeshes &known = knownMeshes();
    const QMutexLocker lock(&known.mutex);
    if (known.game != game.folder())
        known.byPath.clear();
    known.game = game.folder();
    QSet<QString> found;
    for (const ModFile &file : game.files()) {
        if (!goesOn())
            break;
        if (!isMesh(file.path))
            continue;
        const FileStamp stamp = FileStamp::of(file.path);
        NamedMaterials &named = known.byPath[file.path];
        if (named.stamp != stamp) {
            FileContent content;
            named = {stamp, {}};
            if (readFile(file.path, content).isEmpty()) {
                addKeys<SkinnedMesh>(content, named.keys);
                addKeys<StaticMesh>(content, named.keys);
                named.keys.removeDuplicates();
            }
        }
        for (const QString &key : qAsConst(named.keys))
            found.insert(key);
    }
    return found;
}
