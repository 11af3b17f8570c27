// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QFileDevice;
class QFileInfo;

/// What systems do differently with files.
namespace FileSystem {
/// A path as one to compare by: where case does not tell files apart, it does not tell these apart.
QString comparable(const QString &path);
/// Whether two paths name the same place, as they are written.
inline bool isSamePath(const QString &a, const QString &b)
{
    return comparable(a) == comparable(b);
}

/// What a system tells of a file without its being opened.
struct FileState
{
    qint64 size;     ///< bytes
    qint64 modified; ///< milliseconds since 1970
};
/// Of a regular file, or of one that a link leads to; none where there is no such file. Asking thousands is
/// cheap, as it is not for QFileInfo, which works out the local time of each.
std::optional<FileState> stateOf(const QString &path);

/// Whether this user owns a file, where everybody may put some; true where nobody else can.
bool isOwn(const QFileInfo &file);

/// Whether writing there would go to a device or a pipe.
bool isDevice(const QFileInfo &file);

/// Has the device take what was written to an open file. Returns how it failed; empty when nothing was lost.
[[nodiscard]] QString flush(QFileDevice &file);

/// A file that could not take the place of another.
struct KeptBeside
{
    QString path;
    QStringList holders; ///< programs that hold the other one open, as far as the system tells
};
/// Copies what was written to a file that is to replace `target`, to a new name beside that one, if another
/// program holds it open so that it cannot be replaced; none when it can. One that looks at each new file for
/// a moment, as virus scanners do, is waited for, a second at most.
std::optional<KeptBeside> keepBeside(QFileDevice &written, const QString &target);
} // namespace FileSystem
