// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

struct MaterialFolders;

/// The file that belongs to another one, and what else there is.
struct CompanionFile
{
    QString path;       ///< empty when there is none, or no telling which
    QStringList others; ///< files that it could be as well, the likelier first
};

/// Which animation file belongs to a skinned mesh, and the other way about.
///
/// Both have the same complete base name, in any case, and stand beside each other or where game and mod keep
/// the two apart: in folders of one name below "models" and below "anims". Looked at are, in this order, the
/// file's own folder; the "anims" beside the "models" around it, or the other way about; the files of a list;
/// those below "anims" in the game's folder and in the mod's. Where none of these has a file that fits, those
/// of the same name anywhere in the two folders count, as far as a walk through a number of entries gets.
/// Names of folders may have any case. A file in a folder of the same name comes first, then
/// the only one of that name. Only where no file has it, the folder's name decides, if there is but one file
/// in it; and beside the file, if the two are alone of their kinds. Of several none is taken.
class Companions
{
public:
    /// `listed` are files that somebody looks at, of any kind. A search ends early, without a result, when
    /// `isCancelled` says so.
    explicit Companions(const MaterialFolders &folders, QStringList listed = {},
                        std::function<bool()> isCancelled = {});

    /// Looks through the folders, each once for all calls.
    CompanionFile find(const QString &file);

    /// A file by what is compared: its folder's name, complete base name, suffix.
    struct Candidate
    {
        QString path, folder, base, suffix;
    };

private:
    /// The files below a folder, found by what is compared.
    struct Below
    {
        QVector<Candidate> all;
        QHash<QString, QVector<int>> byName; ///< in one case, as the next
        QHash<QString, QVector<int>> byFolder;
    };
    const Below &filesBelow(const QString &folder);
    /// The files in a folder.
    const QVector<Candidate> &filesIn(const QString &folder);
    /// Those whose name or folder's name are those of `known`, in their order.
    QVector<Candidate> alikeBelow(const QString &folder, const Candidate &known);

    QStringList m_roots; ///< of the game and the mod
    QStringList m_listed;
    std::function<bool()> m_isCancelled;
    QHash<QString, Below> m_files; ///< by the folder that they were looked for in, as the next
    QHash<QString, QVector<Candidate>> m_beside;
};
