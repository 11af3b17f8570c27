// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Lists whose places are counted elsewhere: what named a record before an edit names the same one afterwards.
#include "AnimCommands.h"
#include "MeshBones.h"
#include "SampleModels.h"
#include "TestSupport.h"
#include "Tracks.h"
#include "Validation.h"

namespace {
using Numbers = QVector<int>;

/// Bones that can be told apart by their damage scale, and everything that names one by that.
struct TaggedMesh : SkinnedMesh
{
    explicit TaggedMesh(const SkinnedMesh &mesh)
        : SkinnedMesh(mesh)
    {
        for (size_t b = 0; b < nodes.size(); ++b)
            nodes[b].damageScale = float(b);
    }

    QStringList names() const
    {
        const auto tag = [this](int number) {
            return size_t(number) < nodes.size() ? double(nodes[size_t(number)].damageScale) : -number;
        };
        QMap<double, QString> bones;
        for (const SkinnedMeshNode &bone : nodes) {
            QString &text = bones[double(bone.damageScale)];
            text += QString::number(tag(bone.parentNode)) + QLatin1Char(':');
            QVector<double> children;
            for (const quint16 child : bone.childNodes)
                children += tag(child);
            std::sort(children.begin(), children.end());
            for (const double child : qAsConst(children))
                text += QStringLiteral(" %1").arg(child);
        }
        QStringList all = bones.values();
        for (const SkinnedMeshHotPoint &point : hotPoints)
            all += QString::number(tag(point.nodeId));
        for (const SkinnedMeshVertex &vertex : vertices)
            all += QString::number(tag(vertex.nodeIndex));
        return all << QString::number(tag(headTrackStart)) << QString::number(tag(headTrackEnd));
    }

    void take(MeshBonesEdit edit)
    {
        QVERIFY2(edit.skeleton, qUtf8Printable(edit.refusal));
        QVERIFY(edit.skeleton->fits(*this, {}));
        edit.skeleton->exchange(*this, {});
    }
};

std::vector<SkinnedMesh> realMeshes()
{
    std::vector<SkinnedMesh> meshes{SampleModels::plainMesh()};
    for (const char *name : {"game/models/knight/knight", "game/models/fox/fox", "game/models/trex/trex",
                             "mod/models/mannequin/mannequin"}) {
        const QString path = TestSupport::shared(QStringLiteral("gamedata/%1.skinnedmesh").arg(name));
        SkinnedMesh mesh;
        if (!path.isEmpty() && !mesh.read(path))
            meshes.push_back(std::move(mesh));
    }
    return meshes;
}

std::vector<AnimFile> realAnims()
{
    std::vector<AnimFile> files{SampleModels::plainAnim()};
    for (const char *name : {"game/anims/knight/knight", "game/anims/fox/fox", "game/anims/trex/trex",
                             "mod/anims/mannequin/mannequin"}) {
        const QString path = TestSupport::shared(QStringLiteral("gamedata/%1.anim").arg(name));
        AnimFile file;
        if (!path.isEmpty() && !file.read(path))
            files.push_back(std::move(file));
    }
    return files;
}

/// What each bone does on each frame, whatever its tracks are called.
template <typename State>
QVector<QVector<typename State::Key>> motion(const AnimBlock &block, quint16 AnimNode::*number)
{
    QVector<QVector<typename State::Key>> all;
    const auto &table = State::table(block);
    for (const AnimNode &bone : block.nodes) {
        all.append(QVector<typename State::Key>());
        for (int frame = 0; frame < block.frameCount() && table.contains(bone.*number, frame); ++frame)
            all.last() += table.at(bone.*number, frame);
    }
    return all;
}
} // namespace

class tst_NumberedLists : public QObject
{
    Q_OBJECT

private slots:
    void bonesAreStillNamed()
    {
        for (const SkinnedMesh &real : realMeshes()) {
            const TaggedMesh mesh(real);
            const int count = int(mesh.nodes.size());
            const bool isSound = validate(real).empty();
            const auto check = [&](const TaggedMesh &edited) {
                QVERIFY(!isSound || validate(edited).empty());
            };
            for (int b = 1; b + 2 < count; b += 3) {
                TaggedMesh moved = mesh;
                moved.take(MeshBones::moved(moved, {b, b + 1}, 1));
                QCOMPARE(moved.nodes[size_t(b)].damageScale, float(b + 2));
                QCOMPARE(moved.names(), mesh.names());
                check(moved);
                moved.take(MeshBones::moved(moved, {b + 1, b + 2}, -1));
                QCOMPARE(SampleModels::bytesOf<SkinnedMesh>(moved), SampleModels::bytesOf<SkinnedMesh>(mesh));

                // A bone and one on it come in; what was there names what it named.
                TaggedMesh more = mesh;
                SkinnedMeshNode fresh = mesh.nodes[size_t(b)];
                fresh.damageScale = 1000;
                SkinnedMeshNode below = fresh;
                below.damageScale = 1001;
                more.take(MeshBones::with(more, b, {{below, -2}, {fresh, b}}));
                QCOMPARE(int(more.nodes.size()), count + 2);
                QCOMPARE(int(more.nodes[size_t(b)].parentNode), b + 1);
                QCOMPARE(int(more.nodes[size_t(b + 1)].parentNode), b + 2);
                QCOMPARE(more.nodes[size_t(b + 1)].childNodes, std::vector<quint16>{quint16(b)});
                check(more);
                // Nothing else hangs on them: they can go again.
                more.take(MeshBones::without(more, {b, b + 1}));
                QCOMPARE(SampleModels::bytesOf<SkinnedMesh>(more), SampleModels::bytesOf<SkinnedMesh>(mesh));
            }
        }
    }

