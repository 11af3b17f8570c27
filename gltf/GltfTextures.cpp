// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfTextures.h"

#include "Files.h"
#include "GltfWriter.h"
#include "ImportMessages.h"
#include "PictureFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>

namespace {
// As the view has it, of 255: what is fainter is a hole.
constexpr int HoleAlpha = 2;

enum GlFilter { Linear = 9729, LinearMipmapLinear = 9987 };
constexpr int Repeat = 10497;

struct ExportPicture
{
    GltfImage file;
    bool hasHoles = false;
};

bool hasHolesIn(QImage image)
{
    if (!image.hasAlphaChannel())
        return false;
    image = image.convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < image.height(); ++y) {
        const uchar *line = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (line[4 * x + 3] <= HoleAlpha)
                return true;
        }
    }
    return false;
}

/// Returns true on failure.
bool readForExport(const QString &path, ExportPicture &picture)
{
    const std::unique_ptr<QIODevice> file = Files::open(path);
    if (!file)
        return true;
    picture.file.bytes = file->readAll();
    QBuffer bytes(&picture.file.bytes);
    bytes.open(QIODevice::ReadOnly);
    const auto [image, format] = readPicture(bytes);
    if (image.isNull())
        return true;
    bytes.close();
    picture.hasHoles = hasHolesIn(image);
    picture.file.fileName = QFileInfo(path).fileName();
    if (format == "jpeg" || format == "jpg") {
        picture.file.mimeType = QStringLiteral("image/jpeg");
        return false;
    }
    picture.file.mimeType = QStringLiteral("image/png");
    if (format == "png")
        return false;
    picture.file.fileName = QFileInfo(path).completeBaseName() + QStringLiteral(".png");
    picture.file.bytes.clear();
    bytes.open(QIODevice::WriteOnly);
    return !image.save(&bytes, "PNG");
}

QString warning(const QString &text)
{
    return QCoreApplication::translate("Import", "[glTF Export] %1").arg(text);
}
} // namespace

GltfTextures::GltfTextures(const QString &gamePath, const QString &outputDir, GltfWriter &writer,
                           ImportMessages &messages)
    : m_materials(gamePath, outputDir)
    , m_writer(writer)
    , m_messages(messages)
{}

GltfTextures::Texture GltfTextures::find(const QString &materialPath)
{
    const MaterialFiles::Lookup found = m_materials.find(materialPath);
    for (const QString &problem : {found.error, found.warning}) {
        if (!problem.isEmpty())
            m_messages.addWarning(warning(problem));
    }
    if (found.texture.isEmpty() || found.texture == MaterialFiles::Blank)
        return {};
    const auto known = m_textures.constFind(found.texture);
    return known != m_textures.constEnd() ? *known : *m_textures.insert(found.texture, add(found.texture));
}

GltfTextures::Texture GltfTextures::add(const QString &name)
{
    const QStringList paths = m_materials.candidates(name);
    ExportPicture picture;
    const auto serves = [&picture](const QString &path) { return !readForExport(path, picture); };
    if (std::none_of(paths.begin(), paths.end(), serves)) {
        m_messages.addWarning(
            warning(QCoreApplication::translate("Import", "Texture '%1' not found, or it cannot be read")
                        .arg(paths.isEmpty() ? name : paths.last())));
        return {};
    }
    if (m_writer.count("samplers") == 0) {
        m_writer.append("samplers", {{QStringLiteral("magFilter"), Linear},
                                     {QStringLiteral("minFilter"), LinearMipmapLinear},
                                     {QStringLiteral("wrapS"), Repeat},
                                     {QStringLiteral("wrapT"), Repeat}});
    }
    const int image = m_writer.addImage(picture.file);
    const int texture =
        m_writer.append("textures", {{QStringLiteral("sampler"), 0}, {QStringLiteral("source"), image}});
    return {texture, picture.hasHoles};
}
