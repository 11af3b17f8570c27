// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyTextures.h"

#include "FileNames.h"
#include "PictureFile.h"
#include "TextureSearch.h"

#include <QBuffer>
#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <assimp/material.h>

#include <cmath>

namespace {
constexpr int LongestName = 100; // characters; file systems take 255 bytes
constexpr int SwatchSize = 8;    // texels; a size that every card takes

/// Whether the file's colors are amounts of light, as renderers reckon, and not what goes to a screen.
bool isLinear(const QString &modelPath)
{
    const QString suffix = QFileInfo(modelPath).suffix().toLower();
    return suffix == QLatin1String("gltf") || suffix == QLatin1String("glb") ||
           suffix == QLatin1String("fbx");
}

int channelOf(float value, bool isLinear)
{
    const float amount = std::isfinite(value) ? qBound(0.0f, value, 1.0f) : 1.0f;
    // IEC 61966-2-1, the curve of sRGB.
    const float shown = !isLinear              ? amount
                        : amount <= 0.0031308f ? amount * 12.92f
                                               : 1.055f * std::pow(amount, 1.0f / 2.4f) - 0.055f;
    return qRound(shown * 255.0f);
}
} // namespace

bool hasColorTexture(const aiMaterial &material, aiString &stored)
{
    for (const aiTextureType type : {aiTextureType_DIFFUSE, aiTextureType_BASE_COLOR}) {
        if (material.GetTexture(type, 0, &stored) == aiReturn_SUCCESS && stored.length > 0)
            return true;
    }
    return false;
}

QString plainName(const QString &name)
{
    QString plain;
    for (const QChar each : name.normalized(QString::NormalizationForm_C)) {
        const bool isPlain =
            each.unicode() < 256 && (each.isLetterOrNumber() || QStringLiteral("_-.+").contains(each));
        plain += isPlain ? each : QLatin1Char('_');
    }
    return plain;
}

ReadyTextures::ReadyTextures(const SceneSource &source, const QString &folder)
    : m_source(source)
    , m_folder(folder)
    , m_model(plainName(QFileInfo(source.modelPath).completeBaseName()))
{}

QString ReadyTextures::fileFor(const aiMaterial &material, const QString &name)
{
    aiString stored;
    if (hasColorTexture(material, stored)) {
        const QString file = fileOf(stored, name);
        if (!file.isEmpty())
            return file;
    }
    return swatch(material, name);
}

QString ReadyTextures::fileOf(const aiString &stored, const QString &name)
{
    const QString key = text(stored);
    const auto known = m_known.constFind(key);
    if (known != m_known.constEnd())
        return *known;
    QString &file = m_known[key];
    if (const aiTexture *embedded = m_source.scene->GetEmbeddedTexture(stored.C_Str())) {
        const QString own = QFileInfo(text(embedded->mFilename)).completeBaseName();
        file = writeEmbedded(*embedded, own.isEmpty() ? m_model + QLatin1Char('_') + name : own);
        return file;
    }
    const QString found = m_source.elsewhere ? foundTexture(m_source.modelPath, key, *m_source.elsewhere)
                                             : foundTexture(m_source.modelPath, key);
    const QString base = QFileInfo(found).completeBaseName();
    if (found.isEmpty()) {
        m_source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 Material '%2': its texture '%3' was not found")
                .arg(m_source.modelPath, name, key));
    } else if (found.endsWith(QLatin1String(".png")) && plainName(base) == base && isPicture(found) &&
               QImageReader::imageFormat(found) == "png") {
        file = found;
    } else {
        const QImage image = readPicture(found).image;
        if (image.isNull())
            tellUnread(name, found, pictureSize(found));
        else
            file = write(image, plainName(base));
    }
    return file;
}

QString ReadyTextures::writeEmbedded(const aiTexture &texture, const QString &name)
{
    QImage image;
    QSize size(int(texture.mWidth), int(texture.mHeight));
    if (texture.mHeight == 0) {
        QByteArray bytes =
            QByteArray::fromRawData(reinterpret_cast<const char *>(texture.pcData), int(texture.mWidth));
        QBuffer buffer(&bytes);
        if (buffer.open(QIODevice::ReadOnly)) {
            size = pictureSize(buffer);
            buffer.seek(0);
            image = readPicture(buffer).image;
        }
    } else if (quint64(texture.mWidth) * texture.mHeight <= quint64(MostPixels)) {
        // Texels are blue, green, red, alpha, which in memory is what the toolkit calls ARGB.
        image = QImage(reinterpret_cast<const uchar *>(texture.pcData), int(texture.mWidth),
                       int(texture.mHeight), QImage::Format_ARGB32);
    }
    if (image.isNull()) {
        tellUnread(name, text(texture.mFilename), size);
        return {};
    }
    return write(image, plainName(name));
}

void ReadyTextures::tellUnread(const QString &material, const QString &texture, const QSize &size) const
{
    const bool isLarge = !size.isEmpty() && qint64(size.width()) * size.height() > MostPixels;
    const QString text =
        isLarge ? QCoreApplication::translate("Import", "%1 Material '%2': its texture '%3' is larger than "
                                                        "%4 million pixels, and is left out")
                      .arg(m_source.modelPath, material, texture, QString::number(MostPixels / 1'000'000))
                : QCoreApplication::translate(
                      "Import", "%1 Material '%2': its texture '%3' is no picture that can be read")
                      .arg(m_source.modelPath, material, texture);
    m_source.messages.addWarning(text);
}

QString ReadyTextures::swatch(const aiMaterial &material, const QString &name)
{
    aiColor3D color(1.0f, 1.0f, 1.0f);
    if (material.Get(AI_MATKEY_COLOR_DIFFUSE, color) != aiReturn_SUCCESS)
        return {};
    const bool linear = isLinear(m_source.modelPath);
    const QColor shown(channelOf(color.r, linear), channelOf(color.g, linear), channelOf(color.b, linear));
    if (shown == QColor(Qt::white))
        return {};
    QImage image(SwatchSize, SwatchSize, QImage::Format_RGB32);
    image.fill(shown);
    // Textures of all models share a folder, and many a model has a material "Material".
    return write(image, m_model + QLatin1Char('_') + plainName(name));
}

QString ReadyTextures::write(const QImage &image, const QString &base)
{
    const QString stem = FileNames::portable(base.left(LongestName));
    QString name = stem;
    for (int number = 2; m_names.contains(name.toLower()); ++number)
        name = stem + QLatin1Char('_') + QString::number(number);
    m_names.insert(name.toLower());
    const QString path = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
    if (QDir().mkpath(m_folder) && image.save(path, "PNG"))
        return path;
    m_source.messages.addWarning(
        QCoreApplication::translate("Import", "%1 The texture '%2' could not be written")
            .arg(m_source.modelPath, name));
    return {};
}