    void bonesThatAreNeededStay()
    {
        SkinnedMesh mesh;
        mesh.nodes.resize(6);
        mesh.nodes[0].childNodes = {1, 2, 3, 4};
        for (const int b : {1, 2, 3, 4})
            mesh.nodes[size_t(b)].parentNode = 0;
        mesh.nodes[4].childNodes = {5};
        mesh.nodes[5].parentNode = 4;
        mesh.hotPoints.resize(1);
        mesh.hotPoints[0].nodeId = 2;
        mesh.vertices.resize(2);
        mesh.vertices[1].nodeIndex = 3;
        const auto refused = [&mesh](const Numbers &bones) {
            return MeshBones::without(mesh, bones).refusal;
        };
        mesh.headTrackEnd = 1;
        QVERIFY(refused({0}).contains("Bone 0 stays"));
        QVERIFY(refused({1}).contains("head turns with bone 1"));
        QVERIFY(refused({2}).contains("Hot point 0 is on bone 2"));
        QVERIFY(refused({3}).contains("Bone 3 moves vertices (1)"));
        QVERIFY(refused({4}).contains("Bone 5 hangs on bone 4"));
        mesh.nodes[4].childNodes = {};
        QVERIFY(refused({4}).contains("Bone 5 names bone 4 as its parent"));
        QCOMPARE(refused({4, 5}), QString());
        QCOMPARE(refused({5}), QString());

        const auto moved = [&mesh](const Numbers &bones, int by) {
            return MeshBones::moved(mesh, bones, by);
        };
        QVERIFY(moved({1}, -1).refusal.contains("Bone 0 stays"));
        QVERIFY(moved({0, 1}, 1).refusal.contains("Bone 0 stays"));
        QVERIFY(!moved({5}, 1).skeleton && moved({5}, 1).refusal.isEmpty());

        // A number that names no bone must not come to name one.
        mesh.vertices[0].nodeIndex = 6;
        QVERIFY(MeshBones::with(mesh, 3, {{{}, 0}}).refusal.contains("names bone 6"));
        mesh.vertices[0].nodeIndex = 9;
        TaggedMesh more(mesh);
        more.take(MeshBones::with(more, 3, {{{}, 0}}));
        QCOMPARE(int(more.vertices[0].nodeIndex), 9);
        QCOMPARE(int(more.vertices[1].nodeIndex), 4);
        QVERIFY(MeshBones::with(mesh, 3, std::vector<MeshBones::NewBone>(123)).refusal.contains("128"));
        QVERIFY(MeshBones::with(mesh, 0, {{{}, 0}}).refusal.contains("Bone 0 stays"));
        mesh.nodes.resize(256);
        QVERIFY(moved({5}, 1).refusal.contains("255"));
        QVERIFY(refused({5}).contains("255"));
    }

    void tracksAreStillFollowed()
    {
        checkTracks<TranslationTracks>(&AnimNode::translationIndex, RecordKind::TranslationTrack);
        checkTracks<RotationTracks>(&AnimNode::rotationIndex, RecordKind::RotationTrack);
    }

