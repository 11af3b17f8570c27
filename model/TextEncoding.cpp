// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextEncoding.h"

#include <QTextCodec>

#include <algorithm>

TextEncoding::TextEncoding(const QByteArray &mark, QTextCodec *codec)
    : m_mark(mark)
    , m_codec(codec)
{}

TextEncoding::TextEncoding()
    : TextEncoding({}, QTextCodec::codecForName("UTF-8"))
{}

TextEncoding TextEncoding::of(const QByteArray &bytes)
{
    // The longer ones begin like the shorter.
    static const TextEncoding marked[] = {
        {QByteArrayLiteral("\xff\xfe\0\0"), QTextCodec::codecForName("UTF-32LE")},
        {QByteArrayLiteral("\0\0\xfe\xff"), QTextCodec::codecForName("UTF-32BE")},
        {QByteArrayLiteral("\xff\xfe"), QTextCodec::codecForName("UTF-16LE")},
        {QByteArrayLiteral("\xfe\xff"), QTextCodec::codecForName("UTF-16BE")},
        {QByteArrayLiteral("\xef\xbb\xbf"), QTextCodec::codecForName("UTF-8")},
        {{}, QTextCodec::codecForName("UTF-8")},
    };
    const auto *likely =
        std::find_if(std::begin(marked), std::end(marked),
                     [&bytes](const TextEncoding &each) { return bytes.startsWith(each.m_mark); });
    const bool is = likely->encode(likely->decode(bytes)) == bytes;
    return is ? *likely : TextEncoding({}, QTextCodec::codecForName("ISO-8859-1"));
}

QString TextEncoding::decode(const QByteArray &bytes) const
{
    // What begins like another mark is a character.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const int start = m_mark.size();
    return m_codec->toUnicode(bytes.constData() + start, bytes.size() - start, &state);
}

QByteArray TextEncoding::encode(const QString &text) const
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_mark + m_codec->fromUnicode(text.constData(), text.size(), &state);
}
