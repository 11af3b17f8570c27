// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>

class Document;
class QWidget;

/// Asks before a save replaces what nobody meant to replace: a file of the game folder, one that another
/// program has changed, one that stands in the mod folder already. An archive is never written.
class SaveGuard
{
    Q_DECLARE_TR_FUNCTIONS(SaveGuard)

public:
    /// The questions stand on `window`.
    explicit SaveGuard(QWidget *window);

    /// A file that is open, as it was when it was read or saved last.
    struct OpenFile
    {
        QString path;
        FileStamp stamp;
    };

    /// Where a document that is to be saved at `path` may be written; empty when the user thought better of
    /// it. The game folder is asked about once for a file.
    QString allowed(const Document &document, const QString &path);
    /// The same of what is no document, and has no names beside it.
    QString allowed(const OpenFile &file, const QString &path);
    /// `path` in the mod folder, with its folders made, unless the user keeps the file that stands there.
    QString intoMod(const Document &document, const QString &path);
    QString intoMod(const QString &path) { return freeInMod(path); }

    /// Where in the mod folder a file of the game folder or of an archive belongs, links followed; empty for
    /// any other file, and without a mod folder.
    static QString modPath(const QString &path);
    static bool isInGame(const QString &path) { return !placeInGame(path).isEmpty(); }
    /// Where a file stands in the game folder, or in any archive; empty when it stands elsewhere. A mod
    /// folder in the game's is the mod's.
    static QString placeInGame(const QString &path);
    /// Where in the mod folder a file stands, by its name or where links lead; empty when it stands
    /// elsewhere.
    static QString placeInMod(const QString &path);

private:
    QString freeInMod(const QString &path);
    /// Where the names that go beside the model would replace others.
    QString withNames(const Document &document, const QString &path) const;
    bool mayReplaceChanged(const QString &path) const;
    /// `inMod` is its place in the mod folder, if there is one.
    QString askAboutGame(const QString &path, const QString &inMod);

    QWidget *m_window;
    QSet<QString> m_overwritten; ///< of the game folder
};
