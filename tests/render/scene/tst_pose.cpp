// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Pose.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

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
};

namespace {
const QVector4D QuarterAboutZ(0.0f, 0.0f, float(M_SQRT1_2), float(M_SQRT1_2));
const QVector3D X(1.0f, 0.0f, 0.0f);

bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-5f;
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

QTEST_GUILESS_MAIN(tst_Pose)
#include "tst_pose.moc"
