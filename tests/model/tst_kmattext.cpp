// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"
#include "KMatText.h"
#include "TestSupport.h"

#include <QBuffer>
#include <QDirIterator>
#include <QTextCodec>

/// The text of material files: what it says, and edits that leave all else as it is.
class TestKMatText : public QObject
{
    Q_OBJECT

private slots:
    void saysWhatTheReaderSays()
    {
        const QByteArray text = "material a\r\n{\r\n\tsampler \"normal\" 1 \"n.png\" {\r\n\t}\r\n"
                                "\tsampler \"diffuse\" 0 \"te\rx/a.png\"\r\n}\r\n"
                                "material b { sampler \"x\" 0\r\n// material c\r\nmat\rerial d sampler e 01";
        const KMatText read(text);
        QCOMPARE(read.bytes(), text);
        QCOMPARE(read.materials().size(), size_t(3));
        const auto word = [&read](TextSpan span) {
            return read.text().mid(span.begin, span.end - span.begin);
        };
        const KMatMaterial &a = read.materials()[0];
        QCOMPARE(word(a.word), QString("a"));
        QCOMPARE(a.samplers.size(), size_t(2));
        QCOMPARE(word(a.samplers[0].word), QString("\"n.png\""));
        QCOMPARE(word(a.samplers[1].word), QString("\"te\rx/a.png\""));
        QCOMPARE(a.texture(), QString("tex/a.png"));
        QCOMPARE(word(read.materials()[1].word), QString("b"));
        QCOMPARE(read.materials()[1].samplers[0].texture, QString());
        QCOMPARE(read.materials()[2].name, QString("d"));
        QVERIFY(read.problem().isEmpty());
        QVERIFY(KMatText("material a material a").problem().contains("'a'"));
        QVERIFY(!KMatText("sampler a 0 b").problem().isEmpty());

        // All that there is.
        QStringList files;
        for (const QString &folder : {TestSupport::source("samples"), TestSupport::shared("gamedata")}) {
            QDirIterator walk(folder, {"*.kmat"}, QDir::Files, QDirIterator::Subdirectories);
            while (!folder.isEmpty() && walk.hasNext())
                files += walk.next();
        }
        QVERIFY(files.size() >= 3);
        for (const QString &file : qAsConst(files)) {
            const QByteArray bytes = TestSupport::readFile(file);
            const KMatText whole(bytes);
            MaterialTable table, told;
            QCOMPARE(readKMat(file, table), whole.problem());
            for (const KMatMaterial &each : whole.materials())
                told.emplace(each.name, each.texture());
            QVERIFY2(whole.bytes() == bytes && told == table, qPrintable(file));
        }
    }

