// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <QObject>

#include <functional>
#include <vector>

/// Something that is edited and differs from its file at times, as Recovery sees it. There is one of a kind.
class UnsavedWork : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Of its files, without the dot; tells the kinds apart.
    virtual QString extension() const = 0;
    /// What the user calls the kind.
    virtual QString label() const = 0;
    /// Empty when it was never saved.
    virtual QString path() const = 0;
    virtual QString fileName() const = 0;
    /// The file as it was when it was last read or written.
    virtual FileStamp stamp() const = 0;
    virtual bool differsFromFile() const = 0;
    /// Whether a copy of it could be opened again.
    virtual bool canBeKept() const { return true; }
    /// Gives the bytes that restore() takes, in any thread.
    virtual std::function<std::vector<uchar>()> drafter() = 0;
    /// Asks about what is unsaved. Returns true when something else may take its place.
    [[nodiscard]] virtual bool mayBeReplaced() = 0;
    /// Goes on, unsaved, with what was kept of a file, which was as `stamp` says then; `unsavedName` is what
    /// it is called without one. Returns true on failure.
    [[nodiscard]] virtual bool restore(const QByteArray &bytes, const QString &path,
                                       const QString &unsavedName, const FileStamp &stamp) = 0;

signals:
    void aboutToBeReplaced();
    /// It may have come to differ from its file, or to be the same again.
    void changed();
};
