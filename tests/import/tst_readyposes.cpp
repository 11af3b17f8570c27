// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportSteps.h"
#include "ImportWorker.h"
#include "Playback.h"
#include "Pose.h"
#include "RigGltf.h"
#include "TestSupport.h"

#include <random>

namespace {
using Places = std::vector<QVector3D>;

constexpr float Scale = 25.0f;

/// Upright, in game units.
QVector3D ours(const QVector3D &p)
{
    return QVector3D(p.x(), -p.z(), p.y());
}

/// Numbers between -1 and 1, the same on every machine.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_dice(seed)
    {}
    float number() { return float(m_dice() % 20001) / 10000.0f - 1.0f; }
    QVector3D place() { return {number(), number(), number()}; }
    QQuaternion turn() { return QQuaternion(number(), number(), number(), number() + 0.1f).normalized(); }

private:
    std::mt19937 m_dice;
};

/// `count` triangles that say by their UVs which vertex is which.
Rig::Mesh triangles(Dice &dice, int mesh, int count)
{
    Rig::Mesh vertices;
    for (int i = 0; i < count; ++i) {
        const std::array<QVector3D, 3> corners{dice.place(), dice.place(), dice.place()};
        for (const QVector3D &corner : corners) {
            Rig::Vertex vertex;
            vertex.place = corner;
            vertex.normal =
                QVector3D::crossProduct(corners[1] - corners[0], corners[2] - corners[0]).normalized();
            vertex.uv = {float(vertices.size()) / 256.0f, float(mesh) / 16.0f};
            vertices.push_back(vertex);
        }
    }
    return vertices;
}

/// Nodes that are turned, scaled and mirrored, a helper among them; a skinned body, bound elsewhere than at
/// rest, whose vertices several joints pull; a part on two nodes, and one below a helper that is stretched.
/// Scales above what moves are the same along all axes: bones cannot follow a shear.
Rig makeRig(unsigned seed)
{
    Dice dice(seed);
    Rig rig;
    const auto add = [&](const char *name, int parent, const QVector3D &scale = {1, 1, 1}) {
        rig.nodes.push_back({name, parent, dice.place(), dice.turn(), scale});
        return int(rig.nodes.size()) - 1;
    };
    const int root = add("root", -1, {2, 2, 2});
    const int hips = add("hips", root);
    const int spine = add("spine", hips, {-0.5f, 0.5f, 0.5f});
    const int between = add("between", spine);
    const int left = add("arm.l", between, {3, 3, 3});
    const int right = add("arm.r", between);
    const int helper = add("hand_$AssimpFbx$_Rotation", right);
    const int hand = add("hand", helper);
    const int glove = add("glove", hand, {0.5f, -2.0f, 1.5f});
    const int shieldLeft = add("shield", left, {1, 1, -1});
    const int shieldRight = add("second shield", right);
    const int body = add("body", root);

    rig.meshes = {triangles(dice, 0, 12), triangles(dice, 1, 4), triangles(dice, 2, 4)};
    rig.nodes[size_t(body)].mesh = 0;
    rig.nodes[size_t(body)].isSkinned = true;
    rig.nodes[size_t(glove)].mesh = 1;
    rig.nodes[size_t(shieldLeft)].mesh = rig.nodes[size_t(shieldRight)].mesh = 2;
    rig.joints = {hips, spine, left, hand};
    // All joints have the body nearly in one place, mirrored or not.
    QMatrix4x4 common;
    common.rotate(dice.turn());
    common.scale(1.0f, seed % 2 == 0 ? 1.0f : -1.0f, 1.0f);
    const std::vector<QMatrix4x4> rest = rig.worlds(nullptr, 0.0f);
    for (int joint : rig.joints) {
        QMatrix4x4 bind = rest[size_t(joint)].inverted() * common;
        bind.translate(0.1f * dice.place());
        bind.rotate(10.0f * dice.number(), dice.place());
        rig.binds.push_back(bind);
    }
    for (size_t v = 0; v < rig.meshes[0].size(); ++v) {
        // One of each triangle's joints, for what all its corners do.
        const size_t triangle = v / 3;
        for (size_t w = 0; w < 4; ++w) {
            rig.meshes[0][v].joints[w] = quint16((triangle + w) % 4);
            rig.meshes[0][v].weights[w] = std::array{0.4f, 0.3f, 0.2f, 0.1f}[w];
        }
    }
    for (const char *name : {"walk [12]", "wave"}) {
        Rig::Clip &clip = rig.clips.emplace_back();
        clip.name = name;
        for (int node : {hips, spine, left, hand}) {
            // Not from zero, at times of their own, and with signs as they come.
            for (int key = 0; key < 6; ++key) {
                const float time = 0.5f + float(key) * 0.2f + (key % 5 != 0 ? dice.number() * 0.05f : 0.0f);
                clip.channels[{node, "rotation"}].push_back({time, dice.turn().toVector4D()});
                if (node != left)
                    clip.channels[{node, "translation"}].push_back({time, QVector4D(dice.place(), 0.0f)});
            }
        }
    }
    return rig;
}

