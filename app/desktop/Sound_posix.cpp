// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Sound.h"

#include <QAudioDeviceInfo>
#include <QSoundEffect>

void playSound(const QString &resource, QObject *owner)
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        return;
    auto *sound = new QSoundEffect(owner);
    sound->setSource(QUrl(QStringLiteral("qrc") + resource));
    sound->play();
}
