// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace SampleModels;

namespace {
void compareVector(const QVector3D &actual, const QJsonValue &expected)
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(qAbs(double(actual[i]) - expected[i].toDouble()) <= 0.0001);
}

template <typename Mesh>
void compareMesh(const Mesh &mesh, const QJsonObject &expected)
{
    QCOMPARE(mesh.version, expected[QLatin1String("version")].toInt());
    compareVector(mesh.bbMin, expected[QLatin1String("bbMin")]);
    compareVector(mesh.bbMax, expected[QLatin1String("bbMax")]);
    QCOMPARE(int(mesh.vertices.size()), expected[QLatin1String("vertices")].toInt());
    const QJsonArray surfaces = expected[QLatin1String("surfaces")].toArray();
    QCOMPARE(int(mesh.surfaces.size()), surfaces.size());
    for (int i = 0; i < surfaces.size(); ++i) {
        const auto &surface = mesh.surfaces[size_t(i)];
        QCOMPARE(surface.materialPath, surfaces[i][QLatin1String("material")].toString());
        QCOMPARE(int(surface.triangleIndexes.size()), surfaces[i][QLatin1String("indexes")].toInt());

        MaterialTable table;
        const QString kmat = surfaces[i][QLatin1String("kmat")].toString();
        QCOMPARE(readKMat(TestSupport::shared(QLatin1String("gamedata/") + kmat), table), QString());
        const QString name = surface.materialPath.section(QLatin1Char('/'), -1);
        QVERIFY2(table.count(name) == 1, qPrintable(name));
        QCOMPARE(table[name], surfaces[i][QLatin1String("sampler")].toString());
    }
}

void compareBones(const SkinnedMesh &mesh, const QJsonArray &bones)
{
    QCOMPARE(int(mesh.nodes.size()), bones.size());
    for (int i = 0; i < bones.size(); ++i) {
        QCOMPARE(int(mesh.nodes[size_t(i)].parentNode), bones[i][QLatin1String("parent")].toInt());
        QJsonArray children;
        for (quint16 child : mesh.nodes[size_t(i)].childNodes)
            children.append(int(child));
        QCOMPARE(children, bones[i][QLatin1String("children")].toArray());
    }
}

void compareBlock(const AnimBlock &block, const QJsonValue &expected, size_t boneCount)
{
    QCOMPARE(block.animId, expected[QLatin1String("animId")].toInt());
    QCOMPARE(block.frameCount(), expected[QLatin1String("frames")].toInt());
    QCOMPARE(double(block.speed), expected[QLatin1String("speed")].toDouble());
    QCOMPARE(int(block.loopFrame), expected[QLatin1String("loopFrame")].toInt());
    QCOMPARE(block.nodes.size(), boneCount);
    QCOMPARE(block.translations.trackCount(), expected[QLatin1String("translations")].toInt());
    QCOMPARE(block.rotations.trackCount(), expected[QLatin1String("rotations")].toInt());
    const QJsonArray actions = expected[QLatin1String("actions")].toArray();
    QCOMPARE(int(block.actions.size()), actions.size());
    for (int i = 0; i < actions.size(); ++i) {
        const AnimAction &action = block.actions[size_t(i)];
        QCOMPARE(int(action.frame), actions[i][QLatin1String("frame")].toInt());
        QCOMPARE(int(action.eventType), actions[i][QLatin1String("type")].toInt());
        QCOMPARE(int(action.node), actions[i][QLatin1String("bone")].toInt());
    }
}
} // namespace

/// The real models beside the project and the samples in it.
class TestRealModels : public QObject
{
    Q_OBJECT

private slots:
    void savedUnedited_data();
    void savedUnedited();
    void facts_data();
    void facts();
};

void TestRealModels::savedUnedited_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("suffix");
    for (const QString &suffix : suffixes()) {
        for (const QString &path : TestSupport::modelFiles(suffix))
            QTest::newRow(qPrintable(path)) << path << suffix;
    }
    if (TestSupport::modelFiles(suffixes()[0]).isEmpty())
        QTest::newRow("none") << QString() << QString();
}

void TestRealModels::savedUnedited()
{
    QFETCH(QString, path);
    QFETCH(QString, suffix);
    if (path.isEmpty())
        QSKIP("needs the folder of real models or the samples");
    withModel(suffix, [&](auto model) {
        QString error;
        QVERIFY2(!model.read(path, &error), qPrintable(error));
        const QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("copy"));
        QVERIFY(!model.write(copy));
        QVERIFY(TestSupport::readFile(copy) == TestSupport::readFile(path));
    });
}

void TestRealModels::facts_data()
{
    QTest::addColumn<QJsonObject>("expected");
    const QByteArray json =
        TestSupport::readFile(TestSupport::shared(QStringLiteral("gamedata/expected.json")));
    const QJsonObject models = QJsonDocument::fromJson(json).object();
    for (auto model = models.begin(); model != models.end(); ++model)
        QTest::newRow(qPrintable(model.key())) << model.value().toObject();
    if (models.isEmpty())
        QTest::newRow("none") << QJsonObject();
}

void TestRealModels::facts()
{
    SKIP_WITHOUT_SHARED("gamedata/expected.json");
    QFETCH(QJsonObject, expected);
    QVERIFY(!expected.isEmpty());
    SkinnedMesh skinned;
    AnimFile anim;
    StaticMesh rigid;
    const QJsonObject files = expected[QLatin1String("files")].toObject();
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = TestSupport::shared(QLatin1String("gamedata/") + file.key());
        if (path.endsWith(QLatin1String(".skinnedmesh")))
            QVERIFY(!skinned.read(path));
        else if (path.endsWith(QLatin1String(".anim")))
            QVERIFY(!anim.read(path));
        else if (path.endsWith(QLatin1String(".staticmesh")))
            QVERIFY(!rigid.read(path));
    }
    if (expected[QLatin1String("kind")].toString() == QLatin1String("static")) {
        compareMesh(rigid, expected);
        return;
    }
    compareMesh(skinned, expected);
    compareBones(skinned, expected[QLatin1String("bones")].toArray());
    QCOMPARE(int(skinned.hotPoints.size()), expected[QLatin1String("hotPoints")].toInt());
    const QJsonArray blocks = expected[QLatin1String("blocks")].toArray();
    QCOMPARE(int(anim.blocks.size()), blocks.size());
    for (int i = 0; i < blocks.size(); ++i)
        compareBlock(anim.blocks[size_t(i)], blocks[i], skinned.nodes.size());
}

QTEST_GUILESS_MAIN(TestRealModels)
#include "tst_realmodels.moc"
