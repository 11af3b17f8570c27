// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TexturesAhead.h"

#include "DocumentKind.h"
#include "FileStamp.h"
#include "Files.h"
#include "MaterialFiles.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TextureImages.h"

namespace {
QString lastOfKind(const QStringList &paths, DocumentType type)
{
    QString last;
    for (const QString &path : paths) {
        const DocumentKind *kind = documentKindOfFile(path);
        if (kind && kind->type == type)
            last = path;
    }
    return last;
}

template <typename Model>
QStringList materialsIn(const QString &path)
{
    Model model;
    QStringList materials;
    if (path.isEmpty() || model.read(path))
        return materials;
    for (const auto &surface : model.surfaces)
        materials.append(surface.materialPath);
    return materials;
}

QStringList materialsOf(const QString &path)
{
    const DocumentKind *kind = documentKindOfFile(path);
    if (kind && kind->type == DocumentType::SkinnedMesh)
        return materialsIn<SkinnedMesh>(path);
    return kind && kind->type == DocumentType::StaticMesh ? materialsIn<StaticMesh>(path) : QStringList();
}

/// Takes the bytes of the textures from `room`: beyond it the next would push out the first.
void loadTextures(const QStringList &materialPaths, MaterialFiles materials,
                  const std::atomic_bool &isStopped, qint64 &room, qint64 (*decode)(const QString &path))
{
    for (const QString &materialPath : materialPaths) {
        const QString texture = materials.find(materialPath).texture;
        if (texture.isEmpty() || texture == MaterialFiles::Blank)
            continue;
        for (const QString &path : materials.candidates(texture)) {
            if (isStopped || room < 0)
                return;
            const qint64 bytes = decode(path);
            room -= bytes;
            if (bytes > 0)
                break;
        }
    }
}

qint64 decodeNow(const QString &path)
{
    return TextureImages::load(path).sizeInBytes();
}
} // namespace

// Without a thread to be had nothing is done, and the window decodes the textures.
TexturesAhead::TexturesAhead(const QStringList &paths)
    : m_done(std::async(std::launch::async | std::launch::deferred,
                        [this, skinned = lastOfKind(paths, DocumentType::SkinnedMesh),
                         rigid = lastOfKind(paths, DocumentType::StaticMesh),
                         gamePath = Settings::GamePath.value(), outputDir = Settings::OutputDir.value()] {
                            (void)Files::isFolder(gamePath); // the window asks for what is in it soon
                            qint64 room = TextureImages::Room;
                            loadTextures(materialsOf(skinned) + materialsOf(rigid), {gamePath, outputDir},
                                         m_stopped, room, decodeNow);
                        }))
{}

TexturesAhead::~TexturesAhead()
{
    m_stopped = true;
}

NeighboursAhead::NeighboursAhead(QObject *parent)
    : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &NeighboursAhead::load);
}

void NeighboursAhead::expect(const QStringList &paths)
{
    m_loading.cancel();
    m_paths = paths;
    m_delay.start();
}

void NeighboursAhead::load()
{
    const auto work = [paths = m_paths, gamePath = Settings::GamePath.value(),
                       outputDir = Settings::OutputDir.value()](const Background::Cancelled &cancelled) {
        qint64 room = TextureImages::AheadRoom;
        for (const QString &path : paths) {
            if (!cancelled && FileStamp::of(path).size <= MostBytes)
                loadTextures(materialsOf(path), {gamePath, outputDir}, cancelled, room,
                             TextureImages::loadAhead);
        }
        return true;
    };
    m_loading.start(work, [this](bool) { emit done(); });
}