/// How far two places are apart that should be one, as a share of `size`.
float apart(const QVector3D &a, const QVector3D &b, float size)
{
    return (a - b).length() / size;
}
} // namespace

/// A model that arrives ready for the game is posed as its source is.
class tst_readyposes : public QObject
{
    Q_OBJECT

private slots:
    void likeTheTextbook_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 6; ++seed)
            QTest::newRow(QByteArray::number(seed)) << seed;
    }

    void likeTheTextbook()
    {
        QFETCH(unsigned, seed);
        Rig rig = makeRig(seed);
        const QString path = m_folder.filePath(QStringLiteral("rig.gltf"));
        QVERIFY(TestSupport::writeFile(path, rig.file()));
        import(path, Scale);
        QCOMPARE(m_anim.blocks.size(), rig.clips.size());
        QCOMPARE(m_anim.blocks[0].animId, 12);

        const std::vector<QMatrix4x4> rest = rig.worlds(nullptr, 0.0f);
        const Places resting = initialPose();
        const float size = (m_mesh.bbMax - m_mesh.bbMin).length();
        struct Pair
        {
            int node;
            const Rig::Vertex *vertex;
            size_t ours;
        };
        std::vector<Pair> pairs;
        for (int n = 0; n < int(rig.nodes.size()); ++n) {
            if (rig.nodes[size_t(n)].mesh < 0)
                continue;
            for (const Rig::Vertex &vertex : rig.meshes[size_t(rig.nodes[size_t(n)].mesh)]) {
                const QVector3D place = Scale * ours(rig.place(rest, rest, n, vertex));
                Pair pair{n, &vertex, resting.size()};
                for (size_t v = 0; v < resting.size(); ++v) {
                    const QVector2D uv = m_mesh.vertices[v].uv;
                    const bool isIt = qFuzzyCompare(1.0f + uv.x(), 1.0f + vertex.uv.x()) &&
                                      qFuzzyCompare(2.0f - uv.y(), 1.0f + vertex.uv.y());
                    if (isIt && apart(resting[v], place, size) < 1e-5f)
                        pair.ours = v;
                }
                QVERIFY2(pair.ours < resting.size(), rig.nodes[size_t(n)].name);
                pairs.push_back(pair);
            }
        }
        QCOMPARE(pairs.size(), m_mesh.vertices.size());

        // Fronts are clockwise, and normals look out of them.
        const std::vector<quint16> corners = indexes();
        for (const quint16 *corner = corners.data(); corner < corners.data() + corners.size(); corner += 3) {
            const QVector3D out = QVector3D::crossProduct(resting[corner[2]] - resting[corner[0]],
                                                          resting[corner[1]] - resting[corner[0]]);
            const SkinnedMeshVertex &vertex = m_mesh.vertices[corner[0]];
            const QVector3D normal = m_palette[vertex.nodeIndex].mapVector(vertex.normal);
            QVERIFY(QVector3D::dotProduct(out.normalized(), normal) > 0.999f);
        }

        float most = 0.0f;
        for (size_t clip = 0; clip < rig.clips.size(); ++clip) {
            const AnimBlock &block = m_anim.blocks[clip];
            QCOMPARE(block.frameCount(), 31); // of the second from the first key to the last
            for (int frame = 0; frame < block.frameCount(); ++frame) {
                const Places posed = pose(clip, frame);
                const std::vector<QMatrix4x4> worlds =
                    rig.worlds(&rig.clips[clip], 0.5f + float(frame) / 30.0f);
                for (const Pair &pair : pairs) {
                    const QVector3D place = Scale * ours(rig.place(worlds, rest, pair.node, *pair.vertex));
                    most = std::max(most, apart(posed[pair.ours], place, size));
                }
            }
        }
        QVERIFY2(most < 1e-4f, QByteArray::number(double(most)));
    }

    void likeRealSources_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &name : QDir(TestSupport::source("tests/import/poses")).entryList({"*.json"}))
            QTest::newRow(qPrintable(name)) << TestSupport::source("tests/import/poses/") + name;
    }

    void likeRealSources()
    {
        QFETCH(QString, path);
        const QJsonObject stored = QJsonDocument::fromJson(TestSupport::readFile(path)).object();
        const QString source = TestSupport::shared(QLatin1String("models/") + stored["source"].toString());
        if (source.isEmpty())
            QSKIP("The real models are not there.");
        import(source, 1.0f);
        const QJsonArray frames = stored["frames"].toArray();
        QCOMPARE(int(m_anim.blocks.size()), frames.size());
        // A clip of one pose is held, since a block of one frame would show the pose at rest.
        for (int clip = 0; clip < frames.size(); ++clip) {
            const int count = m_anim.blocks[size_t(clip)].frameCount();
            QCOMPARE(frames[clip].toInt() == 1 ? std::min(count, 1) : count, frames[clip].toInt());
        }
        const QVector3D low = placeOf(stored["low"].toArray());
        const QVector3D high = placeOf(stored["high"].toArray());
        const float size = (high - low).length();

        // Of each vertex of the source ours that are in its place and have its UV, or nearly.
        const QJsonArray vertices = stored["vertices"].toArray();
        const Places resting = initialPose();
        std::vector<std::vector<size_t>> fits;
        for (const QJsonValue &each : vertices) {
            const QVector3D place = placeOf(each["at"].toArray());
            const QVector2D uv(float(each["uv"][0].toDouble()), float(each["uv"][1].toDouble()));
            std::vector<size_t> &fitting = fits.emplace_back();
            float nearest = size;
            for (const QVector3D &ours : resting)
                nearest = std::min(nearest, (ours - place).length());
            for (size_t v = 0; v < resting.size(); ++v) {
                if ((resting[v] - place).length() <= nearest + 1e-4f * size &&
                    (m_mesh.vertices[v].uv - uv).length() < 1e-3f)
                    fitting.push_back(v);
            }
            QVERIFY2(!fitting.empty(), qPrintable(QStringLiteral("%1 apart").arg(double(nearest / size))));
        }
        float solid = 0.0f;
        float most = 0.0f;
        double sum = 0.0;
        const QJsonArray poses = stored["poses"].toArray();
        for (const QJsonValue &each : poses) {
            const Places posed = pose(size_t(each["clip"].toInt()), each["frame"].toInt());
            for (int i = 0; i < vertices.size(); ++i) {
                const QJsonArray at = each["at"].toArray();
                const QVector3D place(float(at[3 * i].toDouble()), float(at[3 * i + 1].toDouble()),
                                      float(at[3 * i + 2].toDouble()));
                float distance = HUGE_VALF;
                for (size_t v : fits[size_t(i)])
                    distance = std::min(distance, apart(posed[v], place, size));
                most = std::max(most, distance);
                sum += double(distance);
                if (vertices[i]["solid"].toBool())
                    solid = std::max(solid, distance);
            }
        }
        const double mean = sum / std::max(1, poses.size() * vertices.size());
        const QByteArray figures = QStringLiteral("mean %1, most %2, on one bone %3")
                                       .arg(mean)
                                       .arg(double(most))
                                       .arg(double(solid))
                                       .toLatin1();
        QVERIFY2(mean < 0.003 && most < 0.035f && solid < 1e-5f, figures);
    }

