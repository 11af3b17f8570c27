// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureSaver.h"

#include "AnimFile.h"
#include "FileNames.h"
#include "Icons.h"
#include "KVOpenGLWidget.h"
#include "Log.h"
#include "PictureDialog.h"
#include "PictureOutput.h"
#include "Playback.h"
#include "SavePath.h"
#include "Settings.h"
#include "TurntableTool.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

PictureSaver::PictureSaver(SkinnedMeshDocument &skinned, AnimDocument &anim, StaticMeshDocument &rigid,
                           QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_sequences(skinned, anim, rigid)
    , m_action(new QAction(namedIcon(QStringLiteral("frame")), tr("Save Pictur&e…"), window))
{
    m_action->setObjectName(QStringLiteral("actionSavePicture"));
    m_action->setShortcut(Qt::Key_F12);
    m_action->setStatusTip(tr("Save what the view shows as a picture, or as many for a video"));
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
    m_viewport->tools().turntable->stop(); // what is seen now is saved
    PictureSubject subject;
    subject.viewSize = m_viewport->size() * m_viewport->devicePixelRatioF();
    subject.name = FileNames::portable(QFileInfo(m_name).completeBaseName());
    if (subject.name.isEmpty())
        subject.name = tr("picture");
    const Playback &state = playback();
    const AnimBlock *block = m_viewport->isSkinned() ? playableBlock(state) : nullptr;
    if (block) {
        subject.frameCount = block->frameCount();
        subject.selected = state.range;
    }
    PictureDialog dialog(subject, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (dialog.kind() == PictureDialog::View)
        return saveOne(dialog.pictureSize(), dialog.isTransparent());
    const QString outcome = m_sequences.save(*m_viewport, dialog, m_window);
    if (!outcome.isEmpty())
        emit told(outcome);
}

void PictureSaver::saveOne(const QSize &size, bool transparent)
{
    const QString path = chooseSavePath(m_window, tr("Save Picture"), Settings::PicturePath.value(),
                                        tr("PNG pictures (*.png)"), QStringLiteral("png"),
                                        QFileInfo(m_name).completeBaseName() + QStringLiteral(".png"));
    if (path.isEmpty())
        return;
    Settings::PicturePath.setValue(QFileInfo(path).absolutePath());
    save(path, size, transparent);
}

bool PictureSaver::save(const QString &path, const QSize &size, bool transparent)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QImage picture =
        m_viewport->picture(size, transparent ? QColor(0, 0, 0, 0) : m_viewport->backgroundColor().rgb());
    QGuiApplication::restoreOverrideCursor();
    if (picture.isNull())
        return refuse(path, SequenceSaver::unpaintable(size));
    if (!transparent)
        picture = picture.convertToFormat(QImage::Format_RGB32);
    const QString reason = writePicture(picture, path);
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
