// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoneSymbolGuess.h"
#include "ClipSampler.h"
#include "HandScene.h"
#include "NameTables.h"
#include "ReadySkeleton.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <limits>
#include <map>

namespace {
constexpr float NaN = std::numeric_limits<float>::quiet_NaN();

bool isClose(const Turn &a, const Turn &b)
{
    return std::abs(std::abs(dot(a, b)) - 1.0) < 1e-9;
}

Matrix4 placed(const Vector3 &scale, const Turn &turn)
{
    return composed(scale, turn, Vector3(1, 2, 3));
}

/// "root hips(0) arm(1)": the bones, with the numbers of their parents.
QByteArray shape(const SceneNodes &nodes, const ReadySkeleton &skeleton)
{
    QByteArrayList words;
    for (int b = 0; b < skeleton.count(); ++b) {
        words += nodes[skeleton.node(b)].source->mName.C_Str();
        if (b > 0)
            words.back() += '(' + QByteArray::number(skeleton.parent(b)) + ')';
    }
    return words.join(' ');
}
} // namespace

/// Nodes of a foreign scene become bones, and stand where its keys have them.
class tst_readyskeleton : public QObject
{
    Q_OBJECT

private slots:
    void rotationOfAnyMatrix()
    {
        const Turn turn = Turn(0.3, -0.4, 0.5, 0.6).Normalize();
        const Turn other = Turn(0.8, 0.1, -0.5, 0.2).Normalize();
        QVERIFY(isClose(*turnOf(placed({1, 1, 1}, turn)), turn));
        QVERIFY(isClose(*turnOf(placed({1000, 0.01, 3}, turn)), turn));
        // What is mirrored turns with what turns it, though it is no rotation itself.
        const Matrix4 sheared = placed({1, 2, 1}, other) * placed({-1, 3, 0.5}, turn);
        QVERIFY(isClose(*turnOf(placed({1, 1, 1}, turn) * sheared), turn * *turnOf(sheared)));
        QVERIFY(!turnOf(placed({1, 0, 1}, turn)));
        QVERIFY(!turnOf(placed({0, 0, 0}, turn)));
        Matrix4 lost;
        lost.b2 = double(NaN);
        QVERIFY(!turnOf(lost));
    }

    void nodesOfOddScenes()
    {
        HandScene made;
        aiNode *object = made.node("foot", nullptr, true);
        aiNode *first = made.node("foot_$AssimpFbx$_Rotation");
        made.node("foot", first, true);
        aiNode *second = made.node("foot_$AssimpFbx$_Rotation");
        aiNode *bone = made.node("foot", second);
        aiNode *flat = made.node("flat");
        flat->mParent = bone; // listed at the root, as the bones of a Half-Life model are
        bone->mTransformation.a4 = NaN;
        const SceneNodes nodes(made.scene);
        QCOMPARE(nodes.count(), 7);
        // Of one name, the bone is meant and not the object that it moves; so too where helpers stand for
        // them.
        QCOMPARE(nodes[nodes.find(aiString("foot"))].source, bone);
        QCOMPARE(nodes[nodes.find(aiString("foot_$AssimpFbx$_Rotation"))].source, second);
        QVERIFY(nodes[nodes.find(aiString("foot_$AssimpFbx$_Rotation"))].isHelper);
        QCOMPARE(nodes.find(aiString("hand")), SceneNodes::None);
        QCOMPARE(nodes[nodes[nodes.find(aiString("flat"))].parent].source, bone);
        QCOMPARE(nodes[nodes.find(aiString("foot"))].rest, Matrix4());

        // Nodes that name each other as parents are where they are listed.
        flat->mParent = object;
        object->mParent = flat;
        const SceneNodes circle(made.scene);
        QCOMPARE(circle.count(), 7);
        QCOMPARE(circle[circle.find(aiString("flat"))].parent, 0);
    }

