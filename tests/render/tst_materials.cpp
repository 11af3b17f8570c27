// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"
#include "MaterialTextures.h"
#include "MeshSource.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"
#include "TextureImages.h"

#include <future>
#include <limits>

// What a mesh's graphics copy is made from: textures through materials, vertices, indexes.
class tst_Materials : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { Log::setSink({}); }
    void lookUp_data();
    void lookUp();
    void missingFiles();
    void whiteNeedsNoFile();
    void cachesWithinABuild();
    void sharesDecodedFiles();
    void emptyFolders();
    void vertices();
    void indexes();

private:
    QImage find(const QString &materialPath)
    {
        return MaterialTextures(m_game, m_mod, m_tag).image(materialPath);
    }
    void save(const QString &folder, const QString &name, const QColor &color);

    QTemporaryDir m_home;
    QTemporaryDir m_folder;
    QString m_game;
    QString m_mod;
    QString m_tag = QStringLiteral("GLMesh From Skinned Mesh");
    QStringList m_log;
};

namespace {
const QColor Blank(255, 255, 255);

QString material(const char *name, const char *texture)
{
    return QStringLiteral("material %1 {\n\tsampler \"diffuse\" 0 \"%2\" {\n}\n}\n")
        .arg(QLatin1String(name), QLatin1String(texture));
}
} // namespace

void tst_Materials::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
    // Folders may be set with a separator at the end.
    m_game = m_folder.path() + QStringLiteral("/game/");
    m_mod = m_folder.path() + QStringLiteral("/mod\\");
    for (const char *folder : {"game/textures", "game/materials", "mod/textures", "mod/materials"})
        QVERIFY(QDir(m_folder.path()).mkpath(QLatin1String(folder)));
    save(QStringLiteral("game"), QStringLiteral("both.png"), Qt::red);
    save(QStringLiteral("mod"), QStringLiteral("both.png"), Qt::blue);
    save(QStringLiteral("mod"), QStringLiteral("mod.png"), Qt::green);
    const QString kmat = m_folder.path() + QStringLiteral("/%1/materials/%2.kmat");
    const auto write = [&](const char *folder, const char *name, const QString &text) {
        QVERIFY(TestSupport::writeFile(kmat.arg(QLatin1String(folder), QLatin1String(name)), text.toUtf8()));
    };
    write("game", "a",
          material("both", "textures/both.png") + material("mod", "textures/mod.png") +
              material("white", "_white") + material("lost", "textures/lost.png") +
              QStringLiteral("material empty {\n}\n") + material("tinted_white", "textures/both.png"));
    write("mod", "a", material("only_mod", "textures/mod.png"));
    write("mod", "b", material("both", "textures/mod.png"));
    write("game", "broken", QStringLiteral("sampler \"diffuse\" 0 \"x.png\" {\n"));
}

void tst_Materials::save(const QString &folder, const QString &name, const QColor &color)
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(color);
    QVERIFY(image.save(m_folder.path() + QLatin1Char('/') + folder + QStringLiteral("/textures/") + name));
}

void tst_Materials::init()
{
    m_log.clear();
    Log::setSink([this](LogSeverity, const QString &text) {
        m_log.append(QString(text).replace(m_folder.path(), QStringLiteral("~")));
    });
}

void tst_Materials::lookUp_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QStringList>("log");
    const auto failed = [](const char *path) {
        return QStringLiteral(
                   "[GLMesh From Skinned Mesh] Failed to load texture '%1' using blank texture instead")
            .arg(QLatin1String(path));
    };
    const QString none =
        QStringLiteral("[GLMesh From Skinned Mesh] No material '%1' in '~/game/materials/a.kmat'");
    QTest::newRow("game before mod") << "materials/a/both" << QColor(Qt::red) << QStringList();
    QTest::newRow("only in mod") << "materials/a/mod" << QColor(Qt::green) << QStringList();
    QTest::newRow("material file in mod") << "materials/b/both" << QColor(Qt::green) << QStringList();
    QTest::newRow("_white texture") << "materials/a/white" << Blank << QStringList();
    QTest::newRow("_white name with an entry")
        << "materials/a/tinted_white" << QColor(Qt::red) << QStringList();
    QTest::newRow("lost texture") << "materials/a/lost" << Blank
                                  << QStringList{failed("~/mod/textures/lost.png")};
    QTest::newRow("no sampler") << "materials/a/empty" << Blank << QStringList{failed("~/mod/")};
    // The game's file wins whole, though the mod's has the material.
    QTest::newRow("only in the mod's file")
        << "materials/a/only_mod" << Blank
        << QStringList{none.arg(QStringLiteral("only_mod")), failed("~/mod/")};
    QTest::newRow("broken file")
        << "materials/broken/x" << Blank
        << QStringList{
               QStringLiteral("[GLMesh From Skinned Mesh] .kMat file read a texture path with no material "
                              "set. The file may be invalid - ~/game/materials/broken.kmat"),
               failed("~/mod/")};
}

void tst_Materials::lookUp()
{
    QFETCH(QString, path);
    const QImage image = find(path);
    QVERIFY(!image.isNull());
    QTEST(image.pixelColor(0, 0), "color");
    QTEST(m_log, "log");
}

void tst_Materials::missingFiles()
{
    for (const QString &path : {QStringLiteral("nowhere/x"), QStringLiteral("x"), QString()}) {
        m_log.clear();
        QCOMPARE(find(path).pixelColor(0, 0), Blank);
        QCOMPARE(m_log.size(), 2);
        QVERIFY(m_log[0].startsWith(
            QStringLiteral("[GLMesh From Skinned Mesh] Unable to read .kMat file at ~/mod/")));
    }
}

