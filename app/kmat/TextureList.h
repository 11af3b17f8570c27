// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QElapsedTimer>
#include <QStringList>

/// The textures of the game and the mod by their paths below these, to complete what is typed. They are
/// listed in another thread.
class TextureList : public QObject
{
    Q_OBJECT

public:
    explicit TextureList(QObject *parent = nullptr);

    const QStringList &textures() const { return m_textures; }
    /// Lists the folders anew, unless they were a moment ago.
    void refreshOld();

signals:
    void changed();

private:
    Background m_reader;
    QStringList m_textures;
    QElapsedTimer m_since;
};
