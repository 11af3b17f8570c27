// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Pose.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

// Where the bones stand: composition, tracks, hierarchies that are no trees.
class tst_Pose : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void composition();
    void tracks();
    void rotationKeys();
    void yaw();
    void oneFrame();
    void diamond();
    void cycles();
    void longWays();
    void outOfRange();
    void expectedPoses_data();
    void expectedPoses();

private:
    void addBones(int count);
    QVector3D place(int bone) const { return m_palette[size_t(bone)].column(3).toVector3D(); }
    void poseInitially() { m_poses.evaluateInitialPose(m_palette, m_mesh, m_block); }
    int poseAt(float time);

    SkinnedMesh m_mesh;
    AnimBlock m_block;
    BonePalette m_palette;
    PoseEvaluator m_poses;
    Playback m_state;
    QQuaternion m_yaw;
    QJsonObject m_models; ///< what is expected of them
};

namespace {
const QVector4D QuarterAboutZ(0.0f, 0.0f, float(M_SQRT1_2), float(M_SQRT1_2));
const QVector3D X(1.0f, 0.0f, 0.0f);

bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-5f;
}

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

void tst_Pose::init()
{
    m_mesh = {};
    m_block = {};
    m_block.speed = 2.0f;
    m_palette.clear();
    m_state = {};
    m_state.playState = PlayState::Playing;
    m_yaw = {};
}

/// Bones one unit along x from their parent.
void tst_Pose::addBones(int count)
{
    m_mesh.nodes.resize(size_t(count));
    m_block.nodes.resize(size_t(count));
    m_palette.resize(size_t(count));
    for (AnimNode &node : m_block.nodes)
        node.initialPosition = X;
}

int tst_Pose::poseAt(float time)
{
    m_state.time = time;
    return m_poses.evaluateAnimatedPose(m_palette, m_mesh, m_block, m_state, m_yaw);
}

void tst_Pose::composition()
{
    addBones(3);
    m_mesh.nodes[0].childNodes = {1};
    m_mesh.nodes[1].childNodes = {2};
    m_block.nodes[0].initialPosition = {0.0f, 0.0f, 10.0f};
    m_block.nodes[1].initialRotation = QuarterAboutZ * 3.0f; // rotations are normalised
    poseInitially();
    QVERIFY(near(place(1), {1.0f, 0.0f, 10.0f}));
    // The child's x is the turned parent's y.
    QVERIFY(near(m_palette[2].map(X), {1.0f, 2.0f, 10.0f}));

    // A zero quaternion turns nothing.
    m_block.nodes[1].initialRotation = {};
    poseInitially();
    QVERIFY(near(place(2), {2.0f, 0.0f, 10.0f}));
}

void tst_Pose::tracks()
{
    addBones(2);
    m_mesh.nodes[0].childNodes = {1};
    m_block.setFrameCount(3);
    m_block.setTranslationCount(1);
    m_block.translations.at(0, 1) = {10.0f, 0.0f, 0.0f};
    m_block.translations.at(0, 2) = {10.0f, 4.0f, 0.0f};
    m_block.nodes[0].translationIndex = 0;
    m_block.nodes[1].translationIndex = 1; // one too many: the initial position stands

    QCOMPARE(poseAt(0.0f), 0);
    QVERIFY(near(place(1), X));
    QCOMPARE(poseAt(0.25f), 0);
    QVERIFY(near(place(0), {5.0f, 0.0f, 0.0f}));
    QCOMPARE(poseAt(0.75f), 1);
    QVERIFY(near(place(0), {10.0f, 2.0f, 0.0f}));
    QVERIFY(near(place(1), {11.0f, 2.0f, 0.0f}));

    // Paused at the end it shows the last key, and wraps while it plays.
    m_state.playState = PlayState::Paused;
    QCOMPARE(poseAt(9.0f), 2);
    QVERIFY(near(place(0), {10.0f, 4.0f, 0.0f}));
    m_state.playState = PlayState::Playing;
    QCOMPARE(poseAt(1.25f), 0);
    QCOMPARE(m_state.time, 0.25f);
}

