// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialCatalog.h"

#include "BinaryFileWriter.h"
#include "FilePictures.h"
#include "Files.h"
#include "MaterialFiles.h"
#include "Settings.h"

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {
/// A folder of nonsense may hold any number of files.
constexpr int MostFiles = 20000;
constexpr qint64 Moment = 15000; // milliseconds
constexpr int MostMaterials = 200000;
constexpr qint64 MostPicturePixels = 4096 * 4096;
/// So many are made before they are shown.
constexpr int IconsAtOnce = 8;

QIcon emptyIcon()
{
    QPixmap none(MaterialCatalog::IconSide, MaterialCatalog::IconSide);
    none.fill(Qt::transparent);
    return none;
}

QImage smallPicture(const QStringList &candidates)
{
    for (const QString &path : candidates) {
        const QSize size = Files::pictureSize(path);
        if (size.isEmpty() || qint64(size.width()) * size.height() > MostPicturePixels)
            continue;
        const QImage image = Files::readPicture(path).image;
        if (image.isNull())
            continue;
        constexpr int side = MaterialCatalog::IconSide;
        const QImage small = image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        // All of one size, so that names stand below one another.
        QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
        square.fill(Qt::transparent);
        QPainter(&square).drawImage((side - small.width()) / 2, (side - small.height()) / 2, small);
        return square;
    }
    return {};
}
} // namespace

QVector<Material> listMaterials(const QString &gamePath, const QString &outputDir,
                                const Background::Cancelled &cancelled)
{
    const QString extension = QStringLiteral(".kmat");
    QVector<Material> materials;
    QSet<QString> files; // relative, without the extension, in one case
    for (const QString &folder : {gamePath, outputDir}) {
        if (folder.isEmpty())
            continue;
        const QDir root(QDir::cleanPath(folder));
        Files::walk(root.path(), [&](const FolderEntry &entry) {
            if (entry.isFolder || !entry.path.endsWith(extension, Qt::CaseInsensitive))
                return !cancelled;
            const QString file = root.relativeFilePath(entry.path).chopped(extension.size());
            MaterialTable table;
            const QString key = file.toCaseFolded(); // as it is looked up
            if (files.contains(key))
                return !cancelled;
            files.insert(key);
            if (readKMat(entry.path, table).isEmpty()) {
                for (const auto &[name, texture] : table) {
                    const QString path = file + QLatin1Char('/') + name;
                    if (BinaryFileWriter::canWrite(path))
                        materials.append({path, texture});
                }
            }
            return !cancelled && files.size() < MostFiles && materials.size() < MostMaterials;
        });
    }
    std::sort(materials.begin(), materials.end(),
              [](const Material &a, const Material &b) { return a.path < b.path; });
    return materials;
}

MaterialCatalog::MaterialCatalog(QObject *parent)
    : QObject(parent)
    , m_none(emptyIcon())
{}

void MaterialCatalog::refresh()
{
    if (m_reader.isRunning())
        return;
    m_isStale = false;
    const auto read = [gamePath = Settings::GamePath.value(),
                       outputDir = Settings::OutputDir.value()](const Background::Cancelled &cancelled) {
        return listMaterials(gamePath, outputDir, cancelled);
    };
    m_reader.start(read, [this](QVector<Material> materials) {
        const bool isOther = !std::exchange(m_wasRead, true) || materials != m_materials;
        m_materials = std::move(materials);
        m_sinceRead.start();
        if (isOther)
            emit changed();
        if (m_isStale)
            refresh();
    });
}

void MaterialCatalog::refreshOld()
{
    if (!m_wasRead || m_sinceRead.hasExpired(Moment))
        refresh();
}

void MaterialCatalog::reload()
{
    m_painter.cancel();
    m_icons.clear();
    m_made.clear();
    m_wanted.clear();
    m_isStale = m_reader.isRunning();
    if (m_wasRead)
        refresh();
    emit changed();
}

QIcon MaterialCatalog::icon(const QString &texture)
{
    const auto known = m_icons.constFind(texture);
    if (known != m_icons.constEnd())
        return *known;
    if (texture.isEmpty() || texture == MaterialFiles::Blank)
        return m_none;
    // Who scrolls has passed the others.
    m_wanted.removeOne(texture);
    m_wanted.prepend(texture);
    while (m_wanted.size() > MostIcons / 4)
        m_wanted.removeLast();
    if (!m_painter.isRunning())
        makeIcons();
    return m_none;
}

void MaterialCatalog::makeIcons()
{
    using Pictures = QVector<QPair<QString, QImage>>;
    QVector<QPair<QString, QStringList>> wanted;
    const MaterialFiles files(Settings::GamePath.value(), Settings::OutputDir.value());
    while (!m_wanted.isEmpty() && wanted.size() < IconsAtOnce) {
        const QString texture = m_wanted.takeFirst();
        wanted.append({texture, files.candidates(texture)});
    }
    if (wanted.isEmpty())
        return;
    const auto make = [wanted](const Background::Cancelled &cancelled) {
        Pictures made;
        for (const auto &[texture, candidates] : wanted) {
            if (!cancelled)
                made.append({texture, smallPicture(candidates)});
        }
        return made;
    };
    m_painter.start(make, [this](const Pictures &made) {
        for (const auto &[texture, image] : made) {
            m_icons.insert(texture, image.isNull() ? m_none : QIcon(QPixmap::fromImage(image)));
            m_made.append(texture);
        }
        while (m_made.size() > MostIcons)
            m_icons.remove(m_made.takeFirst());
        emit iconsReady();
        makeIcons();
    });
}
