// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileReader.h"
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
    void lookUp();
    void cachesWithinABuild();
    void sharesDecodedFiles();
    void limits();
    void nothingIsDecodedOnceCancelled();
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
              material("targa", "textures/blue.tga") + QStringLiteral("material empty {\n}\n") +
              material("tinted_white", "textures/both.png"));
    QVERIFY(TestSupport::writeFile(m_folder.path() + QStringLiteral("/mod/textures/blue.tga"),
                                   QByteArray::fromHex("000002000000000000000000010001001800ff0000")));
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

void tst_Materials::lookUp()
{
    const auto failed = [](const char *path) {
        return QStringLiteral("Failed to load texture '%1' using blank texture instead")
            .arg(QLatin1String(path));
    };
    const auto unread = [](const char *file) {
        return QStringLiteral("Unable to read .kMat file at ~/mod/%1.kmat").arg(QLatin1String(file));
    };
    const QString none = QStringLiteral("No material 'only_mod' in '~/game/materials/a.kmat'");
    const QString broken = QStringLiteral(".kMat file read a texture path with no material set. "
                                          "The file may be invalid - ~/game/materials/broken.kmat");
    struct Row
    {
        const char *path;
        QColor color;
        QStringList log;
    };
    const Row rows[] = {
        {"materials/a/both", Qt::red, {}},  // the game before the mod
        {"materials/a/mod", Qt::green, {}}, // only in the mod
        {"materials/a/targa", Qt::blue, {}},
        {"materials/b/both", Qt::green, {}},
        {"materials/a/white", Blank, {}},
        {"materials/a/tinted_white", Qt::red, {}}, // a _white name that has an entry
        {"materials/a/lost", Blank, {failed("~/mod/textures/lost.png")}},
        {"materials/a/empty", Blank, {failed("~/mod/")}},
        {"materials/a/only_mod", Blank, {none, failed("~/mod/")}}, // the game's file wins whole
        {"materials/broken/x", Blank, {broken, failed("~/mod/")}},
        {"_white", Blank, {}},
        {"materials/nowhere/part_white", Blank, {}},
        {"materials/a/x_white", Blank, {}},
        {"nowhere/x", Blank, {unread("nowhere"), failed("~/mod/")}},
        {"x", Blank, {unread("."), failed("~/mod/")}},
        {"", Blank, {unread(""), failed("~/mod/")}},
    };
    for (const Row &row : rows) {
        m_log.clear();
        QVERIFY2(find(QLatin1String(row.path)).pixelColor(0, 0) == row.color, row.path);
        QStringList log = row.log;
        for (QString &line : log)
            line.prepend(QStringLiteral("[GLMesh From Skinned Mesh] "));
        QCOMPARE(m_log, log);
    }
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
    const QByteArray green = TestSupport::readFile(m_folder.path() + QStringLiteral("/mod/textures/mod.png"));
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

    // What is decoded ahead, however much, pushes out nothing that was asked for.
    const qint64 key = TextureImages::load(path).cacheKey();
    const auto ahead = [this](int number) {
        return QStringLiteral("%1/mod/textures/ahead%2.png").arg(m_folder.path()).arg(number);
    };
    QImage large(2048, 2048, QImage::Format_RGBA8888);
    large.fill(Qt::red);
    for (int i = 0; i < 10; ++i) { // of 16 MiB each
        QVERIFY(large.save(ahead(i)));
        QCOMPARE(TextureImages::loadAhead(ahead(i)), large.sizeInBytes());
    }
    QCOMPARE(TextureImages::load(path).cacheKey(), key);
    // Its last is there, its first was pushed out.
    const auto isKept = [&](int number) {
        const QDateTime changed = QFileInfo(ahead(number)).lastModified();
        QFile file(ahead(number));
        const bool isSpoilt = file.open(QIODevice::ReadWrite) && file.write("none") == 4 && file.flush() &&
                              file.setFileTime(changed, QFileDevice::FileModificationTime);
        return isSpoilt && !TextureImages::load(ahead(number)).isNull();
    };
    QVERIFY(isKept(9) && !isKept(0));
}

void tst_Materials::limits()
{
    const auto name = [](const char *material) {
        return QStringLiteral("materials/a/") + QLatin1String(material);
    };
    // Of four pixels, four and one.
    MaterialTextures few(m_game, m_mod, m_tag, 6);
    QCOMPARE(few.image(name("both")).pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(few.image(name("mod")).pixelColor(0, 0), Blank);
    QCOMPARE(few.image(name("targa")).pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(m_log.filter("'~/mod/textures/mod.png' is left out").size(), 1);

    // What is there and cannot be taken is told apart from what is not there.
    const QString lost = m_folder.path() + QStringLiteral("/game/textures/lost.png");
    m_log.clear();
    QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(lost, "ICO"));
    QVERIFY(find(name("lost")) == find(name("white")));
    QVERIFY(m_log.filter("'~/game/textures/lost.png' is no picture of a kind that is read: PNG").size() == 1);
    QVERIFY(TestSupport::writeFile(
        lost, QByteArray::fromHex("424d36000000000000003600000028000000803e0000803e000001001800"
                                  "000000000000000000000000000000000000000000000000")));
    QVERIFY(find(name("lost")) == find(name("white")));
    QVERIFY(m_log.filter(QStringLiteral("has 16000 × 16000 pixels")).size() == 1);
    QVERIFY(QFile::remove(lost));
}

void tst_Materials::nothingIsDecodedOnceCancelled()
{
    StaticMesh mesh;
    mesh.surfaces.resize(3);
    ReadProgress progress;
    QCOMPARE(MeshSource::from(mesh, m_game, m_mod, &progress).images.size(), size_t(3));
    m_log.clear();
    progress.isCancelled = true;
    QCOMPARE(MeshSource::from(mesh, m_game, m_mod, &progress).images.size(), size_t(0));
    QCOMPARE(m_log, QStringList());
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
