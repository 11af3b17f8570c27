// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureWatch.h"

#include "FileSearch.h"
#include "KVOpenGLWidget.h"
#include "MaterialFiles.h"
#include "Settings.h"
#include "WatchedPaths.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {
/// A file of nonsense may name any number.
constexpr int MostMaterials = 500;
/// Notifications that come at once are taken together.
constexpr int TogetherMs = 50;

template <typename Model>
QStringList shownMaterials(const ModelDocument<Model> &document)
{
    QStringList materials;
    for (const auto &surface : document.model().surfaces) {
        if (materials.size() < MostMaterials && !materials.contains(surface.materialPath))
            materials.append(surface.materialPath);
    }
    return materials;
}

QStringList namesOf(const QStringList &materialPaths)
{
    MaterialFiles materials(Settings::GamePath.value(), Settings::OutputDir.value());
    QStringList names;
    for (const QString &materialPath : materialPaths) {
        names.append(QFileInfo(materialPath).path() + QStringLiteral(".kmat"));
        const QString texture = materials.find(materialPath).texture;
        if (!texture.isEmpty() && texture != MaterialFiles::Blank)
            names.append(texture);
    }
    names.removeDuplicates();
    return names;
}

/// Looked up anew: what comes may be called in another case than it is named.
QMap<QString, FileStamp> stampsNow(const QStringList &names)
{
    const FileSearch search(Settings::GamePath.value(), Settings::OutputDir.value());
    QMap<QString, FileStamp> files;
    for (const QString &name : names) {
        for (const QString &path : search.candidates(name))
            files.insert(path, FileStamp::of(path));
    }
    return files;
}
} // namespace

TextureWatch::TextureWatch(const SkinnedMeshDocument &skinned, const StaticMeshDocument &rigid,
                           const Viewports &viewports, QObject *parent)
    : QObject(parent)
    , m_shown{{{viewports[0], [&skinned] { return shownMaterials(skinned); }, {}, {}, {}, {}},
               {viewports[1], [&rigid] { return shownMaterials(rigid); }, {}, {}, {}, {}}}}
{
    m_collect.setSingleShot(true);
    connect(&m_collect, &QTimer::timeout, this, &TextureWatch::collect);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &TextureWatch::look);
    follow(skinned);
    follow(rigid);
    const auto changes = [this] {
        if (!m_rest.isActive())
            m_rest.start(TogetherMs);
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changes);
    // New files, and those that are replaced by others of their names, are seen in their folders only.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changes);
    // Folders of other machines notify nobody.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, changes);
}

void TextureWatch::follow(const Document &document)
{
    const auto collectSoon = [this] { m_collect.start(0); };
    connect(&document, &Document::replaced, this, collectSoon);
    connect(&document, &Document::structuresChanged, this, collectSoon);
    connect(&document, &Document::recordsChanged, this, [collectSoon](const QVector<RecordRef> &records) {
        const auto isSurface = [](const RecordRef &record) {
            return record.kind == RecordKind::SkinnedSurface || record.kind == RecordKind::StaticSurface;
        };
        if (std::any_of(records.begin(), records.end(), isSurface))
            collectSoon();
    });
}

void TextureWatch::collect()
{
    bool isOther = false;
    for (Shown &each : m_shown) {
        QStringList materials = each.materials();
        if (materials == each.listed)
            continue;
        each.listed = std::move(materials);
        // What is not drawn anew may have changed since it was.
        each.names = namesOf(each.listed);
        const auto drawn = std::exchange(each.files, stampsNow(each.names));
        for (auto file = drawn.begin(); file != drawn.end(); ++file) {
            const auto known = each.files.find(file.key());
            if (known != each.files.end())
                *known = *file;
        }
        isOther = true;
    }
    if (isOther)
        watchPaths();
}

void TextureWatch::watchPaths()
{
    QSet<QString> wanted;
    for (const Shown &each : m_shown) {
        for (auto file = each.files.begin(); file != each.files.end(); ++file)
            wanted.insert(file.key());
    }
    watchFiles(m_watcher, wanted);
}

void TextureWatch::look()
{
    watchPaths();
    m_ahead.read({Settings::GamePath.value(), Settings::OutputDir.value()}, [this] { lookNow(); });
}

void TextureWatch::lookNow()
{
    bool isChanged = false, rests = true;
    for (Shown &each : m_shown) {
        auto now = stampsNow(each.names);
        isChanged = isChanged || now != each.files;
        rests = rests && now == each.seen;
        each.seen = std::move(now);
    }
    if (isChanged && rests)
        reload();
    else if (isChanged)
        m_rest.start(RestMs);
}

void TextureWatch::reload()
{
    m_rest.stop();
    for (Shown &each : m_shown) {
        each.listed = each.materials();
        each.names = namesOf(each.listed);
        each.files = stampsNow(each.names);
    }
    watchPaths();
    for (const Shown &each : m_shown)
        each.viewport->rebuildModel();
    emit reloaded();
}
