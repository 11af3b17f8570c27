// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QImage>
#include <QWidget>

/// A texture as large as there is room, and what there is to say about it. It is read in another thread.
class TexturePreview : public QWidget
{
    Q_OBJECT

public:
    explicit TexturePreview(QWidget *parent = nullptr);

    /// A path below game and mod; an empty one, or the one that stands for white, shows words alone.
    void showTexture(const QString &texture);
    /// Reads it again.
    void reload();
    const QString &words() const { return m_words; }

    QSize sizeHint() const override { return {160, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell(const QString &words, const QString &tip = {});

    QString m_texture;
    QImage m_image;
    QString m_words;
    Background m_reader;
};
