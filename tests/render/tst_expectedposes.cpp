// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Pose.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// The real models: what the files hold, and where bones and vertices stand in the initial pose and at chosen
// frames. The expected places were computed from the models' sources, in double precision.
class tst_ExpectedPoses : public QObject
{
    Q_OBJECT

private slots:
    void facts_data() { models(QString()); }
    void facts();
    void poses_data() { models(QStringLiteral("skinned")); }
    void poses();

private:
    void models(const QString &kind);
    QJsonObject m_models;
};

namespace {
/// Half of the last of the four decimals, and room for single precision at the size of these models.
constexpr float BoneTolerance = 0.01f;

QString path(const QJsonObject &model, const QString &ending)
{
    for (const QString &file : model[QLatin1String("files")].toObject().keys()) {
        if (file.endsWith(ending))
            return TestSupport::shared(QStringLiteral("gamedata/") + file);
    }
    return {};
}

QVector3D vector(const QJsonValue &value)
{
    const QJsonArray numbers = value.toArray();
    return {float(numbers[0].toDouble()), float(numbers[1].toDouble()), float(numbers[2].toDouble())};
}

template <typename Mesh>
void compareSurfaces(const Mesh &mesh, const QJsonObject &model)
{
    QCOMPARE(int(mesh.version), model[QLatin1String("version")].toInt());
    QVERIFY((mesh.bbMin - vector(model[QLatin1String("bbMin")])).length() < 0.001f);
    QVERIFY((mesh.bbMax - vector(model[QLatin1String("bbMax")])).length() < 0.001f);
    QCOMPARE(int(mesh.vertices.size()), model[QLatin1String("vertices")].toInt());
    const QJsonArray surfaces = model[QLatin1String("surfaces")].toArray();
    QCOMPARE(int(mesh.surfaces.size()), surfaces.size());
    for (int i = 0; i < surfaces.size(); ++i) {
        const auto &surface = mesh.surfaces[size_t(i)];
        QCOMPARE(surface.materialPath, surfaces[i].toObject()[QLatin1String("material")].toString());
        QCOMPARE(int(surface.triangleIndexes.size()),
                 surfaces[i].toObject()[QLatin1String("indexes")].toInt());
    }
}

void compareBlock(const AnimBlock &block, const QJsonObject &expected)
{
    QCOMPARE(int(block.animId), expected[QLatin1String("animId")].toInt());
    QCOMPARE(block.frameCount(), expected[QLatin1String("frames")].toInt());
    QCOMPARE(block.speed, float(expected[QLatin1String("speed")].toDouble()));
    QCOMPARE(int(block.loopFrame), expected[QLatin1String("loopFrame")].toInt());
    QCOMPARE(block.translations.trackCount(), expected[QLatin1String("translations")].toInt());
    QCOMPARE(block.rotations.trackCount(), expected[QLatin1String("rotations")].toInt());
    QCOMPARE(int(block.actions.size()), expected[QLatin1String("actions")].toArray().size());
}

void comparePose(const SkinnedMesh &mesh, const BonePalette &palette, const QJsonObject &pose,
                 float tolerance)
{
    const QJsonArray bones = pose[QLatin1String("bones")].toArray();
    QCOMPARE(int(palette.size()), bones.size());
    for (int bone = 0; bone < bones.size(); ++bone) {
        const float error = (palette[size_t(bone)].column(3).toVector3D() - vector(bones[bone])).length();
        QVERIFY2(error < BoneTolerance,
                 qPrintable(QStringLiteral("bone %1: %2").arg(bone).arg(double(error))));
    }
    const QJsonObject vertices = pose[QLatin1String("vertices")].toObject();
    QVERIFY(!vertices.isEmpty());
    for (const QString &key : vertices.keys()) {
        const SkinnedMeshVertex &vertex = mesh.vertices[key.toUInt()];
        const float error = (palette[vertex.nodeIndex].map(vertex.position) - vector(vertices[key])).length();
        QVERIFY2(error < tolerance, qPrintable(QStringLiteral("vertex %1: %2").arg(key).arg(double(error))));
    }
}
} // namespace

