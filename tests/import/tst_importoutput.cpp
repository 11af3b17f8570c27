// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportOutput.h"
#include "StaticMesh.h"
#include "TestSupport.h"

/// What an import leaves in the mod folder.
class tst_importoutput : public QObject
{
    Q_OBJECT

private slots:
    void insideOrOutside_data();
    void insideOrOutside();
    void copying();
    void materials();
};

void tst_importoutput::insideOrOutside_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("relative");
    QTest::newRow("relative") << "materials/a.kmat"
                              << "materials/a.kmat";
    QTest::newRow("absolute") << "/mod/materials/a.kmat"
                              << "materials/a.kmat";
    QTest::newRow("dots within") << "materials/../textures/./a"
                                 << "textures/a";
    QTest::newRow("the folder itself") << "/mod/"
                                       << "";
    QTest::newRow("name that only begins alike") << "/mod2/a.kmat" << QString();
    QTest::newRow("dots that lead out") << "materials/../../a.kmat" << QString();
    QTest::newRow("elsewhere") << "/tmp/a.kmat" << QString();
    QTest::newRow("name that begins with dots") << "..a/b"
                                                << "..a/b";
}

void tst_importoutput::insideOrOutside()
{
    QFETCH(QString, path);
    QFETCH(QString, relative);
    const QString found = pathInside(QStringLiteral("/mod/"), path);
    QCOMPARE(found, relative);
    QCOMPARE(found.isNull(), relative.isNull());
    // Without a folder only what is relative already can be inside.
    QCOMPARE(pathInside(QString(), path).isNull(), relative.isNull() || path.startsWith(QLatin1Char('/')));
}

void tst_importoutput::copying()
{
    QTemporaryDir source;
    QTemporaryDir target;
    const QString a = source.filePath(QStringLiteral("a.png"));
    const QString b = source.filePath(QStringLiteral("b.png"));
    QVERIFY(TestSupport::writeFile(a, "new"));
    QVERIFY(TestSupport::writeFile(b, "other"));
    QVERIFY(TestSupport::writeFile(target.filePath(QStringLiteral("a.png")), "old"));
    ImportMessages messages;
    QCOMPARE(copyTextures({a, QString(), b}, target.path(), messages),
             QStringLiteral("Successfully copied textures\n"));
    QCOMPARE(TestSupport::readFile(target.filePath(QStringLiteral("a.png"))), QByteArray("new"));

    // Onto itself, also by another way.
    QVERIFY(QFile::link(source.path(), target.filePath(QStringLiteral("link"))));
    QCOMPARE(copyTextures({a}, target.filePath(QStringLiteral("link")), messages),
             QStringLiteral("Successfully copied textures\n"));
    QCOMPARE(TestSupport::readFile(a), QByteArray("new"));
    QVERIFY(messages.lines.isEmpty());
    QCOMPARE(copyTextures({QString()}, target.path(), messages),
             QStringLiteral("Model had no textures to copy\n"));

    // Two of one name cannot both stand there.
    QVERIFY(QDir(source.path()).mkpath(QStringLiteral("other")));
    const QString alike = source.filePath(QStringLiteral("other/a.png"));
    QVERIFY(TestSupport::writeFile(alike, "new"));
    QCOMPARE(copyTextures({a, alike}, target.path(), messages),
             QStringLiteral("Successfully copied textures\n"));
    QCOMPARE(messages.lines.size(), 1);
    QCOMPARE(messages.lines.takeFirst().text,
             QStringLiteral("'%1' and '%2' have one name: only one of them can be used").arg(a, alike));

    // What cannot be read leaves the file that stands there; what cannot be written says so.
    const QString gone = source.filePath(QStringLiteral("sub/a.png"));
    QCOMPARE(copyTextures({gone}, target.path(), messages), QStringLiteral("Failed on copying textures\n"));
    QCOMPARE(TestSupport::readFile(target.filePath(QStringLiteral("a.png"))), QByteArray("new"));
    QVERIFY(QDir(target.path()).mkpath(QStringLiteral("b.png.d/b.png")));
    const QString inTheWay = target.filePath(QStringLiteral("b.png.d"));
    QCOMPARE(copyTextures({a, b}, inTheWay, messages), QStringLiteral("Failed on copying textures\n"));
    QCOMPARE(messages.lines.size(), 2);
    QCOMPARE(messages.lines[0].text, QStringLiteral("Could not copy texture from '%1' to '%2'")
                                         .arg(gone, target.filePath(QStringLiteral("a.png"))));
    QCOMPARE(messages.lines[1].text, QStringLiteral("Could not overwrite texture '%1/b.png'").arg(inTheWay));
    QVERIFY(!messages.hasError());
}

void tst_importoutput::materials()
{
    const std::vector<StaticMeshSurface> surfaces{{QStringLiteral("materials/m/surf_0"), {}},
                                                  {QStringLiteral("materials/m/surf_1_white"), {}},
                                                  {QStringLiteral("materials/m/surf_2"), {}}};
    const QStringList textures{QStringLiteral("/x/steel.v2.png"), QStringLiteral("/x/wood.png")};
    MaterialTable table = materialsOf(surfaces, textures, QStringLiteral("textures/mine"));
    QCOMPARE(table.size(), size_t(3));
    QCOMPARE(table[QStringLiteral("surf_0")], QStringLiteral("textures/mine/steel.v2.png"));
    QCOMPARE(table[QStringLiteral("surf_1_white")], QStringLiteral("_white"));
    QCOMPARE(table[QStringLiteral("surf_2")], QStringLiteral("textures/mine/wood.png"));
    QCOMPARE(materialsOf(surfaces, textures, QString())[QStringLiteral("surf_2")],
             QStringLiteral("wood.png"));

    QTemporaryDir folder;
    ImportMessages messages;
    QCOMPARE(createKMat(folder.filePath(QStringLiteral("m.kmat")), table, messages),
             QStringLiteral("Successfully created .kmat file\n"));
    MaterialTable written;
    QCOMPARE(readKMat(folder.filePath(QStringLiteral("m.kmat")), written), QString());
    QCOMPARE(written, table);
    QVERIFY(messages.lines.isEmpty());
    table[QStringLiteral("surf_2")] = QStringLiteral("textures/my wood.png");
    QCOMPARE(createKMat(folder.filePath(QStringLiteral("m.kmat")), table, messages),
             QStringLiteral("Successfully created .kmat file\n"));
    QVERIFY(messages.lines.takeFirst().text.contains(QLatin1String("my wood.png")));
    QCOMPARE(createKMat(folder.filePath(QStringLiteral("none/m.kmat")), table, messages),
             QStringLiteral("Failed on creating .kmat file\n"));
    QCOMPARE(messages.lines.size(), 2);
}

QTEST_GUILESS_MAIN(tst_importoutput)
#include "tst_importoutput.moc"
