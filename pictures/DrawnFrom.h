// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

struct MaterialFolders;
struct PosedModel;
struct ReadProgress;

/// What a picture of a model depends on beside the model's own file. All functions may take as long as
/// reading files does.
namespace DrawnFrom {
/// The .kmat files and the textures of the surfaces, as they are named relative to the folders, each once;
/// there or not. Ends early, with what it has, when `progress` is cancelled.
QStringList names(const PosedModel &model, const MaterialFolders &folders, const ReadProgress &progress);

/// A short text that becomes another one when the folders are others, or a file of these names or the
/// companion is: written, removed, or found in another place. An empty companion is none.
QString state(const QStringList &names, const QString &companion, const MaterialFolders &folders);
} // namespace DrawnFrom