    void whichNodesBecomeBones()
    {
        struct Row
        {
            const char *skinned, *bare, *moved, *bones;
        };
        // scene ─┬─ rig ─┬─ helper ─── hips ─┬─ spine ─── hand ─── sword
        //        │       └─ floor            └─ camera
        const Row rows[] = {
            {"spine hand", "", "", "spine hand(0)"},
            {"hips hand", "", "", "hips spine(0) hand(1)"}, // and what is between them
            {"", "floor", "", ""},
            {"hips", "sword", "hand", "hips spine(0) hand(1)"},
            {"hips", "", "camera hand", "hips"},  // nothing hangs on them
            {"", "sword", "helper", "hips"},      // the helped node is the one that has a name
            {"hips", "floor", "", "rig hips(0)"}, // the floor must not go with the hips
            {"", "sword floor", "hips", "rig hips(0)"},
        };
        for (const Row &row : rows) {
            HandScene made;
            aiNode *rig = made.node("rig");
            aiNode *helper = made.node("helper", rig);
            aiNode *hips = made.node("hips", helper);
            made.node("sword", made.node("hand", made.node("spine", hips)));
            made.node("camera", hips);
            made.node("floor", rig);
            helper->mName = "hips_$AssimpFbx$_Rotation";
            const SceneNodes nodes(made.scene);
            const auto marks = [&nodes](QByteArray names) {
                return HandScene::marks(nodes,
                                        names.replace("helper", "hips_$AssimpFbx$_Rotation").split(' '));
            };
            std::vector<bool> shows = marks(row.bare);
            const std::vector<bool> skinned = marks(row.skinned);
            std::transform(shows.begin(), shows.end(), skinned.begin(), shows.begin(), std::logical_or<>());
            const ReadySkeleton skeleton(nodes, skinned, shows, marks(row.moved));
            QCOMPARE(shape(nodes, skeleton), QByteArray(row.bones));
        }
    }

    void tooManyBones()
    {
        HandScene made;
        aiNode *root = made.node("root");
        aiNode *chain = root;
        QByteArrayList names{"root"};
        for (int i = 0; i < 140; ++i) {
            names += "link" + QByteArray::number(i);
            chain = made.node(names.back(), i < 100 ? chain : root); // the last 40 are leaves
        }
        const SceneNodes nodes(made.scene);
        const std::vector<bool> all = HandScene::marks(nodes, names);
        const std::vector<bool> none(all.size());
        ReadySkeleton leafless(nodes, all, all, none);
        leafless.dropLeaves(none, none);
        QCOMPARE(leafless.count(), 128);
        QCOMPARE(nodes[leafless.node(127)].source->mName.C_Str(), "link126"); // the last ones went
        QCOMPARE(leafless.boneOf(nodes.find(aiString("link139"))), 0);

        ReadySkeleton skeleton(nodes, all, all, none);
        skeleton.dropLeaves(all, none);
        QCOMPARE(skeleton.count(), 141);
        std::vector<double> movements(141, 0.5);
        std::fill_n(movements.begin() + 30, 5, 0.0);
        std::fill_n(movements.begin() + 60, 20, 0.003);
        skeleton.mergeStill(movements);
        QCOMPARE(skeleton.count(), 128);
        // Link 29 is bone 30 and still, so what it carried goes with bone 29 now.
        const int after = skeleton.boneOf(nodes.find(aiString("link34")));
        QCOMPARE(skeleton.boneOf(nodes.find(aiString("link29"))), 29);
        QCOMPARE(skeleton.parent(after), 29);
        ReadySkeleton busy(nodes, all, all, none);
        busy.mergeStill(std::vector<double>(141, 0.5));
        QCOMPARE(busy.count(), 141);
    }

    void flattenedBonesKeepTheirTurn()
    {
        HandScene made;
        aiNode *hips = made.node("hips");
        made.node("arm", hips);
        const SceneNodes nodes(made.scene);
        const std::vector<bool> all(3, true);
        const std::vector<bool> bones = HandScene::marks(nodes, {"hips", "arm"});
        const ReadySkeleton skeleton(nodes, bones, bones, {false, false, false});
        const Turn turn = Turn(0.5, 0.5, 0.5, 0.5);
        std::vector<Matrix4> places{Matrix4(), placed({1, 1, 1}, turn), placed({2, 1, 1}, turn)};
        SkeletonPose pose;
        skeleton.pose(nodes.worldPlaces(places, all, SceneNodes::toGame({})), pose);
        places[2] = placed({0, 0, 0}, Turn());
        places[1] = placed({1, 1, 1}, Turn(-1, 0, 0, 0));
        skeleton.pose(nodes.worldPlaces(places, all, SceneNodes::toGame({})), pose);
        QVERIFY(isClose(pose.local[1].turn, turn));
        QVERIFY(isClose(single(pose.local[1].origin), {1, 2, 3}));
        QVERIFY(dot(pose.local[0].turn, Turn(half, half, 0, 0)) > 0.99); // upright, by the sign that it had
    }