void tst_ExpectedPoses::models(const QString &kind)
{
    SKIP_WITHOUT_SHARED("gamedata/expected.json");
    const QByteArray json =
        TestSupport::readFile(TestSupport::shared(QStringLiteral("gamedata/expected.json")));
    m_models = QJsonDocument::fromJson(json).object();
    QVERIFY(!m_models.isEmpty());
    QTest::addColumn<QString>("name");
    for (const QString &name : m_models.keys()) {
        if (kind.isEmpty() || m_models[name].toObject()[QLatin1String("kind")].toString() == kind)
            QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_ExpectedPoses::facts()
{
    QFETCH(QString, name);
    const QJsonObject model = m_models[name].toObject();
    if (model[QLatin1String("kind")] == QLatin1String("static")) {
        StaticMesh mesh;
        QVERIFY(!mesh.read(path(model, QStringLiteral(".staticmesh"))));
        compareSurfaces(mesh, model);
        return;
    }
    SkinnedMesh mesh;
    QVERIFY(!mesh.read(path(model, QStringLiteral(".skinnedmesh"))));
    compareSurfaces(mesh, model);
    QCOMPARE(int(mesh.hotPoints.size()), model[QLatin1String("hotPoints")].toInt());
    const QJsonArray bones = model[QLatin1String("bones")].toArray();
    QCOMPARE(int(mesh.nodes.size()), bones.size());
    for (int bone = 0; bone < bones.size(); ++bone) {
        const SkinnedMeshNode &node = mesh.nodes[size_t(bone)];
        QCOMPARE(int(node.parentNode), bones[bone].toObject()[QLatin1String("parent")].toInt());
        QJsonArray children;
        for (quint16 child : node.childNodes)
            children.append(int(child));
        QCOMPARE(children, bones[bone].toObject()[QLatin1String("children")].toArray());
    }

    AnimFile anim;
    QVERIFY(!anim.read(path(model, QStringLiteral(".anim"))));
    const QJsonArray blocks = model[QLatin1String("blocks")].toArray();
    QCOMPARE(int(anim.blocks.size()), blocks.size());
    for (int i = 0; i < blocks.size(); ++i)
        compareBlock(anim.blocks[size_t(i)], blocks[i].toObject());
    QVERIFY(animationMatchesMesh(anim, mesh));
}

void tst_ExpectedPoses::poses()
{
    QFETCH(QString, name);
    const QJsonObject model = m_models[name].toObject();
    SkinnedMesh mesh;
    AnimFile anim;
    QVERIFY(!mesh.read(path(model, QStringLiteral(".skinnedmesh"))));
    QVERIFY(!anim.read(path(model, QStringLiteral(".anim"))));
    // The source of this one stretches its legs, which bones here cannot.
    const float vertexTolerance = name == QLatin1String("mannequin") ? 3.4f : BoneTolerance;

    PoseEvaluator evaluator;
    BonePalette palette(mesh.nodes.size());
    evaluator.evaluateInitialPose(palette, mesh, anim.blocks.front());
    comparePose(mesh, palette, model[QLatin1String("initialPose")].toObject(), vertexTolerance);

    int compared = 0;
    const QJsonArray blocks = model[QLatin1String("blocks")].toArray();
    for (int i = 0; i < blocks.size(); ++i) {
        const AnimBlock &block = anim.blocks[size_t(i)];
        for (const auto pose : blocks[i].toObject()[QLatin1String("poses")].toArray()) {
            const int frame = pose.toObject()[QLatin1String("frame")].toInt();
            // As the slider puts it. In single precision the time may lie just before the frame.
            Playback state;
            state.playState = PlayState::Paused;
            state.time = float(frame) / playRate(block.speed);
            QQuaternion yaw;
            const int shown = evaluator.evaluateAnimatedPose(palette, mesh, block, state, yaw);
            QVERIFY(block.frameCount() < 2 || shown == frame || shown == frame - 1);
            comparePose(mesh, palette, pose.toObject(), vertexTolerance);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("block %1 frame %2").arg(i).arg(frame)));
            ++compared;
        }
    }
    QVERIFY(compared >= blocks.size());
}

QTEST_GUILESS_MAIN(tst_ExpectedPoses)
#include "tst_expectedposes.moc"
