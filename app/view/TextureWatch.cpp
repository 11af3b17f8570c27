// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureWatch.h"

#include "DocumentLoader.h"
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

/// These end early when nobody wants what they find.
QStringList namesOf(const QStringList &materialPaths, const QString &game, const QString &mod,
                    const Background::Cancelled &cancelled)
{
    MaterialFiles materials(game, mod);
    QStringList names;
    for (const QString &materialPath : materialPaths) {
        if (cancelled)
            break;
        names.append(QFileInfo(materialPath).path() + QStringLiteral(".kmat"));
        const QString texture = materials.find(materialPath).texture;
        if (!texture.isEmpty() && texture != MaterialFiles::Blank)
            names.append(texture);
    }
    names.removeDuplicates();
    return names;
}

/// Looked up anew: what comes may be called in another case than it is named.
QMap<QString, FileStamp> stampsNow(const QStringList &names, const QString &game, const QString &mod,
                                   const Background::Cancelled &cancelled)
{
    const FileSearch search(game, mod);
    QMap<QString, FileStamp> files;
    for (const QString &name : names) {
        if (cancelled)
            break;
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
    std::array<QStringList, 2> materials;
    std::array<bool, 2> isWanted{};
    for (size_t i = 0; i < m_shown.size(); ++i) {
        materials[i] = m_shown[i].materials();
        isWanted[i] = m_isReloadWanted || materials[i] != m_shown[i].listed;
    }
    m_collecting.cancel();
    if (isWanted == std::array<bool, 2>{})
        return;
    struct Found
    {
        QStringList names;
        QMap<QString, FileStamp> files;
    };
    const auto work = [materials, isWanted, game = Settings::GamePath.value(),
                       mod = Settings::OutputDir.value()](const Background::Cancelled &cancelled) {
        std::array<Found, 2> found;
        for (size_t i = 0; i < found.size(); ++i) {
            if (isWanted[i]) {
                found[i].names = namesOf(materials[i], game, mod, cancelled);
                found[i].files = stampsNow(found[i].names, game, mod, cancelled);
            }
        }
        return found;
    };
    m_collecting.start(work, [this, materials, isWanted](std::array<Found, 2> found) {
        for (size_t i = 0; i < found.size(); ++i) {
            if (isWanted[i])
                take(m_shown[i], materials[i], std::move(found[i].names), std::move(found[i].files));
        }
        watchPaths();
        if (m_looking.isRunning())
            look(); // it looks at what is shown no more
        if (std::exchange(m_isReloadWanted, false)) {
            for (const Shown &each : m_shown)
                each.viewport->rebuildModel();
            emit reloaded();
        }
    });
    // Few are found at once, and what happens to them next is a change.
    m_collecting.wait(DocumentLoader::usualPatience());
}

void TextureWatch::take(Shown &shown, const QStringList &materials, QStringList names,
                        QMap<QString, FileStamp> files) const
{
    shown.listed = materials;
    shown.names = std::move(names);
    const auto drawn = std::exchange(shown.files, std::move(files));
    if (m_isReloadWanted)
        return;
    // What is not drawn anew may have changed since it was.
    for (auto file = drawn.begin(); file != drawn.end(); ++file) {
        const auto known = shown.files.find(file.key());
        if (known != shown.files.end())
            *known = *file;
    }
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
    const auto work = [names = std::array{m_shown[0].names, m_shown[1].names},
                       game = Settings::GamePath.value(),
                       mod = Settings::OutputDir.value()](const Background::Cancelled &cancelled) {
        return std::array{stampsNow(names[0], game, mod, cancelled),
                          stampsNow(names[1], game, mod, cancelled)};
    };
    m_looking.start(work, [this](std::array<QMap<QString, FileStamp>, 2> now) {
        bool isChanged = false, rests = true;
        for (size_t i = 0; i < now.size(); ++i) {
            isChanged = isChanged || now[i] != m_shown[i].files;
            rests = rests && now[i] == m_shown[i].seen;
            m_shown[i].seen = std::move(now[i]);
        }
        if (isChanged && rests)
            reload();
        else if (isChanged)
            m_rest.start(RestMs);
    });
}

void TextureWatch::reload()
{
    m_rest.stop();
    m_looking.cancel();
    m_isReloadWanted = true;
    collect();
}
