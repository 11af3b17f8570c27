// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

/// What the bytes of a text file are a text in, so that they can be given back as they are.
class TextEncoding
{
public:
    /// UTF-8 without a byte order mark.
    TextEncoding();

    /// What the byte order mark says, or else UTF-8; Latin-1 where that would not give the same bytes again.
    static TextEncoding of(const QByteArray &bytes);

    QString decode(const QByteArray &bytes) const;
    /// With the byte order mark. Letters that the encoding lacks are lost.
    QByteArray encode(const QString &text) const;

private:
    TextEncoding(const QByteArray &mark, QTextCodec *codec);

    QByteArray m_mark; ///< of the byte order, at the file's begin
    QTextCodec *m_codec;
};