void tst_Materials::whiteNeedsNoFile()
{
    for (const char *path :
         {"_white", "imported_white", "materials/nowhere/part_white", "materials/a/x_white"})
        QCOMPARE(find(QLatin1String(path)).pixelColor(0, 0), Blank);
    QCOMPARE(m_log, QStringList());
}

void tst_Materials::cachesWithinABuild()
{
    MaterialTextures textures(m_game, m_mod, m_tag);
    const QImage first = textures.image(QStringLiteral("materials/a/both"));
    // The same name in another file is another material.
    QCOMPARE(textures.image(QStringLiteral("materials/b/both")).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(textures.image(QStringLiteral("materials/a/both")).cacheKey(), first.cacheKey());
    QCOMPARE(m_log, QStringList());
    // A broken file is read, and reported, once.
    textures.image(QStringLiteral("materials/broken/x"));
    textures.image(QStringLiteral("materials/broken/y"));
    QCOMPARE(m_log.filter(QStringLiteral(".kMat")).size(), 1);
}

void tst_Materials::sharesDecodedFiles()
{
    save(QStringLiteral("mod"), QStringLiteral("shared.png"), Qt::red);
    const QString path = m_folder.path() + QStringLiteral("/mod/textures/shared.png");
    std::vector<std::future<QImage>> asked;
    asked.reserve(8);
    for (int i = 0; i < 8; ++i)
        asked.push_back(std::async(std::launch::async, &TextureImages::load, path));
    const QImage first = asked[0].get();
    QCOMPARE(first.pixelColor(0, 0), QColor(Qt::red));
    for (size_t i = 1; i < asked.size(); ++i)
        QCOMPARE(asked[i].get().cacheKey(), first.cacheKey());

    // What a paint program writes is seen, and so is a file that comes back after it was missed.
    const QDateTime later = QDateTime::currentDateTime().addSecs(2);
    const auto write = [&](const QByteArray &bytes) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
               file.setFileTime(later, QFileDevice::FileModificationTime);
    };
    save(QStringLiteral("mod"), QStringLiteral("shared.png"), Qt::green);
    const QByteArray green = TestSupport::readFile(path);
    QVERIFY(write(green));
    QCOMPARE(TextureImages::load(path).pixelColor(0, 0), QColor(Qt::green));
    QVERIFY(QFile::remove(path));
    QVERIFY(TextureImages::load(path).isNull());
    save(QStringLiteral("mod"), QStringLiteral("shared.png"), Qt::blue);
    QCOMPARE(TextureImages::load(path).pixelColor(0, 0), QColor(Qt::blue));
    // A failure is tried again, though nothing tells that its reason has gone.
    QVERIFY(write(QByteArray(green.size(), '\0')));
    QVERIFY(TextureImages::load(path).isNull());
    QVERIFY(write(green));
    QVERIFY(!TextureImages::load(path).isNull());
}

void tst_Materials::emptyFolders()
{
    // With no folder the paths would name files of the whole system.
    MaterialTextures none(QString(), QString(), m_tag);
    QCOMPARE(none.image(m_folder.path().mid(1) + QStringLiteral("/game/materials/a/both")).pixelColor(0, 0),
             Blank);
    QCOMPARE(m_log.size(), 2);
    m_log.clear();
    MaterialTextures onlyMod(QString(), m_mod, m_tag);
    QCOMPARE(onlyMod.image(QStringLiteral("materials/b/both")).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(m_log, QStringList());
}

void tst_Materials::vertices()
{
    MeshVertices copy;
    copy.assign(SkinnedMesh());
    QVERIFY(copy.vertices.empty());
    QCOMPARE(copy.boxMin, QVector3D(999999.0f, 999999.0f, 999999.0f));
    QCOMPARE(copy.boxMax, QVector3D(-999999.0f, -999999.0f, -999999.0f));

    SkinnedMesh mesh;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    mesh.vertices = {{{1.0f, -2.0f, 3.0f}, {0.25f, 0.75f}, {0.0f, 0.0f, 1.0f}, 65535},
                     {{nan, 5.0f, nan}, {0.0f, -1.0f}, {}, 3}};
    copy.assign(mesh);
    QCOMPARE(copy.vertices[0].boneId, 65535);
    QCOMPARE(copy.vertices[0].texcoord[1], 0.25f);
    QCOMPARE(copy.vertices[1].texcoord[1], 2.0f);
    QCOMPARE(copy.boxMin, QVector3D(1.0f, -2.0f, 3.0f));
    QCOMPARE(copy.boxMax, QVector3D(1.0f, 5.0f, 3.0f));
}

void tst_Materials::indexes()
{
    StaticMesh mesh;
    mesh.vertices.resize(4);
    mesh.surfaces.resize(3);
    mesh.surfaces[0].triangleIndexes = {0, 1, 2, 2, 1, 3};
    mesh.surfaces[1].triangleIndexes = {0, 1, 2, 3, 4, 0, 3, 2, 1, 65535, 0, 1, 3};
    mesh.surfaces[2].triangleIndexes = {0, 1, 2, 3, 9};
    using Lists = std::vector<std::vector<quint16>>;
    QCOMPARE(drawableIndexes(mesh), (Lists{{0, 1, 2, 2, 1, 3}, {0, 1, 2, 3, 2, 1, 3}, {0, 1, 2}}));
    QCOMPARE(m_log.size(), 2);
    QVERIFY(m_log[0].startsWith(QStringLiteral("[GLMesh From Static Mesh] Surface 1: 2 triangles")));
    QVERIFY(m_log[0].endsWith(QStringLiteral("the first is triangle 1")));
    QCOMPARE(mesh.surfaces[1].triangleIndexes.size(), size_t(13));
}

QTEST_GUILESS_MAIN(tst_Materials)
#include "tst_materials.moc"
