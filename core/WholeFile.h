// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

/// A file that is written whole or not at all, as everything is that the program saves. What is written
/// stands beside the file until commit() puts it in its place; a failure at any time leaves the old file.
/// Where another program holds that one open so that it cannot be replaced, both stay: the new one under a
/// name beside, which reason() tells.
class WholeFile
{
public:
    /// Nothing on disk is touched before the first bytes go out. A link is followed.
    explicit WholeFile(const QString &path);

    /// Makes the file beside. Returns true on failure; so do the others, which call it when nobody did.
    [[nodiscard]] bool open();
    [[nodiscard]] bool write(const char *bytes, qint64 size);
    /// Goes back to write other bytes in the place of some, or forth again.
    [[nodiscard]] bool seek(qint64 at);
    [[nodiscard]] bool commit();

    /// Why the first failure came about, as the device says it; empty when there was none.
    const QString &reason() const { return m_reason; }

private:
    bool fail(const QString &reason);
    bool failHeld(const QStringList &holders, const QString &beside);

    QSaveFile m_file;
    QString m_reason;
};

/// Lets a file with these bytes take the place of the one at `path`. Returns what went wrong; empty when
/// nothing did.
[[nodiscard]] QString writeWholeFile(const QString &path, const QByteArray &bytes);
