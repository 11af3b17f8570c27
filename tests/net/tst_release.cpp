// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Release.h"

#include <QtTest>

/// Release documents and version texts.
class tst_Release : public QObject
{
    Q_OBJECT

private slots:
    void reads()
    {
        // Version, link and message.
        const auto check = [](const char *name, const char *document, const QStringList &expected) {
            const Release release = readRelease(document);
            const QStringList found{name, release.version, release.link, release.message};
            QCOMPARE(found.join('|'), (QStringList(name) + expected).join('|'));
        };
        check("usual",
              "hello\n!start!\nversion\n1.2.3\nlink\nhttps://a/b\nmsg\none\ntwo\n!msg!\n!end!\nversion\n9\n",
              {"1.2.3", "https://a/b", "one two"});
        check("CR LF", "!start!\r\nversion\r\n1\r\nlink\r\nl\r\nmsg\r\na\r\nb\r\n!msg!\r\n!end!\r\n",
              {"1", "l", "a b"});
        check("byte order mark, no line end", "\xef\xbb\xbf!start!\nversion\n1", {"1", "", ""});
        check("no start", "version\n1\nlink\nl\n", {"", "", ""});
        check("before the start", "version\n1\n!start!\nlink\nl\n", {"", "l", ""});
        check("other order, other lines", "!start!\nmsg\nm\n!msg!\njunk\nlink\nl\n\nversion\n2\n",
              {"2", "l", "m"});
        check("blanks are part of a line", "!start!\nversion \n1\n link\nl\nmsg\n !msg!\n!msg!\nVersion\n1",
              {"", "", " !msg!"});
        check("a keyword as a value", "!start!\nversion\nlink\nlink\n!end!\nversion\nmsg\n",
              {"msg", "!end!", ""});
        check("end within the message", "!start!\nmsg\na\n!end!\nb\n!msg!\nversion\n1\n",
              {"1", "", "a !end! b"});
        check("the message never ends", "!start!\nversion\n1\nmsg\na\nversion\n2", {"1", "", "a version 2"});
        check("empty message lines", "!start!\nmsg\na\n\nb\n!msg!\nmsg\n!msg!", {"", "", ""});
        check("the last counts",
              "!start!\nversion\n1\nversion\n2\nlink\na\nlink\nb\nmsg\nx\n!msg!\nmsg\ny\n!msg!\n",
              {"2", "b", "y"});
        check("empty value", "!start!\nlink\n\nversion\n1\n", {"1", "", ""});
    }

    void comparesVersions()
    {
        const QString own = QStringLiteral("0.9.2");
        for (const char *newer : {"0.9.3", "0.9.10", "0.10", "1", "0.9.3.1", "01.0.0", "2147483647"})
            QVERIFY2(isOlderVersion(own, newer) && !isOlderVersion(newer, own), newer);
        for (const char *same : {"0.9.2", "0.9.2.7", "00.09.02", "0.9.2."})
            QVERIFY2(!isOlderVersion(own, same) && !isOlderVersion(same, own), same);
        for (const char *older :
             {"0.9.1", "0.9", "0.9.3beta", "v1.0.0", "", "...", "-1.0.0", "99999999999.0.0"})
            QVERIFY2(!isOlderVersion(own, older) && isOlderVersion(older, own), older);
    }
};

QTEST_APPLESS_MAIN(tst_Release)
#include "tst_release.moc"