void tst_Pose::rotationKeys()
{
    addBones(1);
    m_block.nodes[0].initialPosition = {};
    m_block.nodes[0].rotationIndex = 0;
    m_block.setFrameCount(2);
    m_block.setRotationCount(1);
    const auto turned = [this](float time) {
        poseAt(time);
        return m_palette[0].map(X);
    };
    const float eighth = float(M_SQRT1_2);

    m_block.rotations.at(0, 1) = QuarterAboutZ;
    QVERIFY(near(turned(0.25f), {eighth, eighth, 0.0f}));
    // The same key with the other sign takes the same short way.
    m_block.rotations.at(0, 1) = -QuarterAboutZ;
    QVERIFY(near(turned(0.25f), {eighth, eighth, 0.0f}));
    // Nearly equal keys, a zero key.
    m_block.rotations.at(0, 1) = {0.0f, 0.0f, 1e-6f, 1.0f};
    QVERIFY(near(turned(0.25f), X));
    m_block.rotations.at(0, 0) = m_block.rotations.at(0, 1) = {};
    QVERIFY(near(turned(0.25f), X));
}

void tst_Pose::yaw()
{
    addBones(1);
    m_block.setFrameCount(2);
    m_block.frames[1].yawOffset = float(M_PI_2);
    // Offsets turn clockwise about z; the palette knows nothing of it.
    poseAt(0.25f);
    QVERIFY(near(m_yaw.rotatedVector(X), {float(M_SQRT1_2), -float(M_SQRT1_2), 0.0f}));
    QVERIFY(near(place(0), X));

    // Almost a whole turn is a small turn the other way.
    m_block.frames[1].yawOffset = 6.25f;
    poseAt(0.25f);
    const float angle = (6.25f - float(2.0 * M_PI)) / 2.0f;
    QVERIFY(near(m_yaw.rotatedVector(X), {std::cos(angle), -std::sin(angle), 0.0f}));
}

void tst_Pose::oneFrame()
{
    addBones(1);
    m_block.setFrameCount(1);
    m_block.setTranslationCount(1);
    m_block.translations.at(0, 0) = {7.0f, 7.0f, 7.0f};
    m_block.nodes[0].translationIndex = 0;
    QCOMPARE(poseAt(3.0f), PoseEvaluator::NoFrame);
    QVERIFY(near(place(0), X));
    QVERIFY(m_yaw.isIdentity());
}

// A bone that two parents name stands as its last visit in list order left it.
void tst_Pose::diamond()
{
    addBones(5);
    m_mesh.nodes[0].childNodes = {1, 2, 1};
    m_mesh.nodes[1].childNodes = {3};
    m_mesh.nodes[2].childNodes = {3};
    m_mesh.nodes[3].childNodes = {4};
    m_block.nodes[1].initialPosition = {0.0f, 10.0f, 0.0f};
    m_block.nodes[2].initialPosition = {0.0f, 20.0f, 0.0f};
    poseInitially();
    QVERIFY(near(place(3), {2.0f, 10.0f, 0.0f}));
    QVERIFY(near(place(4), {3.0f, 10.0f, 0.0f}));
    m_mesh.nodes[0].childNodes = {1, 2};
    poseInitially();
    QVERIFY(near(place(3), {2.0f, 20.0f, 0.0f}));
}

void tst_Pose::cycles()
{
    addBones(4);
    m_palette[3].translate(5.0f, 5.0f, 5.0f);
    m_mesh.nodes[0].childNodes = {0, 1};
    m_mesh.nodes[1].childNodes = {2};
    m_mesh.nodes[2].childNodes = {1, 0, 2};
    poseInitially();
    QVERIFY(near(place(2), X * 3.0f));
    // Nothing reaches bone 3.
    QVERIFY(near(place(3), {5.0f, 5.0f, 5.0f}));
}

void tst_Pose::longWays()
{
    // Bones that each name the next twice: sixty of them have 2^59 paths.
    for (const int bones : {60, 65536}) {
        addBones(bones);
        for (int bone = 0; bone + 1 < bones; ++bone)
            m_mesh.nodes[size_t(bone)].childNodes = {quint16(bone + 1), quint16(bone + 1)};
        poseInitially();
        QCOMPARE(place(bones - 1).x(), float(bones));
    }
}

void tst_Pose::outOfRange()
{
    // No bone, no walk.
    poseInitially();

    addBones(4);
    m_mesh.nodes[0].childNodes = {65535, 4, 1, 2, 3};
    m_block.nodes.resize(3); // another block than the first may have fewer bones
    m_palette.resize(2);     // and the graphics card's copy may be older
    poseInitially();
    QVERIFY(near(place(1), X * 2.0f));
    m_palette.assign(4, QMatrix4x4());
    poseInitially();
    QVERIFY(near(place(2), X * 2.0f));
    QVERIFY(near(place(3), {}));
}

// The real models: where bones and vertices stand in the initial pose and at chosen frames. The expected
// places were computed from the models' sources, in double precision.
void tst_Pose::expectedPoses_data()
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

void tst_Pose::expectedPoses()
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

QTEST_GUILESS_MAIN(tst_Pose)
#include "tst_pose.moc"
