// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "WholeFile.h"

#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>

/// Makes a zip archive, whole or not at all. What it writes depends on the names and contents alone: no entry
/// has a time, an owner or a system. Contents that are deflated are so by zlib, of which another version may
/// find other bytes for them.
class ZipWriter
{
public:
    /// Nothing on disk is touched before the first entry.
    explicit ZipWriter(const QString &path);
    ~ZipWriter();
    ZipWriter(const ZipWriter &) = delete;
    ZipWriter &operator=(const ZipWriter &) = delete;

    /// Adds a file that can be read from its beginning, below its path in the archive, which has forward
    /// slashes. What would be deflated to more than ZipArchive unpacks again is stored. Returns true on
    /// failure, also when `goesOn`, which is asked every now and then, returns false.
    [[nodiscard]] bool add(const QString &name, QIODevice &contents, bool isDeflated,
                           const std::function<bool()> &goesOn = {});
    /// Writes the directory, and lets the archive take the place of the file at its path. Returns true on
    /// failure.
    [[nodiscard]] bool commit();

    /// Why the first failure came about; empty where somebody gave up.
    const QString &reason() const;
    /// Bytes of the archive so far; all of them after commit().
    qint64 size() const;

private:
    struct Handle;
    bool start();
    bool fail(const QString &reason);

    std::unique_ptr<Handle> m_handle;
};
