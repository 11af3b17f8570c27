// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Sound.h"

#include <QAudioDeviceInfo>
#include <QDateTime>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QSoundEffect>
#include <QUrl>

namespace {
/// What plays a file, by its name and time: one that was written anew is read anew.
template <typename Player>
Player *playerOf(const QUrl &source, QObject *owner, bool &isNew)
{
    const QString path = source.toString() + QLatin1Char('|');
    const QString name = path + QFileInfo(source.toLocalFile()).lastModified().toString(Qt::ISODateWithMs);
    for (auto *each : owner->findChildren<Player *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (each->objectName() == name)
            return each;
        if (each->objectName().startsWith(path))
            each->deleteLater();
    }
    isNew = true;
    auto *made = new Player(owner);
    made->setObjectName(name);
    return made;
}

void playEffect(const QUrl &source, QObject *owner)
{
    bool isNew = false;
    auto *sound = playerOf<QSoundEffect>(source, owner, isNew);
    if (isNew)
        sound->setSource(source);
    sound->play();
}

void playMedia(const QUrl &source, QObject *owner)
{
    bool isNew = false;
    auto *player = playerOf<QMediaPlayer>(source, owner, isNew);
    if (isNew)
        player->setMedia(source);
    player->setPosition(0);
    player->play();
}
} // namespace

void playSound(const QString &resource, QObject *owner)
{
    if (!QAudioDeviceInfo::defaultOutputDevice().isNull())
        playEffect(QUrl(QStringLiteral("qrc") + resource), owner);
}

void playSoundFile(const QString &path, QObject *owner)
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        return;
    const QUrl source = QUrl::fromLocalFile(path);
    if (path.endsWith(QLatin1String(".wav"), Qt::CaseInsensitive))
        playEffect(source, owner);
    else
        playMedia(source, owner);
}
