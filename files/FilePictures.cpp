// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilePictures.h"

#include "Files.h"

Picture Files::readPicture(const QString &path)
{
    const std::unique_ptr<QIODevice> device = open(path);
    return device ? ::readPicture(*device) : Picture();
}

QSize Files::pictureSize(const QString &path)
{
    const std::unique_ptr<QIODevice> device = open(path);
    return device ? ::pictureSize(*device) : QSize();
}

bool Files::isPicture(const QString &path)
{
    const QSize size = Files::pictureSize(path);
    return !size.isEmpty() && qint64(size.width()) * size.height() <= MostPixels;
}
