// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Sound.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>

#include <windows.h>

#include <mmsystem.h>

namespace {
void playFile(const QString &path)
{
    static QByteArray playing; // is read while it sounds
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    // Nothing may sound any more when its bytes go.
    const auto stop = [] { PlaySoundW(nullptr, nullptr, 0); };
    static const QMetaObject::Connection atEnd =
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, stop);
    Q_UNUSED(atEnd)
    stop();
    playing = file.readAll();
    PlaySoundW(reinterpret_cast<const wchar_t *>(playing.constData()), nullptr,
               SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}
} // namespace

void playSound(const QString &resource, QObject *)
{
    playFile(resource);
}

void playSoundFile(const QString &path, QObject *)
{
    // Nothing else is played by the system's own function.
    if (path.endsWith(QLatin1String(".wav"), Qt::CaseInsensitive))
        playFile(path);
}
