// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Release.h"
#include "Require.h"

#include <QStringList>

namespace {
/// A document that says the same.
QByteArray documentOf(const Release &release)
{
    return "!start!\r\nversion\r\n" + release.version.toUtf8() + "\r\nlink\r\n" + release.link.toUtf8() +
           "\r\nmsg\r\n" + release.message.toUtf8() + "\r\n!msg!\r\n!end!\r\n";
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray document = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const Release release = readRelease(document);
    for (const QString &text : {release.version, release.link, release.message})
        Fuzz::require(!text.contains(QLatin1Char('\n')), "a text is one line");

    const QString own = QStringLiteral("0.9.2");
    const QString &other = release.version;
    Fuzz::require(!(isOlderVersion(own, other) && isOlderVersion(other, own)), "an order has one direction");
    Fuzz::require(!isOlderVersion(other, other), "no version is older than itself");

    const Release again = readRelease(documentOf(release));
    Fuzz::require(again.version == release.version && again.link == release.link &&
                      again.message == release.message,
                  "what was read reads back");
    return 0;
}
