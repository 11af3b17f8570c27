// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"
#include "SpecialFiles.h"
#include "TestSupport.h"

#include <QTextCodec>

/// .kmat files: which words make a material and its texture, and the exact text written.
class TestKMat : public QObject
{
    Q_OBJECT

private slots:
    void reads()
    {
        const QString path = m_folder.path("%2 mat.kmat");
        const auto check = [&](const char *name, const QByteArray &text, const MaterialTable &table,
                               const QString &error) {
            m_folder.put("%2 mat.kmat", text);
            MaterialTable read{{QStringLiteral("of an earlier file"), QString()}};
            QCOMPARE(name + readKMat(path, read), name + error);
            QVERIFY2(read == table, name);
        };
        const auto good = [&](const char *name, const QByteArray &text, const MaterialTable &table) {
            check(name, text, table, {});
        };
        // The path of the file follows an error.
        const auto bad = [&](const char *name, const QByteArray &text, const QByteArray &error) {
            check(name, text, {}, error + path);
        };
        const auto twice = [](const char *name) {
            return QByteArray(".kMat file has a material with the same name - ") + name +
                   ". The file may be invalid - ";
        };
        const char *const homeless =
            ".kMat file read a texture path with no material set. The file may be invalid - ";

        good("empty file", "", {});
        good("nested as usual", "material m {\n\tcull back\n\tsampler \"diffuse\" 0 \"t.png\" {\n\t}\n}\n",
             {{"m", "t.png"}});
        good("all on one line", "material m { sampler \"diffuse\" 0 \"t.png\" { } } material n", //
             {{"m", "t.png"}, {"n", ""}});
        good("the last sampler wins", "material m\nsampler \"diffuse\" 0 a.png\nsampler \"normal\" 1 b.png",
             {{"m", "b.png"}});
        good("each to the current material", "material b\nsampler d 0 1.png\nmaterial a\nsampler d 0 2.png",
             {{"a", "2.png"}, {"b", "1.png"}});

        good("comments at the very start of a line",
             "//material a\n// sampler d 0 x\nmaterial b //c\n///material d", {{"b", ""}});
        good("other comments count", "material a // material b\n\t// material c",
             {{"a", ""}, {"b", ""}, {"c", ""}});
        good("bare words only", "sort material x\nparam \"material\" material{ Material sampler{ \"sampler\"",
             {{"x", ""}});
        good("a brace stays on its word", "material a{\nsampler \"d\"{ 0 t{", {{"a{", "t{"}});
        good("quoted name", "material \"m\"", {{"\"m\"", ""}});
        good("quotes go, blanks cut", "material m\nsampler \"d\" 0 \"te\"xt/a b.png\"", {{"m", "text/a"}});

        good("the next word is on the same line", "material\nm\nsampler\nd 0 t.png", {{"", ""}});
        good("sampler cut off", "material m\nsampler d 0 t.png\nsampler d 0", {{"m", ""}});
        good("unit that is no number", "material m\nsampler \"my diffuse\" 0 \"t.png\"", {{"m", "diffuse"}});
        good("no unit", "material m\nsampler d t.png u.png", {{"m", "t.png"}});
        good("unit that is no integer", "material m\nsampler d 1.5 t.png", {{"m", ".5"}});
        good("words behind a broken sampler", "material m\nsampler d x material n", {{"m", "x"}, {"n", ""}});

        bad("same name twice", "material a\nmaterial b\nmaterial a", twice("a"));
        bad("name with a place marker", "material %1\nmaterial %1", twice("%1"));
        bad("sampler before any material", "sampler d 0 t.png\nmaterial m", homeless);

        good("UTF-8", "material \xc3\xa4\nsampler d 0 \"\xe3\x83\x86.png\"",
             {{QString(QChar(0xE4)), QString(QChar(0x30C6)) + ".png"}});
        good("no UTF-8 is Latin-1", "material \xe4\xc3\nsampler d 0 \"\xfc.png\"",
             {{QString::fromLatin1("\xe4\xc3"), QString::fromLatin1("\xfc.png")}});
        good("byte order mark", "\xef\xbb\xbfmaterial m", {{"m", ""}});
        good("carriage returns", "material a\r\nsampler d 0 t.png\r\nmate\rrial b\r\n",
             {{"a", "t.png"}, {"b", ""}});
        good("ordered by text", "material surf_2\nmaterial surf_10", {{"surf_10", ""}, {"surf_2", ""}});
    }

