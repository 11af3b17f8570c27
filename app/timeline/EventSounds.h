// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

#include <functional>

struct AnimAction;

/// Plays the sounds of key frame actions as their frames play, from a folder of the user's: files named for
/// the number of a sound or for its name, in any case, with or without blanks.
class EventSounds
{
public:
    using Player = std::function<void(const QString &path)>;

    explicit EventSounds(Player player)
        : m_player(std::move(player))
    {}
    void setPlayer(Player player) { m_player = std::move(player); }

    /// This frame of playback() is shown. What was skipped since the last one sounds, too.
    void showFrame(int frame);
    /// Something else plays, or from another time on.
    void startAnew();

    /// The file of a sound; empty where there is none.
    QString file(int sound);

private:
    void play(int from, int to);
    void readFolder();

    Player m_player;
    int m_next = 0; ///< the first frame that has not sounded
    QString m_folder;
    QDateTime m_read;                ///< the time of the folder as it was read
    QHash<QString, QString> m_paths; ///< by plain name
};