    void samplesByTime()
    {
        HandScene made;
        made.node("hips");
        const SceneNodes nodes(made.scene);
        aiNodeAnim *channel = new aiNodeAnim;
        channel->mNodeName = "hips";
        const auto key = [](double time, float x) { return aiVectorKey(time, aiVector3D(x, 0, 0)); };
        // Out of order, twice at one time, nowhere, and at no time.
        channel->mNumPositionKeys = 6;
        channel->mPositionKeys = new aiVectorKey[6]{key(40, 4), key(10, 1),   key(20, 2),
                                                    key(20, 3), key(30, NaN), key(double(NaN), 9)};
        channel->mNumRotationKeys = 2;
        channel->mRotationKeys = new aiQuatKey[2]{aiQuatKey(0, aiQuaternion(0, 0, 0, 0)),
                                                  aiQuatKey(0, aiQuaternion(half, 0, 0, half))};
        channel->mNumScalingKeys = 1;
        channel->mScalingKeys = new aiVectorKey[1]{aiVectorKey(0, aiVector3D(2, 3, 4))};
        aiAnimation clip;
        clip.mTicksPerSecond = 20;
        clip.mNumChannels = 1;
        clip.mChannels = new aiNodeAnim *[1] { channel };
        const ClipSampler sampler(nodes, clip);
        QCOMPARE(sampler.length(), 1.5);
        QCOMPARE(sampler.ownRate(), 20.0);
        std::vector<Matrix4> places = nodes.restPlaces();
        for (const auto &[seconds, x] : std::map<double, double>{
                 {-1, 1}, {0, 1}, {0.25, 1.5}, {0.5, 3}, {1.0, 3.5}, {1.5, 4}, {99, 4}}) {
            sampler.place(seconds, places);
            QCOMPARE(places[1].a4, x);
            // Twice as long along its own x, which looks along y.
            const Vector3 end = Matrix3(places[1]) * Vector3(1, 0, 0);
            QVERIFY(isClose(single(end), {0, 2, 0}));
        }
        // Ticks that are milliseconds say nothing; the keys lie ten of them apart, then.
        clip.mTicksPerSecond = 240;
        QCOMPARE(ClipSampler(nodes, clip).ownRate(), 24.0);
        clip.mTicksPerSecond = 0;
        QCOMPARE(ClipSampler(nodes, clip).length(), 1.2);
        clip.mTicksPerSecond = double(NaN);
        QCOMPARE(ClipSampler(nodes, clip).ownRate(), 25.0);
    }

    void symbolsByName()
    {
        const std::map<QString, QString> expected{{"Hips", "Left Pelvis"},
                                                  {"mixamorig:LeftUpLeg", "Left Upper Leg"},
                                                  {"mixamorig:LeftLeg", "Left Lower Leg"},
                                                  {"Bip01 R UpperArm", "Right Upper Arm"},
                                                  {"forearm.L", "Left Lower Arm"},
                                                  {"b_RightForeArm_07", "Right Lower Arm"},
                                                  {"hand_r", "Right Hand"},
                                                  {"RightHandIndex1", "Right Hand"},
                                                  {"ForearmTwist_R", "Right Lower Arm"},
                                                  {"foot.r.001", "Right Foot"},
                                                  {"head", "Left Skull"},
                                                  {"jaw", "Left Chin"},
                                                  {"hip_l", "Left Hip"},
                                                  {"spine", "Left Lower Torso"},
                                                  {"Spine2", "Left Upper Torso"},
                                                  {"lefthand", "Left Hand"},
                                                  {"hand.ik.l", ""},
                                                  {"Bone.012", ""},
                                                  {"RobotArmature", ""},
                                                  {"slider", ""}};
        SkinnedMesh mesh;
        mesh.nodes.resize(1);
        for (const auto &[name, symbol] : expected) {
            const auto flags = guessedSymbolFlags(name);
            mesh.nodes[0].symbolFlags = flags.value_or(0);
            QCOMPARE(name + ": " + (flags ? boneSymbolName(mesh, 0) : QString()), name + ": " + symbol);
        }
    }
};

QTEST_GUILESS_MAIN(tst_readyskeleton)
#include "tst_readyskeleton.moc"