    void mergesIntoAFile()
    {
        const MaterialTable table{{"b", "new.png"}};
        const QByteArray b = kmatBytes(table).replace("\r\n", "\n");
        const auto check = [&](const QByteArray &text, const QByteArray &kept, const QStringList &others) {
            const QString path = m_folder.put("merged.kmat", text);
            QCOMPARE(otherMaterials(path, table), others);
            QCOMPARE(mergeKMat(path, table), QString());
            QCOMPARE(TestSupport::readFile(path), kept);
        };
        const QByteArray a =
            "material a {\n\tparam \"x{\" 0 \"0\"\n\tsampler \"diffuse\" 0 \"a.png\" {\n\t}\n}\n\n";
        const QByteArray old = "\tmaterial b {\n\tcull none\n\tsampler \"diffuse\" 0 \"b.png\" {\n\t}\n}\n\n";
        const QByteArray c = "// mine\n//material b {\nmaterial c\n{\n}";
        check(a + old + c, a + c + '\n' + b, {"a", "c"});
        check(old, b, {});
        check("", SpecialFiles::asText(b), {}); // no line to go by
        // Braces that are left out, or share a line.
        check("material b {\nsampler d 0 x\n" + a, a + b, {"a"});
        check("material a { } material b { { } } material c { }",
              "material a { }  material c { }" + SpecialFiles::asText('\n' + b), {"a", "c"});
        // As the file's text is: its line ends, and its encoding.
        check("material a\r\n{\r\n}\r\n", "material a\r\n{\r\n}\r\n" + QByteArray(b).replace("\n", "\r\n"),
              {"a"});
        check("material \xe4 { }\n", "material \xe4 { }\n" + b, {QString::fromLatin1("\xe4")});
        check("\xef\xbb\xbf" + a, "\xef\xbb\xbf" + a + b, {"a"});
        for (const char *name : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
            const auto in = [name](const QByteArray &text) {
                return QTextCodec::codecForName(name)->fromUnicode(QString::fromUtf8(text));
            };
            check(in("material \xc3\xa4 { }\r\n// c"),
                  in("material \xc3\xa4 { }\r\n// c\r\n" + QByteArray(b).replace("\n", "\r\n")),
                  {QString(QChar(0xE4))});
            MaterialTable read;
            QCOMPARE(readKMat(m_folder.path("merged.kmat"), read), QString());
            QCOMPARE(read, (MaterialTable{{QString(QChar(0xE4)), ""}, {"b", "new.png"}}));
        }
        const QString latin1 = m_folder.put("merged.kmat", "material \xe4 { }\n");
        QVERIFY(mergeKMat(latin1, {{"b", QString(QChar(0x416)) + ".png"}}).contains("Latin-1"));
        QCOMPARE(TestSupport::readFile(latin1), QByteArray("material \xe4 { }\n"));
    }

    void candidates()
    {
        const QString first = m_folder.path("first.kmat");
        const QString second = m_folder.put("second.kmat", "material second");
        MaterialTable table;
        QCOMPARE(readKMat(QStringList{first, second}, table), QString());
        QCOMPARE(table.count(QStringLiteral("second")), size_t(1));

        // An invalid first file is not passed over.
        m_folder.put("first.kmat", "sampler d 0 t");
        QVERIFY(readKMat(QStringList{first, second}, table).endsWith(first));
        QVERIFY(table.empty());

        // One that is no such file by its size is not read into memory.
        QFile large(first);
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(MostMaterialBytes + 1));
        large.close();
        QCOMPARE(readKMat(QStringList{first, second}, table),
                 QString("'%1' is larger than 16 MiB: it is no .kMat file").arg(first));
        QVERIFY(table.empty() && !mergeKMat(first, table).isEmpty());
        QCOMPARE(QFileInfo(first).size(), MostMaterialBytes + 1);

        const QString missing = m_folder.path(QStringLiteral("missing.kmat"));
        for (const QStringList &paths : {QStringList{missing}, QStringList{missing + "1", m_folder.path()}}) {
            QCOMPARE(readKMat(paths, table), QString("Unable to read .kMat file at %1").arg(paths.last()));
        }
    }

    void writesTheTemplate()
    {
        const QString path = m_folder.path(QStringLiteral("written.kmat"));
        const auto entry = [](const QByteArray &name, const QByteArray &texture) {
            return "material " + name +
                   " {\n"
                   "\tcull back\n"
                   "\tparam \"uLimitAlpha\" 0 \"0\"\n"
                   "\tparam \"uReflective\" 0 \"0\"\n"
                   "\tparam \"uPseduoColor\" 0 \"0\"\n"
                   "\tsort default\n"
                   "\tdepthtest\n"
                   "\tcolor_environment \"0.000000 0.000000 0.000000 1.000000\"\n"
                   "\tcolor_diffuse \"1.000000 1.000000 1.000000 1.000000\"\n"
                   "\tsampler \"diffuse\" 0 \"" +
                   texture +
                   "\" {\n"
                   "\t\tfilter      linear_anisotropic\n"
                   "\t\twrap        repeat\n"
                   "\t}\n"
                   "}\n"
                   "\n";
        };
        const MaterialTable table{{"surf_2", QString::fromUtf8("textures/\xc3\xa4.png")}, {"surf_10", ""}};
        QCOMPARE(writeKMat(path, table), QString());
        QCOMPARE(TestSupport::readFile(path),
                 SpecialFiles::asText(entry("surf_10", "") + entry("surf_2", "textures/\xc3\xa4.png")));
        MaterialTable read;
        QCOMPARE(readKMat(path, read), QString());
        QVERIFY(read == table);
        QCOMPARE(writeKMat(path, {}), QString());
        QVERIFY(QFile::exists(path) && TestSupport::readFile(path).isEmpty());

        const QString below = path + QStringLiteral("/below a file.kmat");
        QCOMPARE(writeKMat(below, table), QStringLiteral("Unable to open file for writing - %1").arg(below));
    }

private:
    const TestFolder m_folder{};
};

QTEST_GUILESS_MAIN(TestKMat)
#include "tst_kmat.moc"
