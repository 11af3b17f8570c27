// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Files.h"
#include "PackList.h"
#include "SpecialFiles.h"
#include "TestSupport.h"
#include "ZipArchive.h"
#include "ZipWriter.h"

#include <QBuffer>

namespace {
QBuffer *openBuffer(QByteArray bytes, QObject *parent)
{
    auto *buffer = new QBuffer(parent);
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

/// Has fewer bytes than it says, as a file that is cut off while it is read.
class CutBuffer : public QBuffer
{
public:
    qint64 size() const override { return 2 * QBuffer::size(); }
};
} // namespace

/// What goes into a mod's archive, and that it comes out again.
class TestPacking : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatReadsBack()
    {
        // Deflated to next to nothing, the last would not be unpacked again.
        const std::vector<std::pair<QString, QByteArray>> entries{
            {"a/empty.kmat", ""},
            {QString::fromUtf8("b/\xc3\xbc \xe3\x83\x86.png"), "a texture"},
            {"c.anim", QByteArray(100000, 'c')},
            {"large.tga", QByteArray(int(ZipArchive::FreeBytes) + 1, '\0')}};
        const QString path = m_folder.path("m%1.kpf");
        for (const bool deflates : {true, false}) {
            ZipWriter writer(path);
            for (const auto &[name, bytes] : entries)
                QVERIFY(!writer.add(name, *openBuffer(bytes, this), deflates));
            QVERIFY2(!writer.commit(), qPrintable(writer.reason()));
            QCOMPARE(writer.size(), QFileInfo(path).size());
            QString reason;
            const auto archive = ZipArchive::open(path, reason);
            QVERIFY2(archive, qPrintable(reason));
            QCOMPARE(archive->count(), int(entries.size()));
            for (int i = 0; i < archive->count(); ++i) {
                const auto &[name, bytes] = entries[size_t(i)];
                const ZipEntry &entry = archive->fileAt(i);
                QCOMPARE(entry.path, name);
                QCOMPARE(entry.method == 8, deflates && (i == 1 || i == 2));
                QVERIFY2(Files::read(path + '/' + name, 1 << 30) == bytes, qPrintable(name));
            }
        }
    }

    /// An archive without what nobody saw would look whole.
    void tellsOfWhatIsPassedOver()
    {
        m_folder.put("gaps/textures/a.png", "a picture");
        const auto problems = [this] { return listForPacking(m_folder.path("gaps"), {}).problems; };
        SpecialFiles::withNameWithoutText(m_folder.path("gaps/textures"), [&] {
            QCOMPARE(problems().size(), 1);
            QVERIFY2(problems().first().contains("textures': The name"), qPrintable(problems().first()));
        });
        QCOMPARE(problems(), QStringList());
    }

    void writesWholeOrNotAtAll()
    {
        const QString path = m_folder.put("only/old.kpf", "the old one");
        const auto isOld = [&path] {
            return QDir(QFileInfo(path).path()).entryList(QDir::Files | QDir::Hidden) ==
                       QStringList("old.kpf") &&
                   TestSupport::readFile(path) == "the old one";
        };
        {
            ZipWriter writer(path);
            QVERIFY(!writer.add("a", *openBuffer("bytes", this), true));
            QVERIFY(writer.add("b", *openBuffer("bytes", this), true, [] { return false; }));
            QVERIFY(writer.reason().isEmpty());
            QVERIFY(writer.add("c", *openBuffer("bytes", this), true) && writer.commit());
        }
        QVERIFY(isOld());
        {
            CutBuffer cut;
            cut.setData("bytes");
            cut.open(QIODevice::ReadOnly);
            ZipWriter writer(path);
            QVERIFY(writer.add("b.anim", cut, false) && writer.commit());
            QVERIFY2(writer.reason().contains("b.anim"), qPrintable(writer.reason()));
        }
        QVERIFY(isOld());
        ZipWriter nowhere(m_folder.path("no folder/a.kpf"));
        QVERIFY(nowhere.add("a", *openBuffer("bytes", this), true));
        QVERIFY(!nowhere.reason().isEmpty());
    }

    void listsWhatBelongs()
    {
        const QString mod = m_folder.path("mod");
        const QStringList packed{"Z.txt",
                                 "levels/a.map",
                                 "models/hero.anim",
                                 "models/hero.png",
                                 "models/names.json",
                                 "models/x.anim.Abc",
                                 QString::fromUtf8("\xc3\xa4.kmat")};
        const QMap<QString, QString> others{
            {"hero.blend", "source"},        {"hero.blend1", "source"},
            {"HERO.FBX", "source"},          {"a.kmat~", "backup"},
            {"a.kmat.BAK", "backup"},        {"models/hero.names.json", "names"},
            {"models/x.anim.AbCdEf", "cut"}, {"old.kpf", "archive"},
            {"make.sh", "program"},          {"textures/Thumbs.db", "desktop"},
            {"__MACOSX/a.png", "desktop"},   {"notes/todo.md", "asked"},
            {"draft hero.anim", "asked"}};
        for (const QString &name :
             packed + others.keys() + QStringList{".korvane.json", ".git/config", "models/.hidden.anim"})
            m_folder.put("mod/" + name, "x");
        m_folder.put("game/MODELS/Hero.anim", "x");

        const PackList list = listForPacking(mod, m_folder.path("game"), {"notes/*", "draft*", "*/nothing"});
        QStringList names;
        for (const PackedFile &file : list.files) {
            names += file.name;
            QCOMPARE(file.replacesGame, file.name == "models/hero.anim");
            QCOMPARE(file.isDeflated, file.name != "models/hero.png");
        }
        QCOMPARE(names, packed);
        QCOMPARE(int(list.leftOut.size()), others.size());
        for (const LeftOutFile &file : list.leftOut)
            QVERIFY2(file.reason.contains(others.value(file.name, "none")), qPrintable(file.name));
        QCOMPARE(list.problems, QStringList());
        QVERIFY(listForPacking(mod, {}, {}, [] { return false; }).files.empty());
    }

    void refusesNamesThatGetLost()
    {
        m_folder.put("bad/models/hero.anim", "x");
        m_folder.put("bad/Models/HERO.anim", "x");
        if (QDir(m_folder.path("bad")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() == 1)
            QSKIP("names have no case here");
        m_folder.put("bad/aux.kmat", "x");
        m_folder.put("bad/a:b.png", "x");
        const QStringList problems = listForPacking(m_folder.path("bad"), {}).problems;
        QCOMPARE(problems.size(), 3);
        QVERIFY2(problems[0].contains("a:b.png") && problems[1].contains("aux.kmat"),
                 qPrintable(problems[1]));
        QVERIFY2(problems[2].contains("'Models/HERO.anim' and 'models/hero.anim'"), qPrintable(problems[2]));
    }

private:
    TestFolder m_folder;
};

QTEST_GUILESS_MAIN(TestPacking)
#include "tst_packing.moc"
