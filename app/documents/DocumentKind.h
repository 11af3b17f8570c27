// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Settings.h"

#include <QString>

#include <array>

/// The three kinds of document, in the order of their rows in documentKinds().
enum class DocumentType { SkinnedMesh, Anim, StaticMesh };

/// What the user sees of one kind of document, and where its folders are remembered.
struct DocumentKind
{
    DocumentType type;
    QString label; ///< in titles and prompts
    QString openTitle;
    QString saveTitle;
    QString filter;
    QString extension; ///< without the dot
    QString folderTitle;
    QString gameFolder; ///< where the game keeps such files, within its own folder
    const SettingKey<QString> &loadPath;
    const SettingKey<QString> &savePath;
    const SettingKey<QString> &explorePath;
    const SettingKey<QString> &otherFolder;
    const SettingKey<bool> &quickSelect;
    const SettingKey<QStringList> &recentFiles;
};

const std::array<DocumentKind, 3> &documentKinds();
const DocumentKind &documentKind(DocumentType type);
/// The kind that a file belongs to by its extension; none when it is not one of ours.
const DocumentKind *documentKindOfFile(const QString &path);
/// By its extension: such a file is edited beside the documents.
bool isMaterialFile(const QString &path);
