// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

class QIODevice;

/// Material name to diffuse texture path, ascending by name.
using MaterialTable = std::map<QString, QString>;

/// The largest .kmat file that is read, in bytes; the game's have some thousand.
constexpr qint64 MostMaterialBytes = 16 * 1024 * 1024;

/// Reads the materials of one .kmat file: text in UTF-8, in what its byte order mark says, or else in
/// Latin-1. Returns an error message, and then leaves `table` empty; an empty text means success.
[[nodiscard]] QString readKMat(const QString &path, MaterialTable &table);

/// Reads the first of `candidates` that can be opened. An invalid first file is an error, not a reason to
/// try the next; when none opens the message names the last.
[[nodiscard]] QString readKMat(const QStringList &candidates, MaterialTable &table);

/// Reads from an open device; `path` only names it in messages.
[[nodiscard]] QString readKMat(QIODevice &text, const QString &path, MaterialTable &table);

/// A texture that a material names.
struct MaterialSampler
{
    QString material;
    QString sampler; ///< without quotes, such as "diffuse"; null for a material that has none
    QString texture; ///< the path, without quotes
};

/// Reads all samplers of a .kmat file in its order, and of a material without one an entry with its name
/// alone. Errors are those of readKMat(), and leave `samplers` empty.
[[nodiscard]] QString readSamplers(const QStringList &candidates, std::vector<MaterialSampler> &samplers);
[[nodiscard]] QString readSamplers(QIODevice &text, const QString &path,
                                   std::vector<MaterialSampler> &samplers);

/// Writes a .kmat file with one material per entry of `table` in one step. Returns an error message; an
/// empty text means success.
[[nodiscard]] QString writeKMat(const QString &path, const MaterialTable &table);

/// The same into a file whose materials of other names stay as they are written, comments too. Its encoding
/// and its line ends stay; where the encoding lacks a letter of the new ones, nothing is written.
[[nodiscard]] QString mergeKMat(const QString &path, const MaterialTable &table);
/// The names of the materials of a file that the table does not have, in the order of the file.
QStringList otherMaterials(const QString &path, const MaterialTable &table);

/// What writeKMat() would write.
QByteArray kmatBytes(const MaterialTable &table);

/// Writes to a device opened in text mode. Returns true on failure.
[[nodiscard]] bool writeKMat(QIODevice &text, const MaterialTable &table);
