// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceIndex.h"

/// What an index found, kept for the next time: a file for each pair of game and mod in the user's folder for
/// caches. One that is damaged, of another version or of other folders is as good as none.
namespace IndexCache {
/// Where the index of these folders is kept.
QString pathFor(const MaterialFolders &folders);

/// Null when there is none that can be read. Its files may have changed since.
ReferenceIndexPtr load(const MaterialFolders &folders);
/// Keeps an index, and lets go of those that were kept longest ago. Returns what went wrong; empty when
/// nothing did.
[[nodiscard]] QString store(const ReferenceIndex &index);

/// The index of the folders as they are: what is kept, with all that has changed read, and then kept. Null
/// when `isCancelled` became true. What could not be kept is read again the next time.
ReferenceIndexPtr bringUpToDate(const MaterialFolders &folders, ReferenceIndexPtr known,
                                const std::atomic_bool &isCancelled, IndexProgress &progress, int threads);

/// The bytes of a cache, and what they say; null for what is no whole cache of these folders.
QByteArray bytesOf(const ReferenceIndex &index);
ReferenceIndexPtr read(const QByteArray &bytes, const MaterialFolders &folders);
/// The same of what stands behind the hash.
ReferenceIndexPtr readBody(const QByteArray &body, const MaterialFolders &folders);
} // namespace IndexCache
