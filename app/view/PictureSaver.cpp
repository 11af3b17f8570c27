// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureSaver.h"

#include "Icons.h"
#include "KVOpenGLWidget.h"
#include "Log.h"
#include "PictureDialog.h"
#include "SavePath.h"
#include "Settings.h"
#include "WholeFile.h"

#include <QAction>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>

PictureSaver::PictureSaver(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_action(new QAction(namedIcon(QStringLiteral("frame")), tr("Save Pictur&e…"), window))
{
    m_action->setObjectName(QStringLiteral("actionSavePicture"));
    m_action->setShortcut(Qt::Key_F12);
    m_action->setStatusTip(tr("Save what the view shows as a picture"));
    m_action->setToolTip(m_action->statusTip());
    m_action->setEnabled(false);
    connect(m_action, &QAction::triggered, this, &PictureSaver::on_actionSavePicture_triggered);
}

void PictureSaver::setSource(KVOpenGLWidget *viewport, const QString &name)
{
    if (m_viewport)
        m_viewport->disconnect(this);
    m_viewport = viewport;
    m_name = name;
    m_action->setEnabled(viewport && viewport->failure().isEmpty());
    if (viewport)
        connect(viewport, &KVOpenGLWidget::failed, this, [this] { m_action->setEnabled(false); });
}

void PictureSaver::on_actionSavePicture_triggered()
{
    PictureDialog dialog(m_viewport->size() * m_viewport->devicePixelRatioF(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = chooseSavePath(m_window, tr("Save Picture"), Settings::PicturePath.value(),
                                        tr("PNG pictures (*.png)"), QStringLiteral("png"),
                                        QFileInfo(m_name).completeBaseName() + QStringLiteral(".png"));
    if (path.isEmpty())
        return;
    Settings::PicturePath.setValue(QFileInfo(path).absolutePath());
    save(path, dialog.pictureSize(), dialog.isTransparent());
}

bool PictureSaver::save(const QString &path, const QSize &size, bool transparent)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QImage picture =
        m_viewport->picture(size, transparent ? QColor(0, 0, 0, 0) : m_viewport->backgroundColor().rgb());
    QGuiApplication::restoreOverrideCursor();
    if (picture.isNull())
        return refuse(path, tr("the graphics driver cannot paint a picture of %1 by %2 pixels")
                                .arg(QString::number(size.width()), QString::number(size.height())));
    if (!transparent)
        picture = picture.convertToFormat(QImage::Format_RGB32);
    QBuffer bytes;
    QImageWriter writer(&bytes, "png");
    if (!writer.write(picture))
        return refuse(path, writer.errorString());
    const QString reason = writeWholeFile(path, bytes.data());
    if (!reason.isEmpty())
        return refuse(path, reason);
    emit told(tr("The picture was saved as %1").arg(QDir::toNativeSeparators(path)));
    return false;
}

bool PictureSaver::refuse(const QString &path, const QString &reason)
{
    Log::error(tr("[Save Picture] '%1': %2").arg(QDir::toNativeSeparators(path), reason));
    warnOfFailedSaves(m_window, {{path, reason}});
    return true;
}