    void blocksBonesAreStillNamed()
    {
        for (const AnimFile &file : realAnims()) {
            AnimFile edited = file;
            // Bones that can be told apart by where they begin; an action at each of the first.
            for (AnimBlock &block : edited.blocks) {
                for (size_t b = 0; b < block.nodes.size(); ++b)
                    block.nodes[b].initialPosition.setX(float(b));
                block.actions.resize(5);
                for (size_t a = 0; a < 5; ++a)
                    block.actions[a].node = a < 4 ? quint16(a) : quint16(0xFFFF);
            }
            edited.blocks[2].nodes.pop_back(); // another mesh's
            const QByteArray before = SampleModels::bytesOf(edited);
            const auto named = [&edited](size_t block, size_t action) {
                const AnimBlock &in = edited.blocks[block];
                return in.nodes[in.actions[action].node].initialPosition.x();
            };
            std::vector<int> places(edited.blocks[1].nodes.size());
            std::iota(places.begin(), places.end(), 0);
            std::swap(places[1], places[2]);
            places.insert(places.begin() + 2, {-1, -2});
            AnimNode fresh = edited.blocks[1].nodes[3];
            fresh.initialPosition = {-7, 0, 0};
            fresh.rotationIndex = 0;
            BlockBones state(edited, 1);
            QCOMPARE(state.blockCount(), int(file.blocks.size()) - 1);
            QCOMPARE(state.arrange(places, {fresh, fresh}, {3}), QString());
            QVERIFY(state.fits(edited, {}));
            state.exchange(edited, {});
            for (const size_t block : {size_t(0), size_t(1)}) {
                for (size_t action = 0; action < 4; ++action)
                    QCOMPARE(named(block, action), float(action));
                QCOMPARE(edited.blocks[block].actions[4].node, quint16(0xFFFF));
                const std::vector<AnimNode> &bones = edited.blocks[block].nodes;
                // In another block a copy of its own bone, or one without tracks.
                QCOMPARE(bones[2].initialPosition.x(), block == 1 ? -7.0f : 3.0f);
                QCOMPARE(bones[3].initialPosition.x(), -7.0f);
                QCOMPARE(int(bones[3].rotationIndex), block == 1 ? 0 : 0xFFFF);
            }
            QCOMPARE(named(2, 2), 2.0f);
            QVERIFY(state.fits(edited, {}));
            state.exchange(edited, {});
            QCOMPARE(SampleModels::bytesOf(edited), before);

            BlockBones other(edited, 0);
            QVERIFY(other.arrange({0, 1}, {}, {}).contains("Action 2 of animation 0 happens at bone 2"));
            QVERIFY(other.arrange({1, 0}, {}, {}).contains("Bone 0 stays"));
            QVERIFY(other.arrange(std::vector<int>(129, 0), {}, {}).contains("128"));
            edited.blocks[0].actions[4].node = quint16(edited.blocks[0].nodes.size());
            places.erase(places.begin() + 2);
            QVERIFY(BlockBones(edited, 0).arrange(places, {fresh}, {}).contains("which does not exist"));
        }
    }

    void tracksMeetOtherCounts()
    {
        AnimFile file;
        file.blocks.resize(1);
        AnimBlock &block = file.blocks[0];
        block.nodes.resize(2);
        block.nodes[0].rotationIndex = 2;
        block.nodes[1].rotationIndex = 3; // none such
        block.setRotationCount(3);
        block.setFrameCount(2);
        RotationTracks state(block);
        QCOMPARE(state.arrange({0, 1, 2, -1}, {1, 2}), std::optional<int>(3));
        QCOMPARE(state.arrange({2, 0}, {}), std::nullopt);
        // The frame count is no undo step: it is that of now.
        block.setFrameCount(5);
        QVERIFY(state.fits(file, {}));
        state.exchange(file, {});
        QCOMPARE(block.rotations.frameCount(), 5);
        QCOMPARE(block.rotations.trackCount(), 2);
        QVERIFY(block.nodes[0].rotationIndex == 0 && block.nodes[1].rotationIndex == 3);
        // Nor is the track count: what does not fit any more stays out.
        block.setRotationCount(1);
        QVERIFY(!state.fits(file, {}));
    }

private:
    template <typename State>
    static void checkTracks(quint16 AnimNode::*number, RecordKind kind)
    {
        for (const AnimFile &file : realAnims()) {
            for (int b = 0; b < int(file.blocks.size()); ++b) {
                AnimFile edited = file;
                AnimBlock &block = edited.blocks[size_t(b)];
                const auto before = motion<State>(block, number);
                const int count = State::table(block).trackCount();
                const int findings = int(validate(file, nullptr, {}, 100000).size());
                if (count < 2)
                    continue;
                std::vector<int> places(static_cast<size_t>(count));
                std::iota(places.begin(), places.end(), 0);
                std::rotate(places.begin(), places.begin() + 1, places.end());
                State state(block);
                QVERIFY(!state.arrange(places, {}));
                state.exchange(edited, {b, 0, 0});
                QCOMPARE(motion<State>(block, number), before);
                QCOMPARE(int(validate(edited, nullptr, {}, 100000).size()), findings);
                QVERIFY(recordCount(edited, kind, {b, 0, 0}) == count);

                // Bones whose track goes rest; the others go on.
                State fewer(block);
                const int gone = count / 2;
                QVector<bool> rests;
                for (const AnimNode &bone : block.nodes)
                    rests += bone.*number == gone;
                std::iota(places.begin(), places.end(), 0);
                places.erase(places.begin() + gone);
                QVERIFY(!fewer.arrange(places, {}));
                QCOMPARE(State::followers(block, {gone}), rests.count(true));
                fewer.exchange(edited, {b, 0, 0});
                const auto after = motion<State>(block, number);
                for (int bone = 0; bone < before.size(); ++bone)
                    QCOMPARE(after[bone], rests[bone] ? QVector<typename State::Key>() : before[bone]);
                fewer.exchange(edited, {b, 0, 0});
                state.exchange(edited, {b, 0, 0});
                QCOMPARE(SampleModels::bytesOf(edited), SampleModels::bytesOf(file));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_NumberedLists)
#include "tst_numberedlists.moc"
