// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureList.h"

#include "Files.h"
#include "PictureFile.h"
#include "Settings.h"

#include <QDir>
#include <QSet>

namespace {
constexpr qint64 RecentMs = 15000;
constexpr int MostTextures = 200000; ///< a folder of nonsense may hold any number of files

QStringList listTextures(const QString &gamePath, const QString &outputDir,
                         const Background::Cancelled &cancelled)
{
    QStringList textures;
    QSet<QString> known; // in one case, as they are looked up
    for (const QString &folder : {gamePath, outputDir}) {
        if (folder.isEmpty())
            continue;
        const QString root = QDir::cleanPath(folder);
        Files::walk(root, [&](const FolderEntry &entry) {
            const QString name = entry.path.mid(root.size() + 1);
            const QString key = name.toCaseFolded();
            if (!entry.isFolder && isPictureName(name) && !known.contains(key)) {
                known.insert(key);
                textures.append(name);
            }
            return !cancelled && textures.size() < MostTextures;
        });
    }
    textures.sort();
    return textures;
}
} // namespace

TextureList::TextureList(QObject *parent)
    : QObject(parent)
{}

void TextureList::refreshOld()
{
    if (m_reader.isRunning() || (m_since.isValid() && !m_since.hasExpired(RecentMs)))
        return;
    const auto read = [gamePath = Settings::GamePath.value(),
                       outputDir = Settings::OutputDir.value()](const Background::Cancelled &cancelled) {
        return listTextures(gamePath, outputDir, cancelled);
    };
    m_reader.start(read, [this](QStringList textures) {
        m_since.start();
        if (textures == m_textures)
            return;
        m_textures = std::move(textures);
        emit changed();
    });
}
