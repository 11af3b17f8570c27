// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Companions.h"
#include "Validation.h"

#include <optional>

/// For many files, one after another: a walk through a game's folders is for all of its models.
class KeptCompanions
{
public:
    Companions &in(const MaterialFolders &folders)
    {
        if (!m_companions || m_gamePath != folders.gamePath) {
            m_gamePath = folders.gamePath;
            m_companions.emplace(folders);
        }
        return *m_companions;
    }

private:
    QString m_gamePath;
    std::optional<Companions> m_companions;
};
