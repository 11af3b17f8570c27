// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

/// What becomes of a foreign model on its way in.
enum class Arrival {
    AsStored, ///< its numbers as they are, turned and scaled where that is chosen
    Ready     ///< upright, its parts together, its bones and animations as the game poses them
};

/// One animation of the source, as it is to be taken.
struct ReadyClip
{
    enum class Loop { WhereItCloses, Always, Never };

    qint32 clip = 0; ///< its number in the source
    Loop loop = Loop::WhereItCloses;
};

/// What can be chosen for a model that arrives ready for the game, beside where its files go.
struct ReadyChoices
{
    static constexpr double UsualRate = 30.0;

    float scale = 1.0f;      ///< game units to one of the source
    bool isZUp = false;      ///< z of the source points up and its front looks along -y; else y, and z
    double rate = UsualRate; ///< frames a second that clips are sampled with; 0: the source's own if it is
                             ///< between 10 and 60, else the usual one
    bool extraBones = false; ///< gives vertices bones of their own that none of the source's leads well
    bool allClips = true;
    std::vector<ReadyClip> clips; ///< those to take, unless all are
};
