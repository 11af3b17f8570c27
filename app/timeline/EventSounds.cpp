// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventSounds.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "FrameChoice.h"
#include "FrameLabel.h"
#include "PlayClock.h"
#include "Playback.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {
constexpr int StopLoopingSound = 32; // names the sound that ends

QString plainSoundName(const QString &name)
{
    QString plain;
    for (const QChar c : name) {
        if (c.isLetterOrNumber())
            plain += c.toLower();
    }
    return plain;
}
} // namespace

void EventSounds::showFrame(int frame)
{
    const Playback &state = playback();
    const AnimBlock *block = playableBlock(state);
    if (!block || state.playState != PlayState::Playing)
        return;
    if (frame + 1 >= m_next) {
        play(m_next, frame);
    } else {
        play(m_next, state.range.isEmpty() ? block->frameCount() - 1 : state.range.last);
        play(restartFrame(state, *block), frame);
    }
    m_next = frame + 1;
}

void EventSounds::startAnew()
{
    const AnimBlock *block = playableBlock(playback());
    m_next = block ? FrameLabel::nearestFrame(playback().time, playRate(block->speed)) : 0;
    const FrameRange range = playback().range;
    if (!range.isEmpty() && (m_next < range.first || m_next > range.last))
        m_next = range.first; // where the clock goes
}

void EventSounds::play(int from, int to)
{
    if (const FrameRange range = playback().range; !range.isEmpty()) {
        from = std::max(from, range.first);
        to = std::min(to, range.last);
    }
    for (const AnimAction &action : playableBlock(playback())->actions) {
        if (action.frame < from || action.frame > to || action.eventType == StopLoopingSound ||
            eventArgument(action.eventType, 0).question != Question::Sound ||
            !Settings::PlayEventSounds.value())
            continue;
        const float sound = action.args[0];
        const QString path = sound >= 0.0f && sound < 1e6f ? file(int(sound)) : QString();
        if (!path.isEmpty())
            m_player(path);
    }
}

QString EventSounds::file(int sound)
{
    readFolder();
    const QString own = m_paths.value(QString::number(sound));
    const QString name = own.isEmpty() ? numberName(Question::Sound, sound) : QString();
    return name.isEmpty() ? own : m_paths.value(plainSoundName(name));
}

void EventSounds::readFolder()
{
    const QString folder = Settings::SoundsFolder.value();
    const QDateTime time = folder.isEmpty() ? QDateTime() : QFileInfo(folder).lastModified();
    if (folder == m_folder && time == m_read)
        return;
    m_folder = folder;
    m_read = time;
    m_paths.clear();
    if (folder.isEmpty())
        return;
    const QStringList kinds{QStringLiteral("*.wav"), QStringLiteral("*.ogg")};
    for (const QFileInfo &each : QDir(folder).entryInfoList(kinds, QDir::Files, QDir::Name))
        m_paths.insert(plainSoundName(each.completeBaseName()), each.absoluteFilePath());
}
