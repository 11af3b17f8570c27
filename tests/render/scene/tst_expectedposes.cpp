// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Pose.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// The real models: where bones and vertices stand in the initial pose and at chosen frames. The expected
// places were computed from the models' sources, in double precision.
class tst_ExpectedPoses : public QObject
{
    Q_OBJECT

private slots:
    void poses_data();
    void poses();

private:
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

void tst_ExpectedPoses::poses_data()
{
    SKIP_WITHOUT_SHARED("gamedata/expected.json");
    const QByteArray json =
        TestSupport::readFile(TestSupport::shared(QStringLiteral("gamedata/expected.json")));
    m_models = QJsonDocument::fromJson(json).object();
    QVERIFY(!m_models.isEmpty());
    QTest::addColumn<QString>("name");
    for (const QString &name : m_models.keys()) {
        if (m_models[name].toObject()[QLatin1String("kind")] == QLatin1String("skinned"))
            QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_ExpectedPoses::poses()
{
    QFETCH(QString, name);
    const QJsonObject model = m_models[name].toObject();
    SkinnedMesh mesh;
    AnimFile anim;
    QVERIFY(!mesh.read(path(model, QStringLiteral(".skinnedmesh"))));
    QVERIFY(!anim.read(path(model, QStringLiteral(".anim"))));
    QVERIFY(animationMatchesMesh(anim, mesh));
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