private:
    static QVector3D placeOf(const QJsonArray &array)
    {
        return {float(array[0].toDouble()), float(array[1].toDouble()), float(array[2].toDouble())};
    }

    void import(const QString &path, float scale)
    {
        ImportChoices choices;
        choices.arrival = Arrival::Ready;
        choices.modelPath = path;
        choices.kmatPath = QStringLiteral("materials/mat_rig.kmat");
        choices.ready.scale = scale;
        ImportWorker worker;
        QSignalSpy finished(&worker, &ImportWorker::finished);
        worker.start(importJob(choices));
        QVERIFY(!finished.isEmpty() || finished.wait(120000));
        QVERIFY(!worker.messages().hasError());
        m_mesh = {};
        m_anim = {};
        QVERIFY(!worker.read(m_mesh, m_anim));
        m_palette.assign(m_mesh.nodes.size(), QMatrix4x4());
    }

    std::vector<quint16> indexes() const
    {
        std::vector<quint16> all;
        for (const SkinnedMeshSurface &surface : m_mesh.surfaces)
            all.insert(all.end(), surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        return all;
    }

    Places initialPose()
    {
        PoseEvaluator().evaluateInitialPose(m_palette, m_mesh, m_anim.blocks.front());
        return posed();
    }

    Places pose(size_t clip, int frame)
    {
        const AnimBlock &block = m_anim.blocks[clip];
        Playback state;
        state.playState = PlayState::Paused;
        state.time = float(frame) / block.speed;
        QQuaternion yaw;
        PoseEvaluator().evaluateAnimatedPose(m_palette, m_mesh, block, state, yaw);
        return posed();
    }

    Places posed() const
    {
        Places places;
        for (const SkinnedMeshVertex &vertex : m_mesh.vertices)
            places.push_back(m_palette.at(vertex.nodeIndex).map(vertex.position));
        return places;
    }

    QTemporaryDir m_folder;
    SkinnedMesh m_mesh;
    AnimFile m_anim;
    BonePalette m_palette;
};

QTEST_GUILESS_MAIN(tst_readyposes)
#include "tst_readyposes.moc"
