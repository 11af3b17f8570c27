// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TexturePreview.h"

#include "FilePictures.h"
#include "FileSearch.h"
#include "MaterialFiles.h"
#include "Settings.h"

#include <QDir>
#include <QPainter>

namespace {
constexpr int PreviewPatience = 15; // milliseconds

struct FoundTexture
{
    QString path;
    QImage image;
    bool isGame = false;
};

FoundTexture findTexture(const QString &texture, const QString &gamePath, const QString &outputDir)
{
    const FileSearch search(gamePath, outputDir);
    for (const QString &path : search.candidates(texture)) {
        const QImage image = Files::readPicture(path).image;
        if (!image.isNull())
            return {path, image, path == FileSearch(gamePath, {}).find(texture)};
    }
    return {search.find(texture), {}, false};
}
} // namespace

TexturePreview::TexturePreview(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(64, 64);
}

void TexturePreview::showTexture(const QString &texture)
{
    if (texture != m_texture || texture.isEmpty()) {
        m_texture = texture;
        reload();
    }
}

void TexturePreview::reload()
{
    m_reader.cancel();
    m_image = QImage();
    if (m_texture.isEmpty())
        return tell(tr("no texture"));
    if (m_texture == MaterialFiles::Blank)
        return tell(tr("drawn white, without a file"));
    tell(tr("looking for the texture"));
    const auto read = [texture = m_texture, gamePath = Settings::GamePath.value(),
                       outputDir = Settings::OutputDir.value()](const Background::Cancelled &) {
        return findTexture(texture, gamePath, outputDir);
    };
    m_reader.start(read, [this](const FoundTexture &found) {
        m_image = found.image;
        const QString path = QDir::toNativeSeparators(found.path);
        if (found.path.isEmpty())
            tell(tr("not found in game and mod"));
        else if (found.image.isNull())
            tell(tr("cannot be read"), path);
        else
            tell((found.isGame ? tr("%1 × %2, of the game") : tr("%1 × %2, of the mod"))
                     .arg(QString::number(found.image.width()), QString::number(found.image.height())),
                 path);
    });
    m_reader.wait(PreviewPatience);
}

void TexturePreview::tell(const QString &words, const QString &tip)
{
    m_words = words;
    setToolTip(tip);
    setAccessibleDescription(words);
    update();
}

void TexturePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int line = fontMetrics().height() + 4;
    const QRect room = rect().adjusted(0, 0, 0, -line);
    if (!m_image.isNull() && !room.isEmpty()) {
        const QSize size = m_image.size().scaled(room.size(), Qt::KeepAspectRatio);
        QRect place(QPoint(), size);
        place.moveCenter(room.center());
        // What is transparent is seen as such.
        painter.fillRect(place, QBrush(palette().color(QPalette::Mid), Qt::Dense4Pattern));
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, m_image);
    }
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(QRect(0, height() - line, width(), line), Qt::AlignCenter,
                     fontMetrics().elidedText(m_words, Qt::ElideRight, width()));
}
