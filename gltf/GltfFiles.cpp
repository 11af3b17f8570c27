// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfFiles.h"

#include "FileNames.h"
#include "ImportMessages.h"
#include "ReplacedFiles.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {
QString numberedName(const QString &name, int number)
{
    const QFileInfo parts(name);
    return QStringLiteral("%1_%2.%3").arg(parts.completeBaseName(), QString::number(number), parts.suffix());
}
} // namespace

GltfFiles::GltfFiles(const GltfWriter &content, const QString &path)
    : m_path(path)
{
    if (isBinary()) {
        m_bytes = content.glb();
        return;
    }
    m_bytes = content.json();
    m_buffer = content.buffer();
    m_images = content.images();
    for (const GltfImage &image : m_images) {
        // Textures of one name may come from several folders.
        const QString wanted = FileNames::portable(image.fileName);
        QString name = wanted;
        for (int number = 2; m_imageNames.contains(name, Qt::CaseInsensitive); ++number)
            name = numberedName(wanted, number);
        m_imageNames += name;
    }
}

bool GltfFiles::isName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("glb") || suffix == QLatin1String("gltf");
}

bool GltfFiles::isBinary() const
{
    return QFileInfo(m_path).suffix().compare(QLatin1String("glb"), Qt::CaseInsensitive) == 0;
}

QString GltfFiles::beside(const QString &name) const
{
    return QFileInfo(m_path).path() + QLatin1Char('/') + name;
}

/// What the .gltf file names comes first, so that it never stands without.
std::vector<GltfFiles::File> GltfFiles::files() const
{
    if (isBinary())
        return {{m_path, m_bytes}};
    std::vector<File> files;
    files.reserve(size_t(m_imageNames.size()) + 2);
    for (int i = 0; i < m_imageNames.size(); ++i)
        files.push_back({beside(m_imageNames[i]), m_images[size_t(i)].bytes});
    const QString buffer = QFileInfo(m_path).completeBaseName() + QStringLiteral(".bin");
    files.push_back({beside(buffer), m_buffer});
    files.push_back(
        {m_path, GltfWriter::withNames(m_bytes, buffer, m_buffer.size(), m_images, m_imageNames)});
    return files;
}

QStringList GltfFiles::replaced() const
{
    QStringList paths;
    for (const File &file : files()) {
        if (wouldReplace(file.bytes, file.path))
            paths += file.path;
    }
    return paths;
}

void GltfFiles::useFreeNames()
{
    const QString wanted = m_path;
    const auto isFree = [this] {
        const QFileInfo parts(m_path);
        return !isTaken(m_path) &&
               (isBinary() || !isTaken(beside(parts.completeBaseName() + QStringLiteral(".bin"))));
    };
    for (int number = 2; !isFree(); ++number)
        m_path = beside(numberedName(QFileInfo(wanted).fileName(), number));
    if (isBinary())
        return;
    for (int i = 0; i < m_imageNames.size(); ++i) {
        const QString name = m_imageNames[i];
        if (!wouldReplace(m_images[size_t(i)].bytes, beside(name)))
            continue;
        m_imageNames[i].clear();
        QString free = name;
        for (int number = 2; isTaken(beside(free)) || m_imageNames.contains(free, Qt::CaseInsensitive);
             ++number)
            free = numberedName(name, number);
        m_imageNames[i] = free;
    }
}

bool GltfFiles::write(ImportMessages &messages) const
{
    for (const File &file : files()) {
        const QString reason = wouldReplace(file.bytes, file.path) || !isTaken(file.path)
                                   ? writeWholeFile(file.path, file.bytes)
                                   : QString();
        if (reason.isEmpty())
            continue;
        messages.addError(QCoreApplication::translate("Import", "%1 Could not write file. %2")
                              .arg(QDir::toNativeSeparators(file.path), reason));
        return true;
    }
    return false;
}
