// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"

#include <QToolButton>

struct DocumentKind;
struct FolderNames;

/// Where the folder of an explorer is.
enum class FolderSource { None, Game, Mod, Other };

/// The folder for files of a kind in the game's or the mod's: what the kind calls its own there, else all of
/// it. Empty where the options name none.
QString ownFolder(const DocumentKind &kind, FolderSource source);

/// The button of an explorer that says where its folder is, and leads to the game's, the mod's and the one
/// that was chosen last.
class FolderSwitch : public QToolButton
{
    Q_OBJECT

public:
    /// The actions become the explorer's; `change` stands below them in the menu. `kind` outlives the button.
    FolderSwitch(const DocumentKind &kind, QWidget &explorer, const FolderNames &names, QAction *change);

    FolderSource source() const { return m_source; }
    /// Shows where the listed folder is, and what can be chosen as the settings are now. Waits for no archive
    /// that is yet to be read.
    void setFolder(const QString &folder);
    /// The next folder that is shown was chosen: it is kept as the other one if it is none of the two.
    void keepNext() { m_keepsNext = true; }

signals:
    void folderChosen(const QString &folder);

private:
    struct Choice
    {
        FolderSource source;
        QAction *action;
    };

    QString folderOf(FolderSource source) const;
    void show(const QString &folder);

    const DocumentKind &m_kind;
    ArchivesAhead m_ahead;
    FolderSource m_source = FolderSource::None;
    bool m_keepsNext = false;
    QVector<Choice> m_choices;
};
