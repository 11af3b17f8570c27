// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelPicture.h"

#include "Log.h"
#include "PictureOutput.h"
#include "ReplacedFiles.h"
#include "Validation.h"

void warnOfStrays(const QString &path, int strays)
{
    if (strays > 0)
        Log::warning(QStringLiteral("%1: Left out of the picture: vertices that stand far away from all "
                                    "others (%2).")
                         .arg(path, QString::number(strays)));
}

QString unwritten(const QString &path, const QString &reason)
{
    return QStringLiteral("%1: The picture cannot be written: %2").arg(path, reason);
}

QString tooBig(const QString &path)
{
    return QStringLiteral("%1: The graphics driver cannot draw a picture this big.").arg(path);
}

QString ModelPicture::read(const QString &file, Companions &companions)
{
    QString error = m_subject.read(file, m_wishes.anim, companions);
    if (error.isEmpty() && (m_subject.animFile() || m_wishes.isPoseNamed))
        error = m_subject.problem(m_wishes.block, m_wishes.frame);
    if (error.isEmpty() && (isOneFile(m_path, m_subject.meshPath) || isOneFile(m_path, m_subject.animPath)))
        error = QStringLiteral("%1: The picture would replace what it is drawn of.").arg(m_path);
    return error;
}

QImage ModelPicture::paint(OffscreenScene &scene, const MaterialFolders &folders, QString &error) const
{
    int strays = 0;
    const QImage image = paintStill(scene, sourceOf(m_subject, folders), m_subject, m_wishes, strays);
    warnOfStrays(m_subject.meshPath, strays);
    if (image.isNull())
        error = tooBig(m_path.isEmpty() ? m_subject.meshPath : m_path);
    return image;
}

QString ModelPicture::draw(OffscreenScene &scene, const MaterialFolders &folders) const
{
    QString error;
    const QImage image = paint(scene, folders, error);
    if (image.isNull())
        return error;
    error = writePicture(image, m_path);
    return error.isEmpty() ? QString() : unwritten(m_path, error);
}
