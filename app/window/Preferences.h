// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"

#include <QObject>

class QWidget;
class Shortcuts;

/// Opens the options: when asked, and at a start at which the folders are not set up.
class Preferences : public QObject
{
    Q_OBJECT

public:
    /// `shortcuts` outlives this; the dialog stands on `window`.
    Preferences(Shortcuts &shortcuts, QWidget *window);

public slots:
    /// Once in a run, whoever asks first: tells that the folders are to be set up, where they are not.
    void OnStartSetupPaths();
    void on_actionPreferences_triggered();
    /// Asks whether an archive is to be the game's folder from now on.
    void offerArchive(const QString &archive);

signals:
    /// The options may be others now.
    void accepted();
    /// Materials and textures are looked up in other folders now.
    void foldersChanged();

private:
    void checkFolders();
    void askAbout(const QString &archive);

    Shortcuts &m_shortcuts;
    QWidget *m_window;
    bool m_askedForFolders = false;
    ArchivesAhead m_atStart;
    ArchivesAhead m_offered;
};
