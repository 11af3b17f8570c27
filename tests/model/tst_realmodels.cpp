// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SampleModels.h"
#include "TestSupport.h"

using namespace SampleModels;

namespace {
void compareVector(const QVector3D &actual, const QJsonValue &expected)
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(qAbs(double(actual[i]) - expected[i].toDouble()) <= 0.0001);
}

QJsonArray valuesOf(const QJsonValue &object, const QStringList &keys)
{
    QJsonArray values;
    for (const QString &key : keys)
        values.append(object[key]);
    return values;
}

template <typename Mesh>
void compareMesh(const Mesh &mesh, const QJsonObject &expected)
{
    compareVector(mesh.bbMin, expected["bbMin"]);
    compareVector(mesh.bbMax, expected["bbMax"]);
    const QJsonArray surfaces = expected["surfaces"].toArray();
    QCOMPARE((QJsonArray{mesh.version, int(mesh.vertices.size()), int(mesh.surfaces.size())}),
             (QJsonArray{expected["version"], expected["vertices"], surfaces.size()}));
    for (int i = 0; i < surfaces.size(); ++i) {
        const auto &surface = mesh.surfaces[size_t(i)];
        QCOMPARE((QJsonArray{surface.materialPath, int(surface.triangleIndexes.size())}),
                 valuesOf(surfaces[i], {"material", "indexes"}));
    }
}

void compareBones(const SkinnedMesh &mesh, const QJsonArray &bones)
{
    QCOMPARE(int(mesh.nodes.size()), bones.size());
    for (int i = 0; i < bones.size(); ++i) {
        const SkinnedMeshNode &bone = mesh.nodes[size_t(i)];
        QJsonArray children;
        for (quint16 child : bone.childNodes)
            children.append(int(child));
        QCOMPARE((QJsonArray{int(bone.parentNode), children}), valuesOf(bones[i], {"parent", "children"}));
    }
}

void compareBlock(const AnimBlock &block, const QJsonValue &expected, size_t boneCount)
{
    QCOMPARE(block.nodes.size(), boneCount);
    QCOMPARE((QJsonArray{block.animId, block.frameCount(), double(block.speed), int(block.loopFrame),
                         block.translations.trackCount(), block.rotations.trackCount()}),
             valuesOf(expected, {"animId", "frames", "speed", "loopFrame", "translations", "rotations"}));
    const QJsonArray actions = expected["actions"].toArray();
    QCOMPARE(int(block.actions.size()), actions.size());
    for (int i = 0; i < actions.size(); ++i) {
        const AnimAction &action = block.actions[size_t(i)];
        QCOMPARE((QJsonArray{int(action.frame), int(action.eventType), int(action.node)}),
                 valuesOf(actions[i], {"frame", "type", "bone"}));
    }
}
} // namespace

/// The real models beside the project and the samples in it.
class TestRealModels : public QObject
{
    Q_OBJECT

private slots:
    void savedUnedited()
    {
        const TestFolder folder;
        for (const QString &path : TestSupport::allModelFiles()) {
            withModel(QFileInfo(path).suffix(), [&](auto model) {
                QString error;
                QVERIFY2(!model.read(path, &error), qPrintable(path + error));
                const QByteArray bytes = TestSupport::readFile(folder.save("copy", model));
                QVERIFY2(bytes == TestSupport::readFile(path), qPrintable(path));
            });
        }
    }

    void facts_data()
    {
        QTest::addColumn<QJsonObject>("expected");
        const QByteArray json = TestSupport::readFile(TestSupport::shared("gamedata/expected.json"));
        const QJsonObject models = QJsonDocument::fromJson(json).object();
        for (auto model = models.begin(); model != models.end(); ++model)
            QTest::newRow(qPrintable(model.key())) << model.value().toObject();
        if (models.isEmpty())
            QTest::newRow("none") << QJsonObject();
    }

    void facts()
    {
        SKIP_WITHOUT_SHARED("gamedata/expected.json");
        QFETCH(QJsonObject, expected);
        QVERIFY(!expected.isEmpty());
        SkinnedMesh skinned;
        AnimFile anim;
        StaticMesh rigid;
        const QJsonObject files = expected["files"].toObject();
        for (auto file = files.begin(); file != files.end(); ++file) {
            const QString path = TestSupport::shared(QLatin1String("gamedata/") + file.key());
            if (path.endsWith(QLatin1String(".skinnedmesh")))
                QVERIFY(!skinned.read(path));
            else if (path.endsWith(QLatin1String(".anim")))
                QVERIFY(!anim.read(path));
            else if (path.endsWith(QLatin1String(".staticmesh")))
                QVERIFY(!rigid.read(path));
        }
        if (expected["kind"].toString() == QLatin1String("static")) {
            compareMesh(rigid, expected);
            return;
        }
        compareMesh(skinned, expected);
        compareBones(skinned, expected["bones"].toArray());
        QCOMPARE(int(skinned.hotPoints.size()), expected["hotPoints"].toInt());
        const QJsonArray blocks = expected["blocks"].toArray();
        QCOMPARE(int(anim.blocks.size()), blocks.size());
        for (int i = 0; i < blocks.size(); ++i)
            compareBlock(anim.blocks[size_t(i)], blocks[i], skinned.nodes.size());
    }
};

QTEST_GUILESS_MAIN(TestRealModels)
#include "tst_realmodels.moc"