    void editsATexture_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
            QTest::newRow(name) << before << after;
        };
        row("comments, blanks, line ends",
            "\xef\xbb\xbf// mine\r\nmaterial  a {\n\tsampler \"d\"  0\t\"old.png\"  {\r\n\tunknown "
            "\"old.png\"\n",
            "\xef\xbb\xbf// mine\r\nmaterial  a {\n\tsampler \"d\"  0\t\"n.png\"  {\r\n\tunknown "
            "\"old.png\"\n");
        row("no quotes", "material a sampler d 0 old.png", "material a sampler d 0 n.png");
        row("no path yet", "material a\nsampler d 0 \t\r\n}", "material a\nsampler d 0 \"n.png\" \t\r\n}");
        row("no unit either", "material a\nsampler \"d\"\n", "material a\nsampler \"d\" \"n.png\"\n");
        row("empty", "material a sampler d 0 \"\" {", "material a sampler d 0 \"n.png\" {");
        row("a blank in it", "material a sampler d 0 \"my old.png\" {", "material a sampler d 0 \"n.png\" {");
        row("a brace at it", "material a sampler d 0 \"old.png\"{ }", "material a sampler d 0 \"n.png\" { }");
        row("a return in it", "material a sampler d 0 \"o\rld.png\" {", "material a sampler d 0 \"n.png\" {");
        row("an odd quote", "material a sampler d 0 \"old.png {\nparam \"x\"",
            "material a sampler d 0 \"n.png\" {\nparam \"x\"");
        row("at the unit", "material a sampler d 0t", "material a sampler d 0n.png");
        row("Latin-1", "material \xe4 sampler d 0 \"\xfc.png\"", "material \xe4 sampler d 0 \"n.png\"");
        const auto wide = [](const QByteArray &text) {
            return QTextCodec::codecForName("UTF-16LE")->fromUnicode(QString::fromUtf8(text));
        };
        row("UTF-16", wide("material \xc3\xa4\r\nsampler d 0 \"\xc3\xbc.png\"\r\n"),
            wide("material \xc3\xa4\r\nsampler d 0 \"n.png\"\r\n"));
    }

    void editsATexture()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        KMatText text(before);
        TextEdit edit;
        QCOMPARE(text.findTextureEdit(0, 0, "n.png", edit), QString());
        const TextEdit back = text.apply(edit);
        QCOMPARE(text.bytes(), after);
        QCOMPARE(text.materials()[0].texture(), QString("n.png"));
        text.apply(back);
        QCOMPARE(text.bytes(), before);
    }

    void refusesWhatCannotBe()
    {
        const KMatText latin1("material \xe4 sampler d 0 \"\xfc.png\"");
        TextEdit edit;
        for (const QString &texture : {QString("a b.png"), QString("a\".png"), QString("a\n.png")})
            QVERIFY(!latin1.findTextureEdit(0, 0, texture, edit).isEmpty());
        const QString cyrillic = QString(QChar(0x416)) + ".png";
        QVERIFY(latin1.findTextureEdit(0, 0, cyrillic, edit).contains("letters"));
        QVERIFY(latin1.findAddition("b", cyrillic, edit).contains("letters"));
        QVERIFY(latin1.findAddition(QString(QChar(0xE4)), "n.png", edit).contains("already"));
        QVERIFY(!latin1.findAddition("", "n.png", edit).isEmpty());
        // What makes UTF-8 of the rest would have it read as other letters.
        QVERIFY(!KMatText("material \xc3\xa4 sampler d 0 \xfc").findTextureEdit(0, 0, "n", edit).isEmpty());
    }

    void renamesAMaterial()
    {
        const auto check = [](const QByteArray &before, int material, const QByteArray &after) {
            KMatText text(before);
            TextEdit edit;
            QCOMPARE(text.findRenaming(material, "n", edit), QString());
            const TextEdit back = text.apply(edit);
            QCOMPARE(text.bytes(), after);
            QCOMPARE(text.materials()[size_t(material)].name, QString("n"));
            text.apply(back);
            QCOMPARE(text.bytes(), before);
        };
        check("// a\r\nmaterial  a\t{ x a\r\n sampler \"d\" 0 \"a\" }\r\nmaterial b", 0,
              "// a\r\nmaterial  n\t{ x a\r\n sampler \"d\" 0 \"a\" }\r\nmaterial b");
        check("material a\nmaterial", 1, "material a\nmaterial n");
        // Which gives the file back to its readers.
        check("material a material a", 1, "material a material n");

        const KMatText text("material a material \xe4");
        TextEdit edit;
        for (const QString &name : {QString(), QString("x y"), QString("\"x\""), QString(QChar(0x416))})
            QVERIFY(!text.findRenaming(0, name, edit).isEmpty());
        QVERIFY(text.findRenaming(0, QString(QChar(0xE4)), edit).contains("already"));
    }

    void addsAMaterial()
    {
        const QByteArray added = kmatBytes({{"n", "n.png"}}).replace("\r\n", "\n");
        const auto check = [](const QByteArray &before, const QByteArray &after) {
            KMatText text(before);
            TextEdit edit;
            QCOMPARE(text.findAddition("n", "n.png", edit), QString());
            const TextEdit back = text.apply(edit);
            QCOMPARE(text.bytes(), after);
            text.apply(back);
            QCOMPARE(text.bytes(), before);
        };
        check("", kmatBytes({{"n", "n.png"}}));
        check("material a {\n}\n", "material a {\n}\n" + added);
        check("// mine\r\n}", "// mine\r\n}\r\n" + QByteArray(added).replace("\n", "\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestKMatText)
#include "tst_kmattext.moc"
